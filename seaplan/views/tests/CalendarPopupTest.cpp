// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QScreen>
#include <QTest>
#include <vector>

#include <gtest/gtest.h>

#include "seaplan/views/datetime/CalendarPopup.h"
#include "seaplan/views/preview/FileTexts.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Seaplan {

namespace {

class CalendarPopupTest : public ::testing::Test {
  protected:
    FileTexts texts{std::string(SEAPLAN_LANG_DIR) + "/seaplan.en-US.json"};
    TestSupport::ManualClock clock;
    CalendarPopup calendar{nullptr};
    std::vector<Util::_datetime_t> chosen;
    CTrvCalDlg panel{calendar, [this](const Util::_datetime_t& value) { chosen.push_back(value); }};

    CalendarPopupTest() {
        calendar.Attach(&panel);
        panel.SetValue(Util::_datetime_t(42, 30, 8, 15, 3, 2024));
        panel.Open({50, 60});
    }
    QAbstractButton* Button(const char* name) { return calendar.findChild<QAbstractButton*>(name); }
    QLineEdit* Edit(const char* name) { return calendar.findChild<QLineEdit*>(name); }
    void Click(const char* name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
};

}  // namespace

TEST_F(CalendarPopupTest, ADayAndOkAreTheChoice) {
    Click("day25");
    EXPECT_TRUE(chosen.empty());
    Click("calendarOk");
    ASSERT_EQ(chosen.size(), 1U);
    EXPECT_EQ(chosen[0], Util::_datetime_t(42, 30, 8, 21, 3, 2024));
    EXPECT_FALSE(calendar.isVisible());
}

TEST_F(CalendarPopupTest, OkWithoutAChangeTellsNothing) {
    Click("calendarOk");
    EXPECT_TRUE(chosen.empty());
}

TEST_F(CalendarPopupTest, CancelAndEscapeLeaveTheValue) {
    Click("day25");
    Click("calendarCancel");
    EXPECT_FALSE(calendar.isVisible());
    panel.Open({50, 60});
    QTest::keyClick(&calendar, Qt::Key_Escape);
    EXPECT_FALSE(calendar.isVisible());
    EXPECT_TRUE(chosen.empty());
    EXPECT_FALSE(panel.IsVisible()) << "the panel knows that it was closed";
}

TEST_F(CalendarPopupTest, ADateOnlyCalendarHasNoTimeAndTakesADayAtOnce) {
    panel.Setup(true, Util::_datetime_t(42, 30, 8, 15, 3, 2024));
    for (const char* name : {"hourShown", "hourEdit", "minuteShown", "calendarOk", "calendarCancel"}) {
        EXPECT_FALSE(calendar.findChild<QWidget*>(name)->isVisible()) << name;
    }
    Click("day25");
    ASSERT_EQ(chosen.size(), 1U);
    EXPECT_EQ(chosen[0], Util::_datetime_t(0, 0, 0, 21, 3, 2024));
    EXPECT_FALSE(calendar.isVisible());
}

TEST_F(CalendarPopupTest, TheHourIsTypedAndSteppedInPlace) {
    EXPECT_FALSE(Edit("hourEdit")->isVisible());
    Click("hourShown");
    ASSERT_TRUE(Edit("hourEdit")->isVisible());
    EXPECT_EQ(Edit("hourEdit")->selectedText(), "08");
    for (const char* part : {"hour", "minute"}) {
        EXPECT_EQ(Button((std::string(part) + "Minus").c_str())->text(), "up") << part;
        EXPECT_EQ(Button((std::string(part) + "Plus").c_str())->text(), "down") << part;
    }
    QTest::keyClicks(Edit("hourEdit"), "23");
    Click("hourPlus");
    EXPECT_EQ(Edit("hourEdit")->text(), "00");
    Click("hourMinus");
    EXPECT_EQ(Edit("hourEdit")->text(), "23");
    QTest::keyClick(Edit("hourEdit"), Qt::Key_Return);
    EXPECT_FALSE(Edit("hourEdit")->isVisible());
    EXPECT_EQ(Button("hourShown")->text(), "23");
}

TEST_F(CalendarPopupTest, ATypedMinuteOutOfRangeIsDropped) {
    Click("minuteShown");
    QTest::keyClicks(Edit("minuteEdit"), "77");
    QTest::keyClick(Edit("minuteEdit"), Qt::Key_Return);
    EXPECT_EQ(Button("minuteShown")->text(), "30");
}

TEST_F(CalendarPopupTest, APressElsewhereEndsTheTyping) {
    Click("hourShown");
    QTest::keyClicks(Edit("hourEdit"), "10");
    QTest::mouseClick(&calendar, Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_FALSE(Edit("hourEdit")->isVisible());
    EXPECT_EQ(Button("hourShown")->text(), "10");
}

TEST_F(CalendarPopupTest, YearsAndMonthsStep) {
    const auto heading = [this] { return calendar.findChild<QLabel*>("calendarHeading")->text(); };
    EXPECT_EQ(heading(), "March  2024");
    Click("nextMonth");
    Click("nextYear");
    EXPECT_EQ(heading(), "April  2025");
    Click("previousMonth");
    Click("previousYear");
    EXPECT_EQ(heading(), "March  2024");
}

TEST_F(CalendarPopupTest, EnterTakesOkAndOnCancelItCancels) {
    Click("day25");
    QTest::keyClick(Button("calendarCancel"), Qt::Key_Return);
    EXPECT_FALSE(calendar.isVisible());
    EXPECT_TRUE(chosen.empty());
    panel.SetValue(Util::_datetime_t(42, 30, 8, 15, 3, 2024));
    panel.Open({50, 60});
    Click("day25");
    QTest::keyClick(Button("day25"), Qt::Key_Return);
    ASSERT_EQ(chosen.size(), 1U);
    EXPECT_EQ(chosen[0], Util::_datetime_t(42, 30, 8, 21, 3, 2024));
    EXPECT_FALSE(calendar.isVisible());
}

TEST_F(CalendarPopupTest, EnterInADateOnlyCalendarTakesTheDay) {
    panel.Setup(true, Util::_datetime_t(42, 30, 8, 15, 3, 2024));
    QTest::keyClick(&calendar, Qt::Key_PageDown);
    EXPECT_TRUE(chosen.empty());
    QTest::keyClick(&calendar, Qt::Key_Return);
    ASSERT_EQ(chosen.size(), 1U);
    EXPECT_EQ(chosen[0], Util::_datetime_t(0, 0, 0, 1, 4, 2024)) << "the first of the month on view";
}

TEST_F(CalendarPopupTest, PageKeysChangeTheMonthAndTheKeyboardStaysOnTheChosenDay) {
    const auto heading = [this] { return calendar.findChild<QLabel*>("calendarHeading")->text(); };
    ASSERT_NE(calendar.focusWidget(), nullptr);
    EXPECT_EQ(calendar.focusWidget()->objectName(), "day19") << "15 March, opened with the keyboard on it";
    QTest::keyClick(calendar.focusWidget(), Qt::Key_PageDown);
    EXPECT_EQ(heading(), "April  2024");
    EXPECT_EQ(calendar.focusWidget()->objectName(), "day1");
    QTest::keyClick(calendar.focusWidget(), Qt::Key_PageUp);
    QTest::keyClick(calendar.focusWidget(), Qt::Key_PageUp);
    EXPECT_EQ(heading(), "February  2024");
}

TEST_F(CalendarPopupTest, OneDayOnlyIsAStopForTab) {
    int stops = 0;
    for (int i = 0; i < CalendarModel::kCells; ++i) {
        const auto* day = Button(("day" + std::to_string(i)).c_str());
        stops += (day->focusPolicy() & Qt::TabFocus) != 0 ? 1 : 0;
        EXPECT_EQ((day->focusPolicy() & Qt::TabFocus) != 0, day->isChecked()) << i;
    }
    EXPECT_EQ(stops, 1);
}

TEST_F(CalendarPopupTest, ADigitOnHourOrMinuteBeginsTheTyping) {
    QTest::keyClick(Button("hourShown"), Qt::Key_2);
    ASSERT_TRUE(Edit("hourEdit")->isVisible());
    EXPECT_EQ(Edit("hourEdit")->text(), "2");
    QTest::keyClick(Edit("hourEdit"), Qt::Key_1);
    QTest::keyClick(Edit("hourEdit"), Qt::Key_Return);
    EXPECT_EQ(Button("hourShown")->text(), "21");
    QTest::keyClick(Button("minuteShown"), Qt::Key_5);
    QTest::keyClick(&calendar, Qt::Key_Return);
    ASSERT_EQ(chosen.size(), 1U);
    EXPECT_EQ(chosen[0], Util::_datetime_t(42, 5, 21, 15, 3, 2024));
}

TEST_F(CalendarPopupTest, EveryControlHasAnAccessibleName) {
    for (QAbstractButton* button : calendar.findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
    }
}

TEST_F(CalendarPopupTest, ItStaysOnTheScreen) {
    const QRect area = calendar.screen()->availableGeometry();
    panel.Hide();
    panel.Open({area.right() - 10, area.bottom() - 10});
    EXPECT_TRUE(area.contains(calendar.geometry()));
}

TEST_F(CalendarPopupTest, ADateIsTypedFromTheGridOn) {
    QWidget* grid = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : Button("day25");
    EXPECT_TRUE(Edit("dateText")->isHidden());
    QTest::keyClicks(grid, "2");
    ASSERT_FALSE(Edit("dateText")->isHidden());
    EXPECT_FALSE(Edit("dateText")->accessibleName().isEmpty());
    QTest::keyClicks(Edit("dateText"), "4.03.2024 9:15");
    EXPECT_EQ(Edit("dateText")->text(), "24.03.2024 9:15");
    EXPECT_EQ(calendar.findChild<QLabel*>("dateNote")->text(), "Read as 2024-03-24 09:15");
    QTest::keyClick(Edit("dateText"), Qt::Key_Return);
    ASSERT_EQ(chosen.size(), 1U);
    EXPECT_EQ(chosen[0], Util::_datetime_t(42, 15, 9, 24, 3, 2024));
    EXPECT_FALSE(calendar.isVisible());
}

TEST_F(CalendarPopupTest, ATypedDateKeepsItOnTheScreen) {
    const QRect screen = calendar.screen()->availableGeometry();
    panel.Hide();
    panel.Open({screen.left() + 20, screen.bottom()});
    ASSERT_LE(calendar.geometry().bottom(), screen.bottom());
    const int height = calendar.height();
    panel.OnTextTyped("2026-11-23");
    EXPECT_GT(calendar.height(), height);
    EXPECT_LE(calendar.geometry().bottom(), screen.bottom());
}

TEST_F(CalendarPopupTest, ATextThatIsNoDateSaysHowToTypeIt) {
    panel.OnTextTyped("soon");
    QTest::keyClick(Edit("dateText"), Qt::Key_Return);
    EXPECT_TRUE(calendar.isVisible());
    EXPECT_TRUE(calendar.findChild<QLabel*>("dateNote")->text().contains("2026-11-23 14:00"));
    Edit("dateText")->selectAll();
    QTest::keyClick(Edit("dateText"), Qt::Key_Delete);
    EXPECT_TRUE(Edit("dateText")->isHidden()) << "an empty text gives the days back";
}

}  // namespace Tarvik::Seaplan

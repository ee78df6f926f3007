// SPDX-License-Identifier: MIT
#include <vector>

#include <gtest/gtest.h>

#include "seaplan/panels/datetime/CTrvCalDlg.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/tests/RecordingCalendar.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Seaplan {

namespace {

class DateTimeCtrlTest : public ::testing::Test {
  protected:
    KeyTexts texts;
    TestSupport::ManualClock clock;
    RecordingCalendar view;
    std::vector<Util::_datetime_t> told;
    CTrvDateTimeCtrl date{view, [this](const Util::_datetime_t& value) { told.push_back(value); }};
    CTrvCalDlg& calendar = date.Calendar();
    const Util::_datetime_t first{42, 30, 8, 15, 3, 2024};

    DateTimeCtrlTest() { date.SetValue(first); }
    void Open() {
        date.OnPressed();
        ASSERT_TRUE(view.corner);
    }
    /// The cell of a day of the month on view.
    int Cell(int day) const { return view.state.selectedCell - 15 + day; }
};

}  // namespace

TEST_F(DateTimeCtrlTest, TheButtonShowsTheValueInItsFormat) {
    EXPECT_EQ(view.text, "2024-03-15 08:30:42");
    date.SetFormat("%Y-%m-%d");
    EXPECT_EQ(view.text, "2024-03-15");
    EXPECT_EQ(date.Text(), "2024-03-15");
    EXPECT_EQ(date.Value(), first);
}

TEST_F(DateTimeCtrlTest, APressOpensTheCalendarBelowTheButtonAndAnotherClosesIt) {
    Open();
    EXPECT_EQ(*view.corner, (Point{90, 225}));
    EXPECT_EQ(view.state.heading, "March  2024");
    EXPECT_EQ(view.state.cells[static_cast<std::size_t>(view.state.selectedCell)].date, "2024-03-15");
    date.OnPressed();
    EXPECT_FALSE(view.corner);
    EXPECT_TRUE(told.empty());
}

TEST_F(DateTimeCtrlTest, ACalendarClosedByTheWindowSystemOpensAgain) {
    Open();
    view.corner.reset();
    calendar.OnClosed();
    EXPECT_FALSE(calendar.IsVisible());
    Open();
}

TEST_F(DateTimeCtrlTest, OkTellsTheChangedValueThatTheButtonShowsAlready) {
    Open();
    calendar.OnDay(Cell(21));
    EXPECT_TRUE(told.empty()) << "a day alone is no choice";
    calendar.OnOk();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], Util::_datetime_t(42, 30, 8, 21, 3, 2024));
    EXPECT_EQ(view.text, "2024-03-21 08:30:42");
    EXPECT_FALSE(view.corner);
}

TEST_F(DateTimeCtrlTest, OkWithoutAChangeTellsNothing) {
    Open();
    calendar.OnOk();
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(view.closed, 1);
}

TEST_F(DateTimeCtrlTest, WhatWasChosenAndCancelledIsForgottenAtTheNextOpening) {
    Open();
    calendar.OnMonth(1);
    calendar.OnTimePressed(TimePart::Hour);
    calendar.OnTyped("23");
    calendar.Hide();
    Open();
    EXPECT_EQ(view.state.heading, "March  2024");
    EXPECT_EQ(view.state.hour, "08");
    EXPECT_FALSE(view.state.typing);
    EXPECT_TRUE(told.empty());
}

TEST_F(DateTimeCtrlTest, ADateOnlyCalendarTakesADayAtMidnight) {
    date.SetDateOnly(true);
    Open();
    EXPECT_TRUE(view.state.dateOnly);
    calendar.OnDay(Cell(15));
    EXPECT_FALSE(view.corner) << "the day that stands there closes it too";
    EXPECT_TRUE(told.empty());
    Open();
    calendar.OnDay(Cell(1));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], Util::_datetime_t(0, 0, 0, 1, 3, 2024));
    EXPECT_FALSE(view.corner);
}

TEST_F(DateTimeCtrlTest, APressedHourIsAnEditUntilEnter) {
    Open();
    calendar.OnTimePressed(TimePart::Hour);
    EXPECT_EQ(view.state.typing, TimePart::Hour);
    EXPECT_EQ(view.edit, "08");
    calendar.OnTyped("23");
    calendar.OnTypingDone();
    EXPECT_FALSE(view.state.typing);
    EXPECT_EQ(view.state.hour, "23");
}

TEST_F(DateTimeCtrlTest, AnHourOutOfRangeIsDropped) {
    Open();
    calendar.OnTimePressed(TimePart::Hour);
    calendar.OnTyped("24");
    calendar.OnTypingDone();
    EXPECT_EQ(view.state.hour, "08");
    calendar.OnTimePressed(TimePart::Minute);
    calendar.OnTyped("60");
    calendar.OnTypingDone();
    EXPECT_EQ(view.state.minute, "30");
}

TEST_F(DateTimeCtrlTest, ThePartThatIsTypedIsTakenByAPressElsewhere) {
    Open();
    calendar.OnTimePressed(TimePart::Hour);
    calendar.OnTyped("17");
    calendar.OnTimePressed(TimePart::Minute);
    EXPECT_EQ(view.state.hour, "17");
    EXPECT_EQ(view.state.typing, TimePart::Minute);
    calendar.OnTyped("05");
    calendar.OnDay(Cell(16));
    EXPECT_EQ(view.state.minute, "05");
    calendar.OnOk();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], Util::_datetime_t(42, 5, 17, 16, 3, 2024));
}

TEST_F(DateTimeCtrlTest, ArrowsStepFromWhatIsTypedAndWrap) {
    Open();
    calendar.OnStep(1);
    EXPECT_EQ(view.edit, "") << "nothing is typed";
    calendar.OnTimePressed(TimePart::Hour);
    calendar.OnTyped("23");
    calendar.OnStep(1);
    EXPECT_EQ(view.edit, "00");
    calendar.OnStep(-1);
    EXPECT_EQ(view.edit, "23");
    calendar.OnTimePressed(TimePart::Minute);
    calendar.OnTyped("59");
    calendar.OnStep(1);
    EXPECT_EQ(view.edit, "00");
}

TEST_F(DateTimeCtrlTest, EnterEndsTheTypingAndOtherKeysAreTheEdits) {
    Open();
    calendar.OnTimePressed(TimePart::Hour);
    calendar.OnTyped("17");
    EXPECT_FALSE(calendar.OnKey(Key::Left));
    EXPECT_EQ(view.state.typing, TimePart::Hour);
    EXPECT_TRUE(calendar.OnKey(Key::Enter));
    EXPECT_FALSE(view.state.typing);
    EXPECT_EQ(view.state.hour, "17");
}

TEST_F(DateTimeCtrlTest, ADateTypedAsATextIsTakenByEnter) {
    for (const char* typed : {"2026-11-23 14:05", "23.11.2026 14:05", "23 Nov 2026 14:05"}) {
        date.SetValue(first);
        Open();
        calendar.OnTextTyped("2");
        EXPECT_EQ(view.state.text, "2");
        EXPECT_EQ(view.state.note, "");
        calendar.OnTextTyped(typed);
        EXPECT_EQ(view.state.note, "IDS_VIEW_READAS 2026-11-23 14:05");
        EXPECT_TRUE(calendar.OnWindowKey(Key::Enter));
        ASSERT_FALSE(told.empty());
        EXPECT_EQ(told.back(), Util::_datetime_t(42, 5, 14, 23, 11, 2026)) << typed;
        EXPECT_FALSE(view.corner);
    }
}

TEST_F(DateTimeCtrlTest, ATimeAloneIsOneOfTheSelectedDay) {
    Open();
    calendar.OnDay(Cell(20));
    calendar.OnTextTyped("7:45");
    EXPECT_EQ(view.state.note, "IDS_VIEW_READAS 2024-03-20 07:45");
    calendar.OnOk();
    EXPECT_EQ(date.Text(), "2024-03-20 07:45:42");
}

TEST_F(DateTimeCtrlTest, ATextThatIsNoDateIsToldAndTakenByNothing) {
    Open();
    for (const char* typed : {"tomorrow", "3/4/2024", "2024-02-30", "25:00", "7:"}) {
        calendar.OnTextTyped(typed);
        EXPECT_EQ(view.state.note, "") << typed;
        EXPECT_TRUE(calendar.OnWindowKey(Key::Enter));
        EXPECT_EQ(view.state.note, "IDS_VIEW_DATENOTREAD") << typed;
        calendar.OnOk();
        EXPECT_TRUE(view.corner) << typed;
    }
    EXPECT_TRUE(told.empty());
    calendar.OnTextTyped("");
    EXPECT_FALSE(view.state.text.has_value());
    EXPECT_EQ(view.state.note, "");
    calendar.OnOk();
    EXPECT_TRUE(told.empty());
    EXPECT_FALSE(view.corner);
    Open();
    EXPECT_FALSE(view.state.text.has_value()) << "what was typed is forgotten";
}

TEST_F(DateTimeCtrlTest, WithoutATimeTheDayIsTyped) {
    date.SetDateOnly(true);
    Open();
    calendar.OnTextTyped("2026-11-23");
    EXPECT_EQ(view.state.note, "IDS_VIEW_READAS 2026-11-23");
    EXPECT_TRUE(calendar.OnWindowKey(Key::Enter));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], Util::_datetime_t(0, 0, 0, 23, 11, 2026));
}

}  // namespace Tarvik::Seaplan

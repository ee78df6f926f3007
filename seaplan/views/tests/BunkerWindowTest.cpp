// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QLabel>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

class BunkerWindowTest : public ViewsFixture {
  protected:
    static constexpr const char* kFields[] = {"fuelBallast",  "fuelLaden",     "fuelInPort", "dieselUnderWay",
                                              "dieselInPort", "waterUnderWay", "waterInPort"};

    BunkerWindow& Window() { return *views.FiguresWindow(); }
    QLineEdit& Field(const char* name) { return *Find<QLineEdit>(Window(), name); }
    QAbstractButton& Button(const char* name) { return *Find<QAbstractButton>(Window(), name); }
    QString Title() { return Find<QLabel>(Window(), "captionLabel")->text(); }
    void OpenFigures(const std::string& voyage) {
        OpenVoyage(voyage);
        ClickPart(voyage, "Voyage.child.svr5");
        Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    }
    static void Type(QLineEdit& field, const char* text) {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
        QApplication::processEvents();
    }
};

}  // namespace

TEST_F(BunkerWindowTest, ItOpensBesideTheTreeWithTheVoyagesName) {
    OpenFigures("Far East 12");
    ASSERT_NE(views.FiguresWindow(), nullptr);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Window().pos(), Tree().mapToGlobal(QPoint(Tree().width(), 0)) + QPoint(9, 30));
    EXPECT_EQ(Title(), "Consumption - Far East 12");
    for (const char* field : kFields) {
        EXPECT_EQ(Field(field).text(), "0") << field;
        EXPECT_TRUE(Field(field).isEnabled()) << field;
        EXPECT_FALSE(Field(field).accessibleName().isEmpty()) << field;
        EXPECT_EQ(Field(field).width(), 60) << field;
    }
}

TEST_F(BunkerWindowTest, FiguresAreTypedAndSavedWithTheKeyboardAlone) {
    OpenFigures("Far East 12");
    ASSERT_EQ(QApplication::focusWidget(), &Field("fuelBallast"));
    const char* figures[] = {"11", "22", "33", "44", "55", "66", "77"};
    for (int i = 0; i < 7; ++i) {
        ASSERT_EQ(QApplication::focusWidget(), &Field(kFields[i])) << i;
        QTest::keyClicks(QApplication::focusWidget(), figures[i]);
        QApplication::processEvents();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(Find<QLabel>(Window(), "changedMark")->isVisible());
    QTest::keyClick(&Field("waterInPort"), Qt::Key_S, Qt::ControlModifier);
    // A button shows for a moment that it is down before it acts.
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return desk.Count(Ask::kSaveFigures,
                          R"(vfn:"11",vff:"22",vfa:"33",vdn:"44",vda:"55",vwn:"66",vwa:"77"})") == 1;
    }));
    EXPECT_FALSE(Find<QLabel>(Window(), "changedMark")->isVisible());
    EXPECT_FALSE(Button("saveFiguresButton").isEnabled());
    QTest::keyClick(&Field("waterInPort"), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_FALSE(Window().isVisible());
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(BunkerWindowTest, ARefusedNumberIsToldAndTheFieldReturns) {
    OpenFigures("Far East 12");
    Type(Field("fuelLaden"), "5000012");
    ASSERT_FALSE(messages.messages.empty());
    EXPECT_EQ(messages.messages[0].text, "Only whole numbers from 0 to 500000 can be entered here.");
    EXPECT_LE(Field("fuelLaden").text().toInt(), 500000);
    Press(Window(), "undoFiguresButton");
    EXPECT_EQ(Field("fuelLaden").text(), "0");
    EXPECT_FALSE(Button("undoFiguresButton").isEnabled());
}

TEST_F(BunkerWindowTest, TheTitleFollowsTheVoyageThatWasClicked) {
    OpenFigures("Far East 12");
    Type(Field("fuelLaden"), "12");
    ClickRow("Baltic feeder");
    ClickPart("Baltic feeder", "Voyage.child.svr4");
    EXPECT_EQ(Title(), "Consumption - Baltic feeder");
    Press(Window(), "saveFiguresButton");
    EXPECT_EQ(desk.Count(Ask::kSaveFigures, desk.Voyage("Baltic feeder").vi), 1);
}

TEST_F(BunkerWindowTest, AFinishedVoyagesFieldsAreOffAndTellWhy) {
    desk.clock.SetUtc(2025, 1, 1);
    OpenFigures("Far East 12");
    for (const char* field : kFields) {
        EXPECT_FALSE(Field(field).isEnabled()) << field;
        EXPECT_TRUE(Field(field).toolTip().contains("finished")) << field;
    }
    EXPECT_FALSE(Button("saveFiguresButton").isEnabled());
    EXPECT_FALSE(Button("undoFiguresButton").isEnabled());
}

TEST_F(BunkerWindowTest, EveryButtonHasANameATipAndAReasonWhenItIsOff) {
    OpenFigures("Far East 12");
    for (QAbstractButton* button : Window().findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(button->objectName().isEmpty());
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
    }
    EXPECT_TRUE(Button("saveFiguresButton").toolTip().contains("nothing to save"));
}

TEST_F(BunkerWindowTest, KeysThatComeInOneBatchSaveTheWholeNumber) {
    OpenFigures("Far East 12");
    // No event is delivered between the keys.
    QTest::keyClicks(&Field("fuelBallast"), "37");
    QTest::keyClick(&Field("fuelBallast"), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return desk.Count(Ask::kSaveFigures, R"(vfn:"37")") == 1; }));
    EXPECT_FALSE(Button("saveFiguresButton").isEnabled());
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(BunkerWindowTest, AKeyBeforeThePressOfTheCloseButtonIsAskedAbout) {
    OpenFigures("Far East 12");
    QTest::keyClicks(&Field("fuelBallast"), "37");
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    Press(Window(), "closeButton");
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_FALSE(Window().isVisible());
    EXPECT_EQ(desk.Count(Ask::kSaveFigures, R"(vfn:"37")"), 1);
}

TEST_F(BunkerWindowTest, OfARefusedNumberNotEvenTheFirstLettersAreSaved) {
    OpenFigures("Far East 12");
    QTest::keyClicks(&Field("fuelBallast"), "5000012");
    QTest::keyClick(&Field("fuelBallast"), Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(desk.Count(Ask::kSaveFigures), 0);
}

TEST_F(BunkerWindowTest, ABoxLeavesTheKeyboardInItsField) {
    OpenFigures("Far East 12");
    Type(Field("fuelLaden"), "5000012");
    ASSERT_FALSE(messages.messages.empty());
    EXPECT_EQ(QApplication::focusWidget(), &Field("fuelLaden"));
}

TEST_F(BunkerWindowTest, ASwitchOfLanguageChangesItWhileItIsHidden) {
    OpenFigures("Far East 12");
    Window().hide();
    const FileTexts chinese(std::string(SEAPLAN_LANG_DIR) + "/seaplan.zh-CN.json");
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(Title(), "消耗设置 - Far East 12");
    EXPECT_EQ(Button("saveFiguresButton").text(), "保存");
    EXPECT_FALSE(Window().isVisible());
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWindow>
#include <memory>
#include <utility>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/PlanTerms.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/skin/WindowMessages.h>

#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/PortCallWindowFixture.h"

namespace Tarvik::Seaplan {

TEST_F(PortCallWindowTest, TypingOpensTheMatchesAndTheArrowsTakeOne) {
    OpenPortCalls("North Sea");
    ClickCell(0, ColPort);
    QTest::keyClicks(&PortEditor(), "ro");
    ASSERT_TRUE(Matches().isVisible());
    EXPECT_EQ(Matches().count(), 3);
    EXPECT_EQ(Matches().height(), 3 * 23 + 2);
    QTest::keyClick(&PortEditor(), Qt::Key_Down);
    QTest::keyClick(&PortEditor(), Qt::Key_Down);
    EXPECT_EQ(PortEditor().text(), "ROTTERDAM");
    QTest::keyClick(&PortEditor(), Qt::Key_Return);
    EXPECT_FALSE(Matches().isVisible());
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    QTest::keyClicks(&PortEditor(), "ha");
    ClickItem(Matches(), 0);
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    EXPECT_FALSE(PortEditor().isVisible());
}

TEST_F(PortCallWindowTest, TheMatchesGoWithThePortEditor) {
    OpenPortCalls("North Sea");
    PortCalls().activateWindow();
    int row = 0;
    for (const char* typed : {"ROTTERDAM", "rotterdam", "ha"}) {
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            ClickCell(row, ColPort);
            QTest::keyClicks(&PortEditor(), typed);
            QTest::keyClick(&PortEditor(), key);
            QApplication::processEvents();
            EXPECT_FALSE(Matches().isVisible()) << typed << " " << key;
            EXPECT_NE(PortEditor().hasFocus(), PortEditor().isHidden()) << typed << " " << key;
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            ++row;
        }
    }
    EXPECT_EQ(Cell(3, ColPort), "ROTTERDAM") << "Shift+Tab takes what was typed, too";
}

TEST_F(PortCallWindowTest, AMatchWindowTellsItsChoice) {
    OpenPortCalls("North Sea");
    ClickCell(0, ColPort);
    PortEditor().clearFocus();
    Skin::MatchMovedEvent moved("GDANSK");
    QApplication::sendEvent(&PortCalls(), &moved);
    EXPECT_EQ(PortEditor().text(), "GDANSK");
    Skin::MatchChosenEvent chosen;
    QApplication::sendEvent(&PortCalls(), &chosen);
    EXPECT_EQ(Cell(0, ColPort), "GDANSK");
    EXPECT_FALSE(PortEditor().isVisible());
}

TEST_F(PortCallWindowTest, AMatchWindowThatItsOwnerDestroysIsForgotten) {
    auto window = std::make_unique<QWidget>();
    const auto search = Interface::Offer(
        Interface::Bus::MatchPorts, [&window](const Interface::MatchPortQuery&) -> Interface::OpaqueWindow* {
            return reinterpret_cast<Interface::OpaqueWindow*>(window.get());
        });
    OpenPortCalls("North Sea");
    ClickCell(0, ColPort);
    QTest::keyClicks(&PortEditor(), "ro");
    ASSERT_TRUE(window->isVisible());
    const auto first = std::move(window);
    window = std::make_unique<QWidget>();
    QTest::keyClicks(&PortEditor(), "t");
    EXPECT_FALSE(first->isVisible()) << "one window of matches at a time";
    EXPECT_TRUE(window->isVisible());
    window.reset();
    QTest::keyClick(&PortEditor(), Qt::Key_Escape);
    PortEditor().selectAll();
    QTest::keyClicks(&PortEditor(), "ROUEN");
    QTest::keyClick(&PortEditor(), Qt::Key_Return);
    EXPECT_EQ(Cell(0, ColPort), "ROUEN");
}

TEST_F(PortCallWindowTest, APurposeIsChosenByMouseOrKeyboard) {
    OpenPortCalls("Far East 12");
    ClickCell(1, ColPurpose);
    ASSERT_TRUE(Purposes().isVisible());
    EXPECT_EQ(Purposes().count(), static_cast<int>(Interface::kPurposes.size()));
    ClickItem(Purposes(), 9);
    EXPECT_EQ(Cell(1, ColPurpose), "Z");
    EXPECT_FALSE(Purposes().isVisible());
    const auto present = std::find_if(
        Interface::kPurposes.begin(), Interface::kPurposes.end(),
        [code = Cell(2, ColPurpose)](const Interface::Purpose& purpose) { return code == purpose.code; });
    ASSERT_NE(present, Interface::kPurposes.begin());
    ClickCell(2, ColPurpose);
    QTest::keyClick(&Purposes(), Qt::Key_Up);
    QTest::keyClick(&Purposes(), Qt::Key_Return);
    EXPECT_EQ(Cell(2, ColPurpose), (present - 1)->code) << "the one before the present";
    ClickCell(3, ColPurpose);
    QTest::keyClick(&Purposes(), Qt::Key_Escape);
    EXPECT_FALSE(Purposes().isVisible());
    EXPECT_EQ(Cell(3, ColPurpose), "D");
}

TEST_F(PortCallWindowTest, APressOutsideTheTableEndsTheEditing) {
    OpenPortCalls("Far East 12");
    ClickCell(1, ColPort);
    PortEditor().setText("ROUEN");
    QTest::mouseClick(Find<QLabel>(PortCalls(), "totalDistance"), Qt::LeftButton);
    EXPECT_FALSE(PortEditor().isVisible());
    EXPECT_EQ(Cell(1, ColPort), "ROUEN");
    ClickCell(1, ColPort);
    PortEditor().setText("HAMBURG");
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, QPoint(100, 380));
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
}

TEST_F(PortCallWindowTest, ASecondPressOnATimeClosesItsCalendar) {
    OpenPortCalls("Far East 12");
    ClickCell(1, ColEtd);
    ASSERT_TRUE(Calendar().isVisible());
    const QPoint cell =
        Table().viewport()->mapToGlobal(Table().visualRect(Table().model()->index(1, ColEtd)).center());
    // Through the window system, which gives a press outside to what lies there.
    QTest::mouseClick(Calendar().windowHandle(), Qt::LeftButton, {}, Calendar().mapFromGlobal(cell));
    QApplication::processEvents();
    EXPECT_FALSE(Calendar().isVisible());
}

TEST_F(PortCallWindowTest, TheCalendarChangesATime) {
    OpenPortCalls("Far East 12");
    ClickCell(1, ColEtd);
    ASSERT_TRUE(Calendar().isVisible());
    QTest::mouseClick(Find<QAbstractButton>(Calendar(), "nextMonth"), Qt::LeftButton);
    QTest::mouseClick(Find<QAbstractButton>(Calendar(), "calendarOk"), Qt::LeftButton);
    EXPECT_FALSE(Calendar().isVisible());
    EXPECT_EQ(Cell(1, ColEtd), "2024-04-01 09:34:09");
    ClickCell(1, ColEtd);
    QTest::mouseClick(Find<QAbstractButton>(Calendar(), "calendarCancel"), Qt::LeftButton);
    EXPECT_EQ(Cell(1, ColEtd), "2024-04-01 09:34:09");
}

TEST_F(PortCallWindowTest, KeysMoveDeleteAndOpen) {
    OpenPortCalls("Far East 12");
    Table().setCurrentIndex(Table().model()->index(2, ColPort));
    QTest::keyClick(&Table(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Cell(1, ColPort), "COLOMBO");
    QTest::keyClick(&Table(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Cell(2, ColPort), "COLOMBO");
    QTest::keyClick(&Table(), Qt::Key_Delete);
    EXPECT_EQ(Cell(2, ColPort), "SINGAPORE");
    Table().setCurrentIndex(Table().model()->index(1, ColSpeed));
    QTest::keyClick(&Table(), Qt::Key_F2);
    ASSERT_TRUE(SpeedEditor().isVisible());
    EXPECT_EQ(SpeedEditor().selectedText(), "16.50");
    QTest::keyClick(&SpeedEditor(), Qt::Key_Escape);
    EXPECT_FALSE(SpeedEditor().isVisible());
    Table().setCurrentIndex(Table().model()->index(1, ColPort));
    QTest::keyClick(&Table(), Qt::Key_Return);
    EXPECT_TRUE(PortEditor().isVisible());
}

TEST_F(PortCallWindowTest, ACommandsKeyTakesTheTextBeingTypedFirst) {
    ASSERT_NO_FATAL_FAILURE(TypeTwoPorts());
    ASSERT_FALSE(Find<QAbstractButton>(PortCalls(), "calculateButton")->isEnabled());
    QTest::keyClick(&PortEditor(), Qt::Key_F9);
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    EXPECT_EQ(Cell(1, ColSteamTime), "1.00");
    ClickCell(1, ColSpeed);
    QTest::keyClicks(&SpeedEditor(), "12");
    QTest::keyClick(&SpeedEditor(), Qt::Key_S, Qt::ControlModifier);
    ASSERT_EQ(desk.Count(Ask::kSavePortCalls), 1);
    EXPECT_FLOAT_EQ(desk.Voyage("North Sea").portCalls.at(1).psp, 12.0F);
}

TEST_F(PortCallWindowTest, AKeyActsAtOnceAndEachTime) {
    ASSERT_NO_FATAL_FAILURE(TypeTwoPorts());
    QTest::keyClick(&PortEditor(), Qt::Key_Return);
    desk.ForgetRecords();
    for (int pressed = 1; pressed <= 3; ++pressed) {
        QTest::keyClick(&PortCalls(), Qt::Key_F9);
        EXPECT_EQ(desk.Count(Ask::kRoute), pressed);
    }
    auto* save = Find<QAbstractButton>(PortCalls(), "saveButton");
    QTest::keyClick(&PortCalls(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls), 1);
    EXPECT_FALSE(save->isEnabled());
    QTest::keyClick(&PortCalls(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls), 1) << "a button that is off has no key";
    EXPECT_TRUE(Find<QAbstractButton>(PortCalls(), "closeButton")->toolTip().endsWith("(Ctrl+W)"));
    QTest::keyClick(&PortCalls(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(PortCalls().isVisible());
}

TEST_F(PortCallWindowTest, ScrollingEndsTheEditing) {
    OpenPortCalls("Far East 12");
    for (int row = 5; row < 14; ++row) {
        ClickCell(5, ColSteamTime), views.PortCalls().Cells().OnCellClicked(row, ColOrder);
    }
    ClickCell(1, ColSpeed);
    ASSERT_TRUE(SpeedEditor().isVisible());
    SpeedEditor().setText("14");
    ASSERT_GT(Table().verticalScrollBar()->maximum(), 0);
    Table().verticalScrollBar()->setValue(Table().verticalScrollBar()->maximum());
    EXPECT_FALSE(SpeedEditor().isVisible());
    EXPECT_EQ(Cell(1, ColSpeed), "14.00");
}

TEST_F(PortCallWindowTest, AnEditorStaysOpenWhileItsOwnMenuIs) {
    OpenPortCalls("Far East 12");
    for (QLineEdit* editor : {&SpeedEditor(), &WeatherEditor()}) {
        ClickCell(1, editor == &SpeedEditor() ? ColSpeed : ColWeather);
        ASSERT_TRUE(editor->isVisible());
        QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
        QApplication::sendEvent(editor, &toMenu);
        EXPECT_TRUE(editor->isVisible()) << editor->objectName().toStdString();
        QMenu menu(editor);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&menu, &press);
        EXPECT_TRUE(editor->isVisible()) << editor->objectName().toStdString();
        QFocusEvent away(QEvent::FocusOut, Qt::OtherFocusReason);
        QApplication::sendEvent(editor, &away);
        QApplication::processEvents();
        EXPECT_FALSE(editor->isVisible()) << "left for good";
    }
}

TEST_F(PortCallWindowTest, DownLeavesAnEditorForTheCellBelowWhereTypingGoesOn) {
    OpenPortCalls("Far East 12");
    ClickCell(1, ColSpeed);
    QTest::keyClicks(&SpeedEditor(), "17");
    QTest::keyClick(&SpeedEditor(), Qt::Key_Down);
    EXPECT_EQ(Cell(1, ColSpeed), "17.00");
    EXPECT_FALSE(SpeedEditor().isVisible());
    EXPECT_EQ(Table().currentIndex(), Table().model()->index(2, ColSpeed));
    EXPECT_TRUE(Table().hasFocus());
    QTest::keyClicks(&Table(), "1");
    EXPECT_TRUE(SpeedEditor().isVisible());
    EXPECT_EQ(SpeedEditor().text(), "1");
}

TEST_F(PortCallWindowTest, KeysWithoutUseInAnEditorStayThere) {
    OpenPortCalls("Far East 12");
    for (QLineEdit* editor : {&SpeedEditor(), &WeatherEditor()}) {
        ClickCell(2, editor == &SpeedEditor() ? ColSpeed : ColWeather);
        for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Insert}) {
            QTest::keyClick(editor, key);
            EXPECT_TRUE(editor->isVisible()) << key;
            EXPECT_EQ(Table().currentIndex().row(), 2) << key;
        }
    }
}

}  // namespace Tarvik::Seaplan

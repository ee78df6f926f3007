// SPDX-License-Identifier: MIT
#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWindow>
#include <memory>
#include <utility>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/PlanTerms.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/skin/WindowMessages.h>

#include "seaplan/views/portcall/PortCallDelegate.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

class PortCallWindowTest : public ViewsFixture {
  protected:
    PortCallTableView& Table() { return *Find<PortCallTableView>(PortCalls(), "portCallTable"); }
    QLineEdit& PortEditor() { return *Find<QLineEdit>(PortCalls(), "portEditor"); }
    QLineEdit& SpeedEditor() { return *Find<QLineEdit>(PortCalls(), "speedEditor"); }
    QLineEdit& WeatherEditor() { return *Find<QLineEdit>(PortCalls(), "weatherEditor"); }
    QListWidget& Purposes() { return *Find<QListWidget>(PortCalls(), "purposeList"); }
    QListWidget& Matches() { return *Find<QListWidget>(PortCalls(), "portMatches"); }
    QWidget& Calendar() { return *Find<QWidget>(PortCalls(), "calendarPopup"); }
    QString Cell(int row, int column) { return Table().model()->index(row, column).data().toString(); }
    void ClickCell(int row, int column) {
        const QRect cell = Table().visualRect(Table().model()->index(row, column));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, cell.center());
        QApplication::processEvents();
    }
    /// Clicks one of the images at a row's end.
    void ClickImage(int row, int image) {
        const QRect cell = Table().visualRect(Table().model()->index(row, PortCallModel::kImageColumn));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {},
                          QPoint(cell.left() + 12 + 20 * image, cell.center().y()));
    }
    static void ClickItem(QListWidget& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        QApplication::processEvents();
    }
    void Button(const char* name) { Press(PortCalls(), name); }
};

}  // namespace

TEST_F(PortCallWindowTest, ItOpensBesideTheTreeWithTheVoyagesRows) {
    OpenPortCalls("Far East 12");
    EXPECT_TRUE(PortCalls().isVisible());
    EXPECT_EQ(PortCalls().objectName(), "portCallPanel");
    const QPoint corner = Tree().mapToGlobal(QPoint(Tree().width(), 0));
    EXPECT_EQ(PortCalls().pos(), corner + QPoint(9, 30));
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    EXPECT_EQ(Cell(6, ColOrder), "RES");
    EXPECT_EQ(Find<QLabel>(PortCalls(), "totalDistance")->text(), "10507.0");
    const int widths[] = {35, 120, 40, 45, 55, 55, 55, 125, 125, 60};
    for (int column = 0; column <= ColDistance; ++column) {
        EXPECT_EQ(Table().columnWidth(column), widths[column]) << column;
    }
    EXPECT_EQ(Table().rowHeight(0), 20);
}

TEST_F(PortCallWindowTest, EveryControlHasAnAccessibleNameAndATip) {
    OpenPortCalls("Far East 12");
    for (QAbstractButton* button : PortCalls().findChildren<QAbstractButton*>()) {
        if (button->objectName().startsWith("qt_") || button->parentWidget() == &Table()) {
            continue;
        }
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->objectName().isEmpty());
    }
    for (const char* name : {"portCallTable", "portEditor", "speedEditor", "weatherEditor", "purposeList",
                             "portMatches", "averageSpeed", "totalDistance", "totalTime"}) {
        EXPECT_FALSE(Find<QWidget>(PortCalls(), name)->accessibleName().isEmpty()) << name;
    }
}

TEST_F(PortCallWindowTest, ADisabledButtonTellsWhy) {
    OpenPortCalls("North Sea");
    auto* calculate = Find<QAbstractButton>(PortCalls(), "calculateButton");
    EXPECT_FALSE(calculate->isEnabled());
    EXPECT_TRUE(calculate->toolTip().contains("two different ports"));
    EXPECT_FALSE(Find<QAbstractButton>(PortCalls(), "saveButton")->isEnabled());
    EXPECT_TRUE(Find<QAbstractButton>(PortCalls(), "clearButton")->isEnabled());
}

TEST_F(PortCallWindowTest, AVoyageIsPlannedFromTheKeyboard) {
    OpenPortCalls("North Sea");
    ClickCell(0, ColPort);
    ASSERT_TRUE(PortEditor().isVisible());
    QTest::keyClicks(&PortEditor(), "ROTTERDAM");
    QTest::keyClick(&PortEditor(), Qt::Key_Tab);
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    ASSERT_TRUE(PortEditor().isVisible());
    QTest::keyClicks(&PortEditor(), "hamburg");
    QTest::keyClick(&PortEditor(), Qt::Key_Tab);
    ASSERT_TRUE(SpeedEditor().isVisible());
    QTest::keyClicks(&SpeedEditor(), "12");
    QTest::keyClick(&SpeedEditor(), Qt::Key_Tab);
    ASSERT_TRUE(WeatherEditor().isVisible());
    QTest::keyClicks(&WeatherEditor(), "20");
    QTest::keyClick(&WeatherEditor(), Qt::Key_Tab);
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    EXPECT_EQ(Cell(1, ColWeather), "20%");
    Button("calculateButton");
    EXPECT_EQ(Cell(1, ColSteamTime), "1.04");
    auto* mark = Find<QLabel>(PortCalls(), "changedMark");
    EXPECT_TRUE(mark->isVisible());
    Button("saveButton");
    EXPECT_FALSE(mark->isVisible());
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls, "HAMBURG"), 1);
    EXPECT_EQ(desk.Voyage("North Sea").portCalls.size(), 2U);
    EXPECT_TRUE(Shows("North Sea", "Voyage_Date"));
    EXPECT_TRUE(messages.messages.empty());
}

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
    ClickCell(2, ColPurpose);
    QTest::keyClick(&Purposes(), Qt::Key_Down);
    QTest::keyClick(&Purposes(), Qt::Key_Return);
    EXPECT_EQ(Cell(2, ColPurpose), "2");
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

TEST_F(PortCallWindowTest, TheImagesOfARowMoveAndDeleteIt) {
    OpenPortCalls("Far East 12");
    ClickImage(2, 0);
    EXPECT_EQ(Cell(1, ColPort), "COLOMBO");
    ClickImage(1, 1);
    EXPECT_EQ(Cell(2, ColPort), "COLOMBO");
    ClickImage(2, 2);
    EXPECT_EQ(Cell(2, ColPort), "SINGAPORE");
    EXPECT_FALSE(PortEditor().isVisible());
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
    OpenPortCalls("North Sea");
    PortCalls().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&PortCalls()));
    ClickCell(0, ColPort);
    QTest::keyClicks(&PortEditor(), "ROTTERDAM");
    QTest::keyClick(&PortEditor(), Qt::Key_Return);
    QTest::keyClicks(&PortEditor(), "HAMBURG");
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
    OpenPortCalls("North Sea");
    PortCalls().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&PortCalls()));
    ClickCell(0, ColPort);
    QTest::keyClicks(&PortEditor(), "ROTTERDAM");
    QTest::keyClick(&PortEditor(), Qt::Key_Return);
    QTest::keyClicks(&PortEditor(), "HAMBURG");
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

TEST_F(PortCallWindowTest, TheUnitMenusChangeTheTable) {
    OpenPortCalls("Far East 12");
    Button("averageSpeedUnit");
    auto* menu = PortCalls().findChild<QMenu*>("unitMenu");
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions()[1]->text(), "KPH");
    menu->actions()[1]->trigger();
    EXPECT_EQ(Cell(1, ColSpeed), "30.56");
    EXPECT_EQ(Find<QAbstractButton>(PortCalls(), "averageSpeedUnit")->text(), "KPH");
    EXPECT_TRUE(
        Table().model()->headerData(ColSpeed, Qt::Horizontal, Qt::DisplayRole).toString().contains("KPH"));
    menu->close();
}

TEST_F(PortCallWindowTest, AnUnknownPortTellsSo) {
    OpenPortCalls("North Sea");
    ClickCell(0, ColPort);
    QTest::keyClicks(&PortEditor(), "Atlantis");
    QTest::keyClick(&PortEditor(), Qt::Key_Return);
    const QModelIndex cell = Table().model()->index(0, ColPort);
    EXPECT_EQ(cell.data().toString(), "Atlantis");
    EXPECT_TRUE(cell.data(Qt::ToolTipRole).toString().contains("No port has this name"));
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

TEST_F(PortCallWindowTest, ClosingAsksAboutChanges) {
    OpenPortCalls("Far East 12");
    ClickCell(1, ColSpeed);
    QTest::keyClicks(&SpeedEditor(), "14");
    messages.Answer(Interface::SysMsgHandleRes::No);
    Button("closeButton");
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_TRUE(PortCalls().isVisible());
    EXPECT_TRUE(PortCalls().isEnabled());
    EXPECT_EQ(messages.messages[0].owner, &PortCalls());
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    Button("closeButton");
    EXPECT_FALSE(PortCalls().isVisible());
}

TEST_F(PortCallWindowTest, AClosingWindowSystemIsAnsweredLikeTheCloseButton) {
    OpenPortCalls("Far East 12");
    ClickCell(1, ColSpeed);
    QTest::keyClicks(&SpeedEditor(), "14");
    messages.Answer(Interface::SysMsgHandleRes::No);
    PortCalls().windowHandle()->close();
    QApplication::processEvents();
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_TRUE(PortCalls().isVisible());
    Panel().windowHandle()->close();
    QApplication::processEvents();
    EXPECT_FALSE(Panel().isVisible());
}

TEST_F(PortCallWindowTest, LogoutHidesBothWindows) {
    OpenPortCalls("Far East 12");
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_FALSE(PortCalls().isVisible());
    EXPECT_EQ(Rows().GetRootItem(), kNoRow);
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

TEST_F(PortCallWindowTest, KeysWithoutUseInAnEditorStayThere) {
    OpenPortCalls("Far East 12");
    for (QLineEdit* editor : {&SpeedEditor(), &WeatherEditor()}) {
        ClickCell(2, editor == &SpeedEditor() ? ColSpeed : ColWeather);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Insert}) {
            QTest::keyClick(editor, key);
            EXPECT_TRUE(editor->isVisible()) << key;
            EXPECT_EQ(Table().currentIndex().row(), 2) << key;
        }
    }
}

TEST_F(PortCallWindowTest, ADisabledImageTellsWhy) {
    const RowActions none;
    EXPECT_TRUE(PortCallDelegate::ImageTip("itemMoveUp", none).contains("first row"));
    EXPECT_TRUE(PortCallDelegate::ImageTip("itemMovedown", none).contains("last port"));
    EXPECT_FALSE(PortCallDelegate::ImageTip("itemMoveUp", {true, true, true}).contains("first row"));
    OpenPortCalls("Far East 12");
    const QRect cell = Table().visualRect(Table().model()->index(0, PortCallModel::kImageColumn));
    const QPoint up(cell.left() + 12, cell.center().y());
    QHelpEvent help(QEvent::ToolTip, up, Table().viewport()->mapToGlobal(up));
    QApplication::sendEvent(Table().viewport(), &help);
    EXPECT_TRUE(QToolTip::text().contains("first row")) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

TEST_F(PortCallWindowTest, OneLineTellsOfRowsWithoutTheirRoute) {
    OpenPortCalls("Far East 12");
    auto* note = Find<QLabel>(PortCalls(), "noteLabel");
    ASSERT_NE(note, nullptr);
    EXPECT_FALSE(note->isVisible());
    const int width = PortCalls().width();
    PortCallRows other = PanelDesk::Calls(5, 3);
    desk.voyages.ResolvePortIds(other);
    VoyInfo& voyage = desk.Voyage("North Sea");
    ASSERT_EQ(desk.portCallModule.SavePortCalls(voyage.vi, other), 0)
        << "as a save that broke off behind this";
    ClickRow("North Sea");
    ClickPart("North Sea", "Voyage.child.svr4");
    EXPECT_TRUE(note->isVisible());
    EXPECT_TRUE(note->text().contains("broke off")) << note->text().toStdString();
    EXPECT_EQ(PortCalls().width(), width) << "a long line widens nothing";
    auto* zone = Find<QLabel>(PortCalls(), "zoneLabel");
    EXPECT_GE(zone->width(), zone->sizeHint().width()) << "and the zone is told whole";
    EXPECT_TRUE(Find<QLabel>(PortCalls(), "changedMark")->isVisible());
}

TEST_F(PortCallWindowTest, ClearIsImpossibleOnACorrectedVoyage) {
    constexpr int kTwelveHoursBehindTheStart = 1709640000;
    desk.AddVoyage("Container 2024", {.name = "Corrected", .calls = PanelDesk::Calls(5, 3)});
    OpenVoyage("Corrected");
    VoyInfo& voyage = desk.Voyage("Corrected");
    voyage.vsi = "7";
    voyage.vsn = "ANNA";
    voyage.lastPosText = "-1.196,0.000";
    voyage.lastPosTime = kTwelveHoursBehindTheStart;
    int applied = 0;
    ASSERT_EQ(desk.voyages.ApplyAisPosition(voyage.vi, applied), 0);
    ClickPart("Corrected", "Voyage.child.svr4");
    auto* clear = Find<QAbstractButton>(PortCalls(), "clearButton");
    EXPECT_FALSE(clear->isEnabled());
    EXPECT_TRUE(clear->toolTip().contains("AIS")) << clear->toolTip().toStdString();
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
}

TEST_F(PortCallWindowTest, TheZoneLabelFollowsTheZone) {
    OpenPortCalls("Far East 12");
    const QString eta = Cell(0, ColEta);
    desk.host.zone = "UTC";
    const std::string zone = "UTC";
    Interface::Raise(Interface::Bus::SwitchTimeZone, &zone);
    EXPECT_TRUE(Find<QLabel>(PortCalls(), "zoneLabel")->text().endsWith(" UTC"));
    EXPECT_NE(Cell(0, ColEta), eta) << "the same moment in the other zone";
    desk.host.zone = "China Standard Time";
    Interface::Raise<const std::string>(Interface::Bus::SwitchTimeZone, nullptr);
    EXPECT_TRUE(Find<QLabel>(PortCalls(), "zoneLabel")->text().endsWith("China Standard Time"));
    EXPECT_EQ(Cell(0, ColEta), eta);
}

TEST_F(PortCallWindowTest, ALanguageThatIsSwitchedWhileItIsHiddenIsTheOneItShows) {
    OpenPortCalls("Far East 12");
    Button("closeButton");
    ASSERT_FALSE(PortCalls().isVisible());
    const FileTexts chinese(std::string(SEAPLAN_LANG_DIR) + "/seaplan.zh-CN.json");
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_FALSE(PortCalls().isVisible());
    ClickPart("Far East 12", "Voyage.child.svr4");
    EXPECT_EQ(PortCalls().windowTitle(), "挂靠港");
    EXPECT_EQ(Find<QAbstractButton>(PortCalls(), "calculateButton")->text(), "计算");
}

}  // namespace Tarvik::Seaplan

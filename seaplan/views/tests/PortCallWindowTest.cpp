// SPDX-License-Identifier: MIT
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>
#include <QWindow>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/PortCallWindowFixture.h"
#include "testsupport/RecordingHost.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

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

TEST_F(PortCallWindowTest, ADisabledImageTellsWhy) {
    OpenPortCalls("Far East 12");
    const auto tip = [this](int row, const char* image) {
        const auto* rows = static_cast<const TableModel*>(Table().model());
        return rows->ImageTipAt(rows->index(row, kPortCallImageColumn), image);
    };
    EXPECT_TRUE(tip(0, "itemMoveUp").contains("first row"));
    EXPECT_FALSE(tip(1, "itemMoveUp").contains("first row"));
    int last = 0;
    while (!Cell(last + 1, ColPort).isEmpty()) {
        ++last;
    }
    EXPECT_TRUE(tip(last, "itemMovedown").contains("last port"));
    EXPECT_FALSE(tip(last - 1, "itemMovedown").contains("last port"));
    const QRect cell = Table().visualRect(Table().model()->index(0, kPortCallImageColumn));
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

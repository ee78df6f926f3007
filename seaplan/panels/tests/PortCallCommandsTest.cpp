// SPDX-License-Identifier: MIT
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "seaplan/panels/window/PanelEvents.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;
using ::testing::ElementsAre;

TEST_F(PortCallFixture, ANewVoyageOpensEmptyAndASavedOneFilled) {
    Open(fresh);
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_TRUE(view.state.canClear);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_FALSE(view.state.canOpenBook);
    EXPECT_FALSE(view.state.canCalculate);
    EXPECT_EQ(view.place.left, kTree.right + 9);
    EXPECT_EQ(view.place.top, kTree.top + 30);
    Open(kept);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_TRUE(view.state.canOpenBook);
    EXPECT_TRUE(view.state.canCalculate);
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(PortCallFixture, TotalsRowAndSummaryAreCountedDifferently) {
    SaveOther([](PortCallRows& calls) { calls[0].apt = 24; });
    Open(kept);
    EXPECT_EQ(Cell(6, ColPortTime), "1.50");
    EXPECT_EQ(Cell(6, ColSteamTime), "2.0");
    EXPECT_EQ(Cell(6, ColDistance), "480.00");
    EXPECT_EQ(Cell(6, ColEta), Cell(0, ColEta));
    EXPECT_EQ(Cell(6, ColEtd), Cell(2, ColEtd));
    EXPECT_EQ(view.state.summary.totalTime, "2.50");
    EXPECT_EQ(view.state.summary.totalDistance, "480.0");
    EXPECT_EQ(view.state.summary.averageSpeed, "8.0");
}

TEST_F(PortCallFixture, WithoutAVoyageTheFixedTextIsShownAndTheTableStaysReset) {
    panel.SetVoyage("");
    EXPECT_LT(panel.FillForVoyage(-1), 0);
    EXPECT_EQ(LastMessage(), "数据状态异常，请确认是否已登陆或者掉线？");
    EXPECT_EQ(view.table.RowCount(), 6);
    panel.SetVoyage("99");
    EXPECT_LT(panel.FillForVoyage(-1), 0);
    EXPECT_EQ(messages.messages.size(), 1U);
}

TEST_F(PortCallFixture, ChoosingAnotherVoyageLeavesTheOneOnShow) {
    Open(kept);
    panel.SetVoyage(fresh);
    Type(1, ColSpeed, "12");
    panel.Commands().OnSave();
    EXPECT_THAT(saved, ElementsAre(kept));
}

TEST_F(PortCallFixture, CalculatingANewVoyageShowsTheRouteAndWaitsForTheSave) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(0, ColPurpose), "L");
    EXPECT_EQ(Cell(1, ColPurpose), "D");
    EXPECT_EQ(Cell(0, ColEta), "2024-03-01 00:00:00");
    EXPECT_EQ(Cell(1, ColEta), "2024-03-02 00:00:00");
    EXPECT_EQ(Cell(1, ColDistance), "240.00");
    EXPECT_EQ(view.state.summary.averageSpeed, "10.0");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(saved.empty());
    panel.Commands().OnSave();
    EXPECT_THAT(saved, ElementsAre(fresh));
    EXPECT_EQ(Calculations(), 1);
    EXPECT_EQ(Saves(), 1);
    ASSERT_EQ(SavedRows(fresh).size(), 2U);
    EXPECT_EQ(SavedRows(fresh)[1].steamTime, 24.0F);
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_TRUE(view.state.canOpenBook);
    EXPECT_TRUE(view.state.canCalculate);
    EXPECT_EQ(view.busy, 0);
}

TEST_F(PortCallFixture, ARouteChosenOnTheChartBringsItsDistancesAndTimes) {
    Open(fresh);
    desk.routes->SetPassage("ROTTERDAM", "HAMBURG", 480);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    ChooseOtherPassage();
    view.state.changed = false;
    EXPECT_EQ(panel.Commands().OnRouteChosen(), 0);
    EXPECT_EQ(Cell(1, ColDistance), "480.00");
    EXPECT_EQ(Cell(1, ColEta), "2024-03-03 00:00:00");
    EXPECT_EQ(view.state.summary.totalDistance, "480.0");
    EXPECT_TRUE(view.state.changed);
    panel.Commands().OnSave();
    ASSERT_EQ(SavedRows(fresh).size(), 2U);
    EXPECT_EQ(SavedRows(fresh)[1].steamTime, 48.0F);
    EXPECT_EQ(Calculations(), 2) << "the route is not asked for again by the save";
}

TEST_F(PortCallFixture, ARouteOfOtherPortsLeavesTheTable) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    Type(1, ColPort, "GDANSK");
    EXPECT_EQ(panel.Commands().OnRouteChosen(), -2);
    EXPECT_EQ(Cell(1, ColDistance), "240.00");
}

TEST_F(PortCallFixture, ARouteChosenBesideAClosedPanelLeavesTheTable) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    view.state.changed = false;
    view.visible = false;
    EXPECT_LT(panel.Commands().OnRouteChosen(), 0);
    EXPECT_EQ(Cell(1, ColDistance), "240.00");
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, CalculatingASavedVoyageReloadsAndSavesAtOnce) {
    Open(kept);
    Type(1, ColSpeed, "12");
    view.visibility.clear();
    panel.Commands().OnCalculate();
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_THAT(view.visibility, ElementsAre("hide", "show"));
    EXPECT_GT(Drawn("TRV_MAP_DEL_OBJECT_BY_TYPE") + Drawn("TRV_MAP_DEL_OBJECTS"), 0U);
    EXPECT_GT(Drawn("TRV_MAP_ADD_LINE"), 0U);
    EXPECT_EQ(Saves(), 1);
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, NeighbouringRowsOfOnePlaceLoseTheSecond) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "EUROPOORT", "HAMBURG", "HAMBURG"});
    panel.Commands().OnCalculate();
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", " ", " ", " ", " "));
}

TEST_F(PortCallFixture, AFailedCalculationLeavesTheTableAndShowsNothing) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    desk.routes->Close(true);
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(1, ColEta), " ");
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(view.busy, 0);
}

TEST_F(PortCallFixture, SavingWithoutAChangeSendsNothing) {
    Open(kept);
    desk.ForgetRecords();
    panel.Commands().OnSave();
    EXPECT_TRUE(desk.host.requests.empty());
    EXPECT_TRUE(desk.host.chartCalls.empty());
}

TEST_F(PortCallFixture, SavingRowsWithoutDistancesCalculatesFirst) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnSave();
    EXPECT_EQ(Calculations(), 1);
    EXPECT_EQ(Saves(), 1);
    EXPECT_EQ(SavedRows(fresh)[1].distance, 240.0F);
}

TEST_F(PortCallFixture, AFailedSaveIsToldAndKeepsTheChange) {
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Refuse(Ask::kSavePortCalls);
    panel.Commands().OnSave();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
    EXPECT_TRUE(saved.empty());
    desk.Heal();
    panel.Commands().OnSave();
    EXPECT_THAT(saved, ElementsAre(kept));
}

TEST_F(PortCallFixture, OpeningAnotherVoyageSavesTheChangesOfTheEditedOne) {
    Open(kept);
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::Yes);
    Open(fresh);
    EXPECT_EQ(Line(1, true), "IDS_PORTCALL_SAVENEXT");
    EXPECT_EQ(messages.messages[0].flags, 4);
    EXPECT_EQ(Saves(), 1);
    EXPECT_EQ(SavedRows(kept)[1].psp, 12.0F);
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_TRUE(view.Enabled());
}

TEST_F(PortCallFixture, OpeningAnotherVoyageCanDropTheChanges) {
    Open(kept);
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::No);
    Open(fresh);
    EXPECT_EQ(Saves(), 0);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, TheSetPortCallsLinkOpensSixEmptyRowsOfThatVoyage) {
    Open(kept);
    panel.SetVoyage(fresh);
    desk.ForgetRecords();
    panel.Reset();
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_GT(Drawn("TRV_MAP_DEL_OBJECT_BY_TYPE"), 0U);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnSave();
    EXPECT_THAT(saved, ElementsAre(fresh));
}

TEST_F(PortCallFixture, ClosingWithChangesAsksAndNoKeepsThePanel) {
    Open(kept);
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::No);
    panel.Commands().OnClose();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLOSESAVE");
    EXPECT_TRUE(view.visible);
    EXPECT_TRUE(view.Enabled());
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    messages.Answer(SysMsgHandleRes::Yes);
    desk.ForgetRecords();
    panel.Commands().OnClose();
    EXPECT_FALSE(view.visible);
    EXPECT_TRUE(view.Enabled());
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls), 1);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, ClosingWithoutChangesAsksNothing) {
    Open(kept);
    desk.ForgetRecords();
    panel.Commands().OnClose();
    EXPECT_FALSE(view.visible);
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_TRUE(desk.host.requests.empty());
}

TEST_F(PortCallFixture, AnOpenEditorIsCommittedBeforeClosingAsks) {
    Open(kept);
    panel.Cells().OnCellClicked(1, ColSpeed);
    Retype(CellEditor::Speed, "12");
    messages.Answer(SysMsgHandleRes::No);
    panel.Commands().OnClose();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLOSESAVE");
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
}

TEST_F(PortCallFixture, ClearAsksAndEmptiesTheTable) {
    Open(kept);
    panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH");
    messages.Answer(SysMsgHandleRes::Cancel);
    panel.Commands().OnClear();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLEARFORBLANK");
    EXPECT_EQ(messages.messages[0].flags, 1);
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    EXPECT_TRUE(view.visible);
    messages.Answer(SysMsgHandleRes::Ok);
    panel.Commands().OnClear();
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_EQ(Cell(6, ColDistance), " ");
    EXPECT_EQ(view.state.summary.averageSpeed, "");
    EXPECT_EQ(view.state.speedUnit, "kts");
    EXPECT_FALSE(view.state.canOpenBook);
    EXPECT_FALSE(view.state.canCalculate);
    EXPECT_FALSE(view.state.changed);
    EXPECT_EQ(desk.voyages.RouteIsCurrent(), -1);
    EXPECT_TRUE(view.visible);
}

TEST_F(PortCallFixture, UnitsConvertTheCellsAndTheFigures) {
    Open(kept);
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH"), 0);
    EXPECT_EQ(Cell(1, ColSpeed), "18.52");
    EXPECT_EQ(view.state.speedUnit, "KPH");
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Speed, "kts"), 0);
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    const std::string eta = Cell(1, ColEta);
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Time, "hour"), 0);
    EXPECT_EQ(Cell(1, ColSteamTime), "24.00");
    EXPECT_EQ(Cell(1, ColPortTime), "12.00");
    EXPECT_EQ(Cell(1, ColEta), eta);
    EXPECT_EQ(Cell(6, ColSteamTime), "48.0");
    EXPECT_EQ(view.state.timeUnit, "hours");
    EXPECT_EQ(view.state.summary.totalTime, "60.00");
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Distance, "KM"), 0);
    EXPECT_EQ(Cell(1, ColDistance), "444.48");
    EXPECT_EQ(view.state.summary.totalDistance, "889.0");
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, ChoosingTheUnitInForceLeavesTheCells) {
    Open(kept);
    const std::string speed = Cell(1, ColSpeed);
    EXPECT_LT(panel.Commands().OnUnitChosen(UnitKind::Speed, "kts"), 0);
    EXPECT_EQ(Cell(1, ColSpeed), speed);
    EXPECT_EQ(Cell(6, ColDistance), "480.00");
}

TEST_F(PortCallFixture, BeforeTheFirstCalculationAUnitOnlyChangesItsLabel) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Distance, "KM"), -1);
    EXPECT_EQ(view.state.distanceUnit, "KM");
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(1, ColDistance), "444.48");
}

TEST_F(PortCallFixture, ARowTypedInAnotherUnitIsSavedInKnotsMilesAndHours) {
    Open(kept);
    panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH");
    Type(1, ColSpeed, "37.04");
    EXPECT_EQ(Cell(1, ColSteamTime), "0.50");
    panel.Commands().OnSave();
    EXPECT_NEAR(SavedRows(kept)[1].psp, 20.0, 1e-4);
}

TEST_F(PortCallFixture, AFailedLoadGivesAnEmptyTableWithoutMessage) {
    Open(kept);
    store.voyages[kept].portCalls.clear();
    desk.Refuse(Ask::kLoadPortCalls);
    EXPECT_EQ(panel.FillForVoyage(-1), 0);
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_EQ(view.state.summary.averageSpeed, "");
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(PortCallFixture, HelpNamesItsTopic) {
    panel.Commands().OnHelp();
    EXPECT_EQ(view.help, "func034 370x440");
}

TEST_F(PortCallFixture, ALanguageSwitchRenewsCaptionAndButton) {
    const PanelEvents<CPortCallPanelDlg> events(panel);
    Open(kept);
    texts.prefix = u"zh ";
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(view.state.caption, "zh IDS_PORTCALL_TITLE");
    EXPECT_EQ(view.state.calculateText, "zh IDS_PORTCALL_COMPUTE");
    EXPECT_EQ(view.state.summary.averageSpeed, "8.0");
}

TEST_F(PortCallFixture, LogoutHidesThePanelAndItsEditors) {
    Open(kept);
    panel.Cells().OnCellClicked(1, ColPort);
    panel.HideAfterLogout();
    EXPECT_FALSE(view.visible);
    EXPECT_FALSE(view.openEditor.has_value());
}

}  // namespace Tarvik::Seaplan

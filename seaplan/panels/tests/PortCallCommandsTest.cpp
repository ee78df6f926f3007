// SPDX-License-Identifier: MIT
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/BusContract.h>

#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;
using ::testing::ElementsAre;

TEST_F(PortCallFixture, ANewVoyageOpensEmptyAndASavedOneFilled) {
    Open("10");
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_TRUE(view.state.canClear);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_FALSE(view.state.canOpenBook);
    EXPECT_FALSE(view.state.canCalculate);
    EXPECT_TRUE(view.besideTree);
    Open("20");
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_TRUE(view.state.canOpenBook);
    EXPECT_TRUE(view.state.canCalculate);
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(PortCallFixture, TotalsRowAndSummaryAreCountedDifferently) {
    schedule.onServer["20"][0].apt = 24;
    Open("20");
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
    Open("20");
    panel.SetVoyage("10");
    Type(1, ColSpeed, "12");
    panel.Commands().OnSave();
    EXPECT_THAT(saved, ElementsAre("20"));
}

TEST_F(PortCallFixture, CalculatingANewVoyageShowsTheRouteAndWaitsForTheSave) {
    Open("10");
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
    EXPECT_THAT(saved, ElementsAre("10"));
    EXPECT_EQ(Calls("Calculate 2"), 1);
    EXPECT_EQ(Calls("SaveSchedule 10 1"), 1);
    ASSERT_EQ(schedule.savedRows.size(), 2U);
    EXPECT_EQ(schedule.savedRows[1].steamTime, 24.0F);
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_TRUE(view.state.canOpenBook);
    EXPECT_TRUE(view.state.canCalculate);
    EXPECT_EQ(view.busy, 0);
}

TEST_F(PortCallFixture, ARouteChosenOnTheChartBringsItsDistancesAndTimes) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    view.state.changed = false;
    EXPECT_EQ(panel.Commands().OnRouteChosen(), 0);
    EXPECT_EQ(Cell(1, ColDistance), "480.00");
    EXPECT_EQ(Cell(1, ColEta), "2024-03-03 00:00:00");
    EXPECT_EQ(view.state.summary.totalDistance, "480.0");
    EXPECT_TRUE(view.state.changed);
    panel.Commands().OnSave();
    ASSERT_EQ(schedule.savedRows.size(), 2U);
    EXPECT_EQ(schedule.savedRows[1].steamTime, 48.0F);
    EXPECT_EQ(Calls("Calculate 2"), 1) << "the route is not asked for again";
}

TEST_F(PortCallFixture, ARouteOfOtherPortsLeavesTheTable) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    schedule.refused = {"ScheduleCurrentRoute"};
    EXPECT_EQ(panel.Commands().OnRouteChosen(), -2);
    EXPECT_EQ(Cell(1, ColDistance), "240.00");
}

TEST_F(PortCallFixture, ARouteChosenBesideAClosedPanelLeavesTheTable) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    view.state.changed = false;
    view.visible = false;
    EXPECT_LT(panel.Commands().OnRouteChosen(), 0);
    EXPECT_EQ(Cell(1, ColDistance), "240.00");
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, CalculatingASavedVoyageReloadsAndSavesAtOnce) {
    Open("20");
    Type(1, ColSpeed, "12");
    view.visibility.clear();
    panel.Commands().OnCalculate();
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_THAT(view.visibility, ElementsAre("hide", "show"));
    EXPECT_TRUE(schedule.Called("RemoveVoyageObjects 20"));
    EXPECT_TRUE(schedule.Called("LoadSchedule 20 1"));
    EXPECT_EQ(Calls("SaveSchedule 20 -1"), 1);
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, NeighbouringRowsOfOnePlaceLoseTheSecond) {
    Open("10");
    EnterPorts({"ROTTERDAM", "EUROPOORT", "HAMBURG", "HAMBURG"});
    panel.Commands().OnCalculate();
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", " ", " ", " ", " "));
}

TEST_F(PortCallFixture, AFailedCalculationLeavesTheTableAndShowsNothing) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    schedule.refused = {"Calculate"};
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(1, ColEta), " ");
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(view.busy, 0);
}

TEST_F(PortCallFixture, SavingWithoutAChangeSendsNothing) {
    Open("20");
    const auto before = schedule.calls;
    panel.Commands().OnSave();
    EXPECT_EQ(schedule.calls, before);
}

TEST_F(PortCallFixture, SavingRowsWithoutDistancesCalculatesFirst) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnSave();
    EXPECT_EQ(Calls("Calculate 2"), 1);
    EXPECT_EQ(Calls("SaveSchedule 10 1"), 1);
    EXPECT_EQ(schedule.savedRows[1].distance, 240.0F);
}

TEST_F(PortCallFixture, AFailedSaveIsToldAndKeepsTheChange) {
    Open("20");
    Type(1, ColSpeed, "12");
    schedule.refused = {"SaveSchedule"};
    panel.Commands().OnSave();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
    EXPECT_TRUE(saved.empty());
    schedule.refused.clear();
    panel.Commands().OnSave();
    EXPECT_THAT(saved, ElementsAre("20"));
}

TEST_F(PortCallFixture, OpeningAnotherVoyageSavesTheChangesOfTheEditedOne) {
    Open("20");
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::Yes);
    Open("10");
    EXPECT_EQ(messages.messages[0].text, "IDS_PORTCALL_SAVENEXT");
    EXPECT_EQ(messages.messages[0].flags, 4);
    EXPECT_EQ(Calls("SaveSchedule 20 -1"), 1);
    EXPECT_EQ(schedule.savedRows[1].psp, 12.0F);
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_TRUE(view.enabled);
}

TEST_F(PortCallFixture, OpeningAnotherVoyageCanDropTheChanges) {
    Open("20");
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::No);
    Open("10");
    EXPECT_EQ(Calls("SaveSchedule 20 -1"), 0);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, TheSetPortCallsLinkOpensSixEmptyRowsOfThatVoyage) {
    Open("20");
    panel.SetVoyage("10");
    panel.Reset();
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_TRUE(schedule.Called("ClearChart"));
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnSave();
    EXPECT_THAT(saved, ElementsAre("10"));
}

TEST_F(PortCallFixture, ClosingWithChangesAsksAndNoKeepsThePanel) {
    Open("20");
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::No);
    panel.Commands().OnClose();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLOSESAVE");
    EXPECT_TRUE(view.visible);
    EXPECT_TRUE(view.enabled);
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    messages.Answer(SysMsgHandleRes::Yes);
    panel.Commands().OnClose();
    EXPECT_FALSE(view.visible);
    EXPECT_TRUE(view.enabled);
    EXPECT_TRUE(schedule.Called("DiscardPortCalls 20"));
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, ClosingWithoutChangesAsksNothing) {
    Open("20");
    panel.Commands().OnClose();
    EXPECT_FALSE(view.visible);
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_FALSE(schedule.Called("DiscardPortCalls 20"));
}

TEST_F(PortCallFixture, AnOpenEditorIsCommittedBeforeClosingAsks) {
    Open("20");
    panel.Cells().OnCellClicked(1, ColSpeed);
    Retype(CellEditor::Speed, "12");
    messages.Answer(SysMsgHandleRes::No);
    panel.Commands().OnClose();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLOSESAVE");
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
}

TEST_F(PortCallFixture, ClearAsksAndEmptiesTheTable) {
    Open("20");
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
    EXPECT_TRUE(schedule.Called("RouteChanged"));
    EXPECT_TRUE(view.visible);
}

TEST_F(PortCallFixture, UnitsConvertTheCellsAndTheFigures) {
    Open("20");
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
    Open("20");
    const std::string speed = Cell(1, ColSpeed);
    EXPECT_LT(panel.Commands().OnUnitChosen(UnitKind::Speed, "kts"), 0);
    EXPECT_EQ(Cell(1, ColSpeed), speed);
    EXPECT_EQ(Cell(6, ColDistance), "480.00");
}

TEST_F(PortCallFixture, BeforeTheFirstCalculationAUnitOnlyChangesItsLabel) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Distance, "KM"), -1);
    EXPECT_EQ(view.state.distanceUnit, "KM");
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(1, ColDistance), "444.48");
}

TEST_F(PortCallFixture, ARowTypedInAnotherUnitIsSavedInKnotsMilesAndHours) {
    Open("20");
    panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH");
    Type(1, ColSpeed, "37.04");
    EXPECT_EQ(Cell(1, ColSteamTime), "0.50");
    panel.Commands().OnSave();
    EXPECT_NEAR(schedule.savedRows[1].psp, 20.0, 1e-4);
}

TEST_F(PortCallFixture, AFailedLoadGivesAnEmptyTableWithoutMessage) {
    Open("20");
    schedule.refused = {"LoadSchedule"};
    EXPECT_EQ(panel.FillForVoyage(-1), 0);
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_EQ(view.state.summary.averageSpeed, "");
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(PortCallFixture, HelpNamesItsTopic) {
    panel.Commands().OnHelp();
    EXPECT_EQ(view.help, "func034");
}

TEST_F(PortCallFixture, ALanguageSwitchRenewsCaptionAndButton) {
    panel.RegisterHost();
    Open("20");
    texts.prefix = u"zh ";
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(view.state.caption, "zh IDS_PORTCALL_TITLE");
    EXPECT_EQ(view.state.calculateText, "zh IDS_PORTCALL_COMPUTE");
    EXPECT_EQ(view.state.summary.averageSpeed, "8.0");
}

TEST_F(PortCallFixture, LogoutHidesThePanelAndItsEditors) {
    Open("20");
    panel.Cells().OnCellClicked(1, ColPort);
    panel.HideAfterLogout();
    EXPECT_FALSE(view.visible);
    EXPECT_FALSE(view.openEditor.has_value());
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
/// What the port call panel leaves in its cells and asks of the schedule.
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

TEST_F(PortCallFixture, AnUnknownLocalNameLeavesAFilledCell) {
    Open("20");
    Type(1, ColPort, "上海");
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, ABlankSpeedTakesTenAlsoWhenTheScheduleFails) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    Type(1, ColWeather, "99.6");
    ASSERT_EQ(Cell(1, ColWeather), "100%");
    Type(2, ColSpeed, "0");
    EXPECT_EQ(Cell(2, ColSpeed), "10.0");
}

TEST_F(PortCallFixture, TheFirstEtaStandsInBothCellsAlsoWhenTheScheduleFails) {
    Open("20");
    Type(1, ColWeather, "99.6");
    PickTime(0, ColEta, "2024-04-01 00:00:00");
    EXPECT_EQ(Cell(0, ColEta), "2024-04-01 00:00:00");
    EXPECT_EQ(Cell(0, ColEtd), "2024-04-01 00:00:00");
    EXPECT_EQ(Cell(1, ColEta), "2024-03-06 08:00:00");
}

TEST_F(PortCallFixture, SavingAMovedRowCalculatesFirst) {
    Open("20");
    ASSERT_EQ(panel.Commands().OnItemImage(2, "itemMoveUp"), 0);
    panel.Commands().OnSave();
    EXPECT_EQ(Calls("Calculate 3"), 1) << "the voyage has a book, but the rows have no distances";
    EXPECT_EQ(Calls("SaveSchedule 20 1"), 1);
}

TEST_F(PortCallFixture, SavingWithoutABookOrAPendingRouteCalculatesFirst) {
    store.voyages["20"].positionBook.points.clear();
    Open("20");
    Type(1, ColSpeed, "12");
    panel.Commands().OnSave();
    EXPECT_EQ(Calls("Calculate 3"), 1);
}

TEST_F(PortCallFixture, OpeningAVoyageForgetsTheRouteThatWasPending) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    ASSERT_TRUE(schedule.HasPendingRoute());
    messages.Answer(Interface::SysMsgHandleRes::No);
    Open("20");
    EXPECT_FALSE(schedule.HasPendingRoute());
}

TEST_F(PortCallFixture, APortIsLookedUpOnceAndTheWindowIsToldOnlyWhatChanged) {
    Open("10");
    schedule.resolved.clear();
    view.statesShown = 0;
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    panel.Commands().OnSave();
    EXPECT_THAT(schedule.resolved, ::testing::ElementsAre("ROTTERDAM", "HAMBURG"));
    ASSERT_EQ(schedule.savedRows.size(), 2U);
    EXPECT_EQ(schedule.savedRows[1].ppi, "id-HAMBURG");
    EXPECT_LE(view.statesShown, 3);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, ACopyOfTheSheetKeepsWhatStoodThere) {
    Open("20");
    const PortCallSheet before = panel.Sheet();
    Type(1, ColSpeed, "12");
    ASSERT_EQ(panel.Sheet().table.Cell(1, ColSpeed), "12.00");
    EXPECT_EQ(before.table.Cell(1, ColSpeed), "10.00");
    EXPECT_EQ(before.table.ReadRow(1).psp, 10.0F);
    EXPECT_FALSE(before.state.changed);
}

TEST_F(PortCallFixture, ARowsRecordTellsNoMoreThanItsCells) {
    Open("20");
    Type(1, ColWeather, "12.6");
    for (const TableRow& row : panel.Sheet().table.Rows()) {
        const VoyPortCall shown = CellsToRow(row.cells);
        EXPECT_EQ(row.record.ppn, shown.ppn);
        EXPECT_EQ(row.record.psp, shown.psp);
        EXPECT_EQ(row.record.pw, shown.pw);
        EXPECT_EQ(row.record.steamTime, shown.steamTime);
        EXPECT_EQ(row.record.distance, shown.distance);
        EXPECT_EQ(row.record.pp, shown.pp);
    }
    EXPECT_EQ(panel.Sheet().table.ReadRow(1).ppi, "id-HAMBURG");
}

TEST_F(PortCallFixture, ANewVoyageStartsAtTheMomentOfItsCalculation) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    clock.SetUtc(2024, 3, 2);
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(0, ColEta), "2024-03-02 00:00:00");
}

TEST(PortCallTable, ARowWithoutDistanceIsNoPositionOfTheShip) {
    PortCallTable table;
    for (int row = 0; row < 2; ++row) {
        table.SetPort(row, "52.000,4.100", "");
    }
    table.SetCell(0, ColDistance, "10.00");
    table.SetCell(1, ColDistance, "0.00");
    EXPECT_EQ(table.FindLastAisRow(), 0);
    table.SetCell(1, ColDistance, "0.01");
    EXPECT_EQ(table.FindLastAisRow(), 1);
    table.SetCell(1, ColPurpose, "D");
    EXPECT_EQ(table.FindLastAisRow(), 0);
}

}  // namespace Tarvik::Seaplan

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
    ASSERT_EQ(panel.OnItemImage(2, "itemMoveUp"), 0);
    panel.OnSave();
    EXPECT_EQ(Calls("Calculate 3"), 1) << "the voyage has a book, but the rows have no distances";
    EXPECT_EQ(Calls("SaveSchedule 20 1"), 1);
}

TEST_F(PortCallFixture, SavingWithoutABookOrAPendingRouteCalculatesFirst) {
    store.voyages["20"].positionBook.points.clear();
    Open("20");
    Type(1, ColSpeed, "12");
    panel.OnSave();
    EXPECT_EQ(Calls("Calculate 3"), 1);
}

TEST_F(PortCallFixture, OpeningAVoyageForgetsTheRouteThatWasPending) {
    Open("10");
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.OnCalculate();
    ASSERT_TRUE(schedule.HasPendingRoute());
    messages.Answer(Interface::SysMsgHandleRes::No);
    Open("20");
    EXPECT_FALSE(schedule.HasPendingRoute());
}

TEST(PortCallTable, ARowWithoutDistanceIsNoPositionOfTheShip) {
    PortCallTable table;
    for (int row = 0; row < 2; ++row) {
        table.SetCell(row, ColPort, "52.000,4.100");
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

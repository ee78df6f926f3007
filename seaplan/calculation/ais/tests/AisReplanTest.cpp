// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/ais/AisCorrection.h"
#include "seaplan/calculation/ais/AisRows.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

VoyPortCall BlankPurpose(VoyPortCall row, std::string purpose = " ") {
    row.pp = std::move(purpose);
    return row;
}

struct ReplanTest : ::testing::Test {
    BookPoints stored{Port("0,0", 0), Point("1.5,0.25", AisTrackPoint), Point("2,0"), Port("3,0")};
    PortCallRows plan{Call("B", 0, 12, 0.25F)};
    BookPoints out{Port("kept")};
};

TEST_F(ReplanTest, ShipsPositionIsItsRowsNameTurnedRound) {
    std::string position;
    EXPECT_EQ(ShipPositionOf({Call("A", 0), BlankPurpose(Call("0.250,1.500", 0))}, position), 0);
    EXPECT_EQ(position, "1.500,0.250");
}

TEST_F(ReplanTest, HistoryThatEndsInAPortHasNoShipsPosition) {
    std::string position = "kept";
    EXPECT_EQ(ShipPositionOf({}, position), -3);
    EXPECT_EQ(ShipPositionOf({BlankPurpose(Call("1,2", 0)), Call("B", 0)}, position), -3);
    EXPECT_EQ(ShipPositionOf({BlankPurpose(Call("nowhere", 0))}, position), -3);
    EXPECT_EQ(position, "kept");
}

TEST_F(ReplanTest, BookGoesOnFromTheShipToThePlannedPort) {
    ASSERT_EQ(ReplanBook(stored, "1.500,0.250", {{"1.5,0.25", "2,1", "3,2"}, plan, {}}, out), 0);
    EXPECT_EQ(Positions(out), "0,0|1.5,0.25|2,1|3,2");
    EXPECT_EQ(out[2].psp, 9) << "weather slows the planned speed";
    EXPECT_EQ(out[2].pst, PlainPoint);
    EXPECT_EQ(out[2].psn, "");
    EXPECT_EQ(out[3].psn, "B");
    EXPECT_EQ(out[3].pst, PortPoint);
    EXPECT_EQ(out[3].psp, 9);
}

TEST_F(ReplanTest, FirstRowAtThePositionCounts) {
    stored.insert(stored.begin() + 1, Point("1.5001,0.2501"));
    ASSERT_EQ(ReplanBook(stored, "1.500,0.250", {{"", "3,2"}, plan, {}}, out), 0);
    EXPECT_EQ(Positions(out), "0,0|1.5001,0.2501|3,2") << "positions are told with three decimals";
}

TEST_F(ReplanTest, RouteBetweenPlannedPortsFollowsWithoutItsFirstRow) {
    plan.push_back(Call("C", 0, 20));
    const BookPoints ahead{Port("3,2", 0), Point("4,2"), Port("5,2")};
    ASSERT_EQ(ReplanBook(stored, "1.500,0.250", {{"1.5,0.25", "3,2"}, plan, ahead}, out), 0);
    EXPECT_EQ(Positions(out), "0,0|1.5,0.25|3,2|4,2|5,2");
    EXPECT_FLOAT_EQ(out[3].psp, 20) << "scaled to the plan's speed";
    EXPECT_FLOAT_EQ(out[4].psp, 20);
}

TEST_F(ReplanTest, RouteThatCannotBeScaledIsTakenAsItStands) {
    const BookPoints ahead{Port("3,2", 0), Point("4,2"), Port("5,2")};
    ASSERT_EQ(ReplanBook(stored, "1.500,0.250", {{"1.5,0.25", "3,2"}, plan, ahead}, out), 0);
    EXPECT_EQ(out[4].psp, 10);
}

TEST_F(ReplanTest, FailuresLeaveTheBook) {
    EXPECT_EQ(ReplanBook(stored, "9.000,9.000", {{"a", "b"}, plan, {}}, out), -4);
    EXPECT_EQ(ReplanBook({}, "1.500,0.250", {{"a", "b"}, plan, {}}, out), -4);
    EXPECT_EQ(ReplanBook(stored, "1.500,0.250", {{"1,2"}, plan, {}}, out), -5);
    EXPECT_EQ(ReplanBook(stored, "1.500,0.250", {{}, plan, {}}, out), -5);
    EXPECT_EQ(ReplanBook(stored, "1.500,0.250", {{"1,2", "3,4"}, {}, {}}, out), -5);
    EXPECT_EQ(Positions(out), "kept");
}

TEST_F(ReplanTest, PortsOfHistoryAndPlanAreJoined) {
    const auto rows = JoinHistoryAndPlan(
        {Call("A", 0), BlankPurpose(Call("x", 0)), Call("B", 0), BlankPurpose(Call("y", 0))},
        {BlankPurpose(Call("C", 0)), BlankPurpose(Call("D", 0), ""), BlankPurpose(Call("E", 0), "L")});
    ASSERT_EQ(Names(rows), "ABCDE");
    EXPECT_EQ(rows[2].pp + rows[3].pp + rows[4].pp, "DDL");
    EXPECT_TRUE(JoinHistoryAndPlan({}, {}).empty());
}

// The whole way: a corrected voyage is split, planned anew, and its totals follow the new book.
TEST_F(ReplanTest, ReplannedVoyageHasTotals) {
    VoyPositionBook book;
    book.eta = At(1, 0);
    book.points = stored;
    PortCallRows ports{Call("A", 0, 0), Call("B", 100)};
    PortCallRows history;
    ASSERT_EQ(SplitCorrectedVoyage(book, ports, history, plan), 0);
    std::string ship;
    ASSERT_EQ(ShipPositionOf(history, ship), 0);
    ASSERT_EQ(ReplanBook(book.points, ship, {{"1.5,0.25", "3,2"}, plan, {}}, book.points), 0);
    ports = JoinHistoryAndPlan(history, plan);
    ASSERT_EQ(LegTotalsFromBook(book, ports), 0);
    EXPECT_EQ(Names(ports), "AB");
    EXPECT_GT(ports[1].distance, 200);
}

}  // namespace
}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/ais/AisCorrection.h"
#include "seaplan/calculation/tests/Rows.h"
#include "testsupport/PortDictionary.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using PositionTexts = std::vector<std::string>;

/// A at 0,0, left on the first at 06:00 after six hours; B at 2,0 with a waypoint, four hours' stay; C at
/// 3,0. A degree takes six hours and 39 seconds.
struct AisCorrectionTest : ::testing::Test {
    PortCallRows ports{Call("A", 0, 10, 0, 6), Call("B", 120, 10, 0, 4), Call("C", 60)};
    VoyPositionBook book;
    int applied = -1;

    AisCorrectionTest() {
        book.eta = At(1, 0);
        book.points = {Port("0,0", 0), Point("1,0"), Port("2,0"), Port("3,0")};
    }
    int Insert(const Util::_datetime_t& fix,
               const PositionTexts& way = {"0.5,0.1", "1.5,0.2", "1.8,0", "2,0"}) {
        return InsertAisPosition(fix, ports, way, book, applied);
    }
    std::string Kinds() const {
        std::string kinds;
        for (const auto& row : book.points) {
            kinds += std::to_string(row.pst);
        }
        return kinds;
    }
};

TEST_F(AisCorrectionTest, FixAndItsWayReplaceTheRestOfTheLeg) {
    ASSERT_EQ(Insert(At(1, 9)), 0);
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(Positions(book.points), "0,0|0.5,0.1|1.5,0.2|1.8,0|2,0|3,0");
    EXPECT_EQ(Kinds(), "540055");
    const auto& fix = book.points[1];
    EXPECT_EQ(fix.psn, "AIS track point");
    EXPECT_EQ(fix.psr, "GC");
    EXPECT_EQ(fix.pli, 5);
    EXPECT_EQ(fix.eta, At(1, 9));
    EXPECT_EQ(fix.etd, At(1, 9));
    float miles = 0;
    ASSERT_EQ(LegDistance("0,0", "0.5,0.1", "GC", miles), 0);
    EXPECT_EQ(fix.psp, static_cast<float>(static_cast<double>(miles) / 3)) << "three hours since departure";
    EXPECT_EQ(book.points[2].psp, 10);
    EXPECT_EQ(book.points[2].psn, "");
}

TEST_F(AisCorrectionTest, WaypointsPassedStay) {
    ASSERT_EQ(Insert(At(1, 14)), 0);
    EXPECT_EQ(Positions(book.points), "0,0|1,0|0.5,0.1|1.5,0.2|1.8,0|2,0|3,0");
}

TEST_F(AisCorrectionTest, WeatherOfThePortAheadCountsInTheFixesSpeed) {
    ports[1].pw = 0.5F;
    ASSERT_EQ(Insert(At(1, 9)), 0);
    float miles = 0;
    ASSERT_EQ(LegDistance("0,0", "0.5,0.1", "GC", miles), 0);
    EXPECT_EQ(book.points[1].psp, static_cast<float>(static_cast<double>(miles) / 1.5));
}

TEST_F(AisCorrectionTest, TimingTheRowsBringsTheShipToTheFixAtItsTime) {
    ASSERT_EQ(Insert(At(1, 9)), 0);
    ASSERT_EQ(ComputeBookTimes(book.eta, ports, book.points), 0);
    EXPECT_LT(std::abs(book.points[1].eta.total_csecs() - At(1, 9).total_csecs()), 100);
}

TEST_F(AisCorrectionTest, ShipThatHardlyMovedGetsNoRowButTheNewWay) {
    ASSERT_EQ(Insert(At(1, 9), {"0.001,0", "1.5,0.2", "2,0"}), 0);
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(Positions(book.points), "0,0|1.5,0.2|2,0|3,0");
}

TEST_F(AisCorrectionTest, EmptyWayTakesOnlyTheRestOfTheLegOut) {
    ASSERT_EQ(Insert(At(1, 9), {}), 0);
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(Positions(book.points), "0,0|2,0|3,0");
    ASSERT_EQ(Insert(At(1, 9), {"0.5,0.1"}), 0);
    EXPECT_EQ(Positions(book.points), "0,0|2,0|3,0") << "the last position is the port";
}

// A row left later than the fix ends the part already sailed, so a fix during a stay belongs to the leg that
// ended in that port.
TEST_F(AisCorrectionTest, FixDuringAStayGoesBeforeThePort) {
    ASSERT_EQ(Insert(At(1, 20)), 0);
    EXPECT_EQ(Positions(book.points), "0,0|1,0|0.5,0.1|1.5,0.2|1.8,0|2,0|3,0");
    EXPECT_EQ(applied, 1);
}

TEST_F(AisCorrectionTest, FixBehindALegWithoutWaypointsIsMeasuredFromThePort) {
    ASSERT_EQ(Insert(At(2, 1), {"2.5,0", "3,0"}), 0);
    EXPECT_EQ(Positions(book.points), "0,0|1,0|2,0|2.5,0|3,0");
    EXPECT_EQ(Kinds(), "50545");
}

TEST_F(AisCorrectionTest, FixBehindTheVoyageChangesNothing) {
    ASSERT_EQ(Insert(At(9, 0)), 0);
    EXPECT_EQ(Positions(book.points), "0,0|1,0|2,0|3,0");
    EXPECT_EQ(applied, 1);
}

TEST_F(AisCorrectionTest, FixAtTheMomentOfDepartureHasNoTimeToSail) {
    ASSERT_EQ(Insert(At(1, 6) + Util::_time_t::from_csecs(1)), 0);
    EXPECT_EQ(applied, 0) << "no whole second lies between";
    EXPECT_EQ(Positions(book.points), "0,0|1.5,0.2|1.8,0|2,0|3,0");
}

TEST_F(AisCorrectionTest, FailuresLeaveTheBook) {
    const auto before = Positions(book.points);
    EXPECT_EQ(Insert(At(1, 5)), -5) << "the ship had not left";
    EXPECT_EQ(Insert(At(1, 6)), -5) << "nor at the moment of leaving";
    EXPECT_EQ(Insert(At(1, 9), {"nowhere", "2,0"}), -7);
    ports.push_back(Call("D", 1));
    EXPECT_EQ(Insert(At(9, 9)), -3);
    EXPECT_EQ(Positions(book.points), before);
    book.points.resize(1);
    EXPECT_EQ(Insert(At(1, 9)), -2);
    book.points.clear();
    EXPECT_EQ(Insert(At(1, 9)), -1);
}

TEST_F(AisCorrectionTest, NextPortsAreThoseLeftLater) {
    const TestSupport::PortDictionary dictionary({{"A", "41"}, {"B", "42"}});
    PositionTexts ids{"old"};
    EXPECT_EQ(NextPortsAfter(At(1, 5), ports, ids), 0);
    EXPECT_THAT(ids, ElementsAre("41", "42", "")) << "the dictionary lacks the last";
    EXPECT_EQ(NextPortsAfter(At(1, 6), ports, ids), 0);
    EXPECT_THAT(ids, ElementsAre("42", "")) << "left at the moment is left";
    EXPECT_EQ(NextPortsAfter(At(9, 0), ports, ids), 0);
    EXPECT_THAT(ids, IsEmpty());
}

TEST_F(AisCorrectionTest, NextPortsNeedASchedule) {
    PositionTexts ids{"old"};
    EXPECT_EQ(NextPortsAfter(At(1, 5), {ports[0]}, ids), -1);
    EXPECT_THAT(ids, IsEmpty());
    ports[1].psp = 0;
    EXPECT_EQ(NextPortsAfter(At(1, 5), ports, ids), -2);
}

TEST_F(AisCorrectionTest, RestOfTheBookIsOneGroupOverAndOver) {
    ports.push_back(Call("D", 1));
    book.points.push_back(Point("3.5,0"));
    book.points.push_back(Port("4,0"));
    PositionTexts rest;
    EXPECT_EQ(RestOfBookPositions(ports, book.points, 3, rest), 0);
    EXPECT_THAT(rest, ElementsAre("3,0", "3,0"));
    EXPECT_EQ(RestOfBookPositions(ports, book.points, 2, rest), 0);
    EXPECT_THAT(rest, ElementsAre("3.5,0", "4,0"));
    for (const std::size_t none : {0U, 1U}) {
        EXPECT_EQ(RestOfBookPositions(ports, book.points, none, rest), 0);
        EXPECT_THAT(rest, IsEmpty());
    }
}

TEST_F(AisCorrectionTest, RestOfTheBookNeedsItsGroup) {
    PositionTexts rest{"old"};
    EXPECT_EQ(RestOfBookPositions(ports, book.points, 4, rest), -1);
    EXPECT_THAT(rest, IsEmpty());
    EXPECT_EQ(RestOfBookPositions(ports, {book.points[0]}, 2, rest), -2);
    book.points.pop_back();
    EXPECT_EQ(RestOfBookPositions(ports, book.points, 2, rest), -3);
}

}  // namespace
}  // namespace Tarvik::Seaplan

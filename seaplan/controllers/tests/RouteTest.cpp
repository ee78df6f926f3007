// SPDX-License-Identifier: MIT
#include <filesystem>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/RouteFixture.h"

namespace Tarvik::Seaplan {

namespace {

class RouteTest : public RouteFixture {};

TEST_F(RouteTest, WholeListLadder) {
    EXPECT_EQ(module.GetRoute(PortCallRows(1), rows, true), -1);
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, true), -2);
    host.Reply(1, "{eid:5}");
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, true), -3);
    host.Reply(1, R"([{point_cd:"40001"}])");
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, true), -5);
    EXPECT_TRUE(rows.empty());
    EXPECT_TRUE(module.Pending().Stops().empty());
}

TEST_F(RouteTest, WholeListIsAskedForInOneRequest) {
    host.Reply(1, "{eid:5}");
    module.GetRoute(ThreeRows(), rows, true);
    EXPECT_EQ(
        host.Texts(),
        Texts{R"(1 {"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"40001#40002#40003"})"});
}

TEST_F(RouteTest, RowsTakeIdAndDistanceFromTheRouteAndKeepWhatWasEntered) {
    host.Reply(1, kRouteAb);
    PortCallRows typed = TypedRows();
    typed[1].ppi = "other";
    typed[1].pp = "O";
    typed[1].psp = 12.0F;
    typed[1].pw = 0.25F;
    typed[1].apt = 3.0F;
    EXPECT_EQ(module.GetRoute(typed, rows, true), 0);
    EXPECT_EQ(rows[1].ppi, "40002");
    EXPECT_EQ(rows[1].ppn, "B");
    EXPECT_EQ(rows[1].pp, "O");
    EXPECT_EQ(rows[1].psp, 12.0F);
    EXPECT_EQ(rows[1].pw, 0.25F);
    EXPECT_EQ(rows[1].apt, 3.0F);
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F) << "nautical miles worked out from the points";
}

TEST_F(RouteTest, FailedRequestLeavesTheStopsOfTheRouteBefore) {
    host.Reply(1, kRouteAb);
    module.GetRoute(TypedRows(), rows, true);
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, true), -2);
    host.Reply(1, kRouteAb);
    EXPECT_EQ(module.GetRoute(ThreeRows(), rows, true), -5);
    EXPECT_EQ(module.Pending().Stops().size(), 2U);
}

TEST_F(RouteTest, ErrorIdOfMinusOneIsAReplyWithoutStops) {
    host.Reply(1, "{eid:-1}");
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, true), -3);
}

TEST_F(RouteTest, SegmentOfOnePointHasNoLengthWhateverTheReplySays) {
    host.Reply(1, LegReply("40001", "40002", "1.000,0.000"));
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, true), 0);
    EXPECT_EQ(rows[1].distance, 0.0F);
}

TEST_F(RouteTest, PointThatComesTwiceCostsNothing) {
    host.Reply(1, LegReply("40001", "40002", "0.000,0.000|0.500,0.000|0.500,0.000|1.000,0.000"));
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, true), 0);
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F);
}

TEST_F(RouteTest, BookOfTheCurrentRouteNeedsTheTableOfPoints) {
    host.Reply(1, kRouteWithAlternatives);
    module.GetRoute(TypedRows(), rows, true);
    BookPoints book;
    std::filesystem::remove(folder.PointsFile());
    EXPECT_EQ(module.BookFromCurrentStops(book), -2);
    folder.WriteSamplePoints();
    EXPECT_EQ(module.BookFromCurrentStops(book), 0);
    ASSERT_EQ(book.size(), 3U);
    EXPECT_EQ(book[0].psn, "A");
    EXPECT_EQ(book[1].psn, "Mid Cape");
    EXPECT_EQ(book[2].pst, PortPoint);
    std::filesystem::remove(folder.PointsFile());
    EXPECT_EQ(module.BookFromCurrentStops(book), 0) << "the points are read once";
}

TEST_F(RouteTest, PositionsOfPortsComeFromTheTableOfPoints) {
    std::vector<RoutePointRow> ports;
    std::filesystem::remove(folder.PointsFile());
    EXPECT_EQ(module.PortPositions(TypedRows(), ports), -1);
    folder.WriteSamplePoints();
    EXPECT_EQ(module.PortPositions(ThreeRows(), ports), 0);
    ASSERT_EQ(ports.size(), 3U);
    EXPECT_EQ(ports[2].id, "40003");
    EXPECT_EQ(ports[2].name, "C");
    EXPECT_EQ(ports[2].position, "3.0,0.0");
    std::filesystem::remove(folder.PointsFile());
    EXPECT_EQ(module.PortPositions(TypedRows(), ports), 0) << "the ports are read once";
    EXPECT_EQ(module.PortPositions({}, ports), 0);
    EXPECT_TRUE(ports.empty());
}

TEST_F(RouteTest, PortWithoutPositionStopsTheListAtItsPlace) {
    PortCallRows typed = ThreeRows();
    typed[1].ppn = "nowhere";
    std::vector<RoutePointRow> ports;
    EXPECT_EQ(module.PortPositions(typed, ports), -2);
    EXPECT_EQ(ports.size(), 1U);
}

}  // namespace
}  // namespace Tarvik::Seaplan

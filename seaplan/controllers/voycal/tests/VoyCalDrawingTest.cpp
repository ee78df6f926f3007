// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/controllers/voycal/VoyCalDrawing.h"
#include "seaplan/controllers/voycal/VoyCalReply.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

VoyCalPort PortWith(const std::vector<const char*>& pointsets) {
    VoyCalPort port;
    for (const auto* pointset : pointsets) {
        VoyCalRoute route;
        ReadVoyCalRoute(pointset, route);
        port.routes.push_back(route);
    }
    return port;
}

TEST(VoyCalLines, NeighbouringRoutesShareTheirCorner) {
    const auto lines =
        LinesOf({{}, PortWith({"1,0|2,0", "2,0|3,0"}), PortWith({"3,0|4,0", "4,0|5.12345,-6"})});
    EXPECT_THAT(lines.main, ElementsAre("1.0000,0.0000", "2.0000,0.0000", "3.0000,0.0000", "4.0000,0.0000",
                                        "5.1235,-6.0000"));
    EXPECT_THAT(lines.east, IsEmpty());
    EXPECT_FALSE(lines.crosses);
    EXPECT_EQ(lines.extent.first, 1);
    EXPECT_EQ(lines.extent.second, -6);
    EXPECT_EQ(lines.extent.third, 5.12345);
    EXPECT_EQ(lines.extent.fourth, 0);
}

TEST(VoyCalLines, FirstPortsOwnRoutesAreNotDrawn) {
    const auto lines = LinesOf({PortWith({"50,50|60,60"}), PortWith({"1,0|2,0"})});
    EXPECT_EQ(lines.main.size(), 2);
    EXPECT_EQ(lines.extent.third, 2);
}

TEST(VoyCalLines, RouteWithoutCornersTakesNoneAway) {
    const auto lines = LinesOf({{}, PortWith({"1,0|2,0", "", "2,0|3,0"})});
    EXPECT_THAT(lines.main, ElementsAre("1.0000,0.0000", "2.0000,0.0000", "3.0000,0.0000"));
}

TEST(VoyCalLines, LineIsCutAtTheDateLine) {
    const auto lines =
        LinesOf({{}, PortWith({"160,0|170,0", "170,0|180,1|-180,1|-170,2"}), PortWith({"-170,2|-160,2"})});
    EXPECT_TRUE(lines.crosses);
    EXPECT_THAT(lines.main, ElementsAre("160.0000,0.0000", "170.0000,0.0000", "179.9900,1.0000"));
    EXPECT_THAT(lines.east, ElementsAre("-179.9900,1.0000", "-170.0000,2.0000", "-160.0000,2.0000"));
}

TEST(VoyCalLines, LineIsCutTheOtherWayToo) {
    const auto lines = LinesOf({{}, PortWith({"-170,0|-180,1|180,1|170,2"})});
    EXPECT_THAT(lines.main, ElementsAre("-170.0000,0.0000", "-179.9900,1.0000"));
    EXPECT_THAT(lines.east, ElementsAre("179.9900,1.0000", "170.0000,2.0000"));
}

TEST(VoyCalLines, OnlyTheFirstCrossingCuts) {
    const auto lines = LinesOf({{},
                                PortWith({"170,0|180,1|-180,1|-170,2", "-170,2|-180,3|180,3|170,4"}),
                                PortWith({"170,4|180,5|-180,5|-170,6"})});
    EXPECT_EQ(lines.main.size(), 2);
    EXPECT_EQ(lines.east.size(), 8);
}

TEST(VoyCalLines, RouteThatEndsAtTheDateLineLeavesNothingBehind) {
    const auto lines = LinesOf({{}, PortWith({"170,0|180,1"})});
    EXPECT_TRUE(lines.crosses);
    EXPECT_THAT(lines.main, ElementsAre("170.0000,0.0000", "179.9900,1.0000"));
    EXPECT_THAT(lines.east, IsEmpty());
}

TEST(VoyCalLines, MarkAtARoutesEndCutsBetweenTheRoutes) {
    for (const char* next : {"-180,1|-170,2", "180,1|-180,1|-170,2"}) {
        const auto lines = LinesOf({{}, PortWith({"160,0|170,0|180,1", next})});
        EXPECT_THAT(lines.main, ElementsAre("160.0000,0.0000", "170.0000,0.0000", "179.9900,1.0000")) << next;
        EXPECT_THAT(lines.east, ElementsAre("-179.9900,1.0000", "-170.0000,2.0000")) << next;
    }
}

TEST(VoyCalLines, MarkAtARoutesBeginningCutsBehindIt) {
    const auto lines = LinesOf({{}, PortWith({"160,0|170,0", "180,1|-180,1|-170,2"})});
    EXPECT_THAT(lines.main, ElementsAre("160.0000,0.0000", "170.0000,0.0000", "179.9900,1.0000"));
    EXPECT_THAT(lines.east, ElementsAre("-179.9900,1.0000", "-170.0000,2.0000"));
}

TEST(VoyCalLines, NothingToDrawKeepsTheStartOfTheExtent) {
    const auto lines = LinesOf({});
    EXPECT_THAT(lines.main, IsEmpty());
    EXPECT_EQ(lines.extent.first, 180);
    EXPECT_EQ(lines.extent.second, 90);
    EXPECT_EQ(lines.extent.third, -180);
    EXPECT_EQ(lines.extent.fourth, -90);
}

TEST(VoyCalExtent, HoldsWhatLiesWithinOrOnItsBorder) {
    const Interface::TrvMapExtent view{0, 10, 20, 30};
    EXPECT_TRUE(Holds(view, view));
    EXPECT_TRUE(Holds(view, {1, 11, 19, 29}));
    EXPECT_FALSE(Holds(view, {-1, 10, 20, 30}));
    EXPECT_FALSE(Holds(view, {0, 9, 20, 30}));
    EXPECT_FALSE(Holds(view, {0, 10, 21, 30}));
    EXPECT_FALSE(Holds(view, {0, 10, 20, 31}));
}

TEST(VoyCalStyle, LinesHaveIdsOfTheirOwn) {
    const auto line = VoyCalLine({"1,2"});
    EXPECT_EQ(line.colour, 39423);
    EXPECT_EQ(line.width, 3);
    EXPECT_EQ(line.style, "solid");
    EXPECT_EQ(line.ref.layer + "/" + line.ref.type, "VOYAGE_LAYER/VOYAGE");
    EXPECT_EQ(line.ref.id.size(), 36);
    EXPECT_NE(line.ref.id, VoyCalLine({}).ref.id);
}

TEST(VoyCalStyle, LabelsTellPointAndKind) {
    const VoyCalPoint point{1.23456, -2, "118", "Cape"};
    const auto label = VoyCalLabel(point, false);
    EXPECT_EQ(label.ref.layer + "/" + label.ref.type + "/" + label.ref.id, "VOYAGE_LAYER/RPOINT/118");
    EXPECT_EQ(label.label, "Cape");
    EXPECT_EQ(label.position, "1.2346,-2.0000");
    EXPECT_EQ(label.colour, 0xFF0000);
    EXPECT_EQ(label.shape, "circle");
    EXPECT_EQ(label.size, 3);
    const auto alternative = VoyCalLabel(point, true);
    EXPECT_EQ(alternative.ref.type, "RRPOINT");
    EXPECT_EQ(alternative.colour, 0xFFFF00);
}

}  // namespace
}  // namespace Tarvik::Seaplan

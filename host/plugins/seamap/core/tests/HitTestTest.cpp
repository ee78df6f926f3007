// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/seamap/core/HitTest.h"

namespace Tarvik::Seamap {

namespace {

class HitTestTest : public ::testing::Test {
  protected:
    HitTestTest() {
        view_.Resize(1000, 500);
        view_.Show(Project({0, 0}), 3600);  // ten pixels a degree
    }
    std::string At(double x, double y) const {
        const ChartObject* object = HitTest(objects_, view_, [](const std::string&) {
                                        return PixelPoint{12, 8};
                                    }).At({x, y});
        return object ? object->key.id : "";
    }
    void Line(const std::string& id, std::vector<std::string> points) {
        objects_.AddLine({{"L", id, "T"}, std::move(points), 0, 2, "solid"});
    }
    void Label(const std::string& id, const std::string& position) {
        objects_.AddLabel({{"L", id, "P"}, id, position, 0, "circle", 0, 3});
    }

    MercatorView view_;
    ChartObjects objects_;
};

TEST(DistanceToSegment, FromTheSideAndFromTheEnds) {
    EXPECT_DOUBLE_EQ(DistanceToSegment({5, 3}, {0, 0}, {10, 0}), 3);
    EXPECT_DOUBLE_EQ(DistanceToSegment({-3, 4}, {0, 0}, {10, 0}), 5);
    EXPECT_DOUBLE_EQ(DistanceToSegment({13, 4}, {0, 0}, {10, 0}), 5);
    EXPECT_DOUBLE_EQ(DistanceToSegment({3, 4}, {0, 0}, {0, 0}), 5);
}

TEST_F(HitTestTest, MeetsALineWithinTheTolerance) {
    Line("a", {"-10,0", "10,0"});
    EXPECT_EQ(At(500, 250), "a");
    EXPECT_EQ(At(500, 255), "a");
    EXPECT_EQ(At(500, 257), "");
    EXPECT_EQ(At(610, 250), "");
}

TEST_F(HitTestTest, APointGoesBeforeANearerLine) {
    Line("line", {"-10,0", "10,0"});
    Label("point", "0,0");
    Line("above", {"-10,0", "10,0"});
    EXPECT_EQ(At(502, 253), "point");
    EXPECT_EQ(At(540, 250), "above");
}

TEST_F(HitTestTest, TheNearerOfTwoPointsAndTheUpperOfEquals) {
    Label("left", "-1,0");
    Label("right", "0,0");
    EXPECT_EQ(At(491, 250), "left");
    EXPECT_EQ(At(499, 250), "right");
    Label("again", "0,0");
    EXPECT_EQ(At(500, 250), "again");
}

TEST_F(HitTestTest, AnImageIsMetWithinItsRectangle) {
    objects_.AddImage({{"L", "ship", "I"}, "ship", "0,0"});
    EXPECT_EQ(At(511, 257), "ship");
    EXPECT_EQ(At(518, 250), "");
    EXPECT_EQ(At(500, 264), "");
}

TEST_F(HitTestTest, MeetsThingsAcrossTheDateLine) {
    view_.Show(Project({180, 0}), 3600);
    Line("a", {"175,0", "-175,0"});
    Label("b", "-179,5");
    EXPECT_EQ(At(500, 250), "a");
    EXPECT_EQ(At(540, 250), "a");
    EXPECT_EQ(At(510, view_.ToScreen(GeoPoint{-179, 5}).y), "b");
}

TEST_F(HitTestTest, AnEmptyChartHasNothing) {
    EXPECT_EQ(At(500, 250), "");
}

TEST_F(HitTestTest, TheLegOfALineIsTheOneBesideThePixel) {
    Line("a", {"-10,0", "10,0", "10,10", "-5,10"});
    const auto& line = std::get<ChartLine>(objects_.Find({"L", "T", "a"})->shape);
    EXPECT_EQ(LegNear(line, view_.ToScreen(GeoPoint{0, 0}), view_), 1U);
    EXPECT_EQ(LegNear(line, view_.ToScreen(GeoPoint{9.9, 6}), view_), 2U);
    EXPECT_EQ(LegNear(line, view_.ToScreen(GeoPoint{-8, 10}), view_), 3U);
    view_.Show(Project({180, 0}), 3600);
    Line("b", {"170,0", "-170,0", "-160,0"});
    const auto& over = std::get<ChartLine>(objects_.Find({"L", "T", "b"})->shape);
    EXPECT_EQ(LegNear(over, view_.ToScreen(GeoPoint{-175, 0}), view_), 1U) << "over the date line";
    EXPECT_EQ(LegNear(over, view_.ToScreen(GeoPoint{-165, 0}), view_), 2U);
}

}  // namespace
}  // namespace Tarvik::Seamap

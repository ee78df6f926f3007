// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/PolylineClip.h"

namespace Tarvik::Seamap {

namespace {

/// A world of 1000 pixels seen through a window of 500 by 400 whose corner stands at 250, 300.
class PolylineClipTest : public ::testing::Test {
  protected:
    PolylineClipTest() {
        view_.Resize(500, 400);
        view_.Show({0.5, 0.5}, 1000);
    }
    std::vector<PolylineRun> Clip(std::vector<WorldPoint> points, double detail = 0) const {
        return ClipPolyline(points, view_, 0, 0, detail);
    }
    MercatorView view_;
};

TEST_F(PolylineClipTest, ALineInsideStaysWhole) {
    const auto runs = Clip({{0.3, 0.4}, {0.5, 0.5}, {0.6, 0.4}});
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].points.size(), 3u);
    EXPECT_NEAR(runs[0].points[0].x, 50, 1e-9);
    EXPECT_EQ(runs[0].start, 0);
}

TEST_F(PolylineClipTest, ALineThroughIsCutAtBothEdges) {
    const auto runs = Clip({{0, 0.5}, {1, 0.5}});
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_NEAR(runs[0].points.front().x, 0, 1e-9);
    EXPECT_NEAR(runs[0].points.back().x, 500, 1e-9);
    EXPECT_NEAR(runs[0].start, 250, 1e-9);
}

TEST_F(PolylineClipTest, LeavingAndComingBackGivesTwoRuns) {
    const auto runs = Clip({{0.5, 0.5}, {0.5, 0.9}, {0.6, 0.9}, {0.6, 0.5}});
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_NEAR(runs[0].points.back().y, 400, 1e-9);
    EXPECT_NEAR(runs[1].points.front().y, 400, 1e-9);
    EXPECT_NEAR(runs[1].start, 400 + 100 + 200, 1e-9);
}

TEST_F(PolylineClipTest, ALineThatPassesByGivesNothing) {
    EXPECT_TRUE(Clip({{0.1, 0.1}, {0.9, 0.1}}).empty());
    EXPECT_TRUE(Clip({{0.0, 0.5}, {0.2, 0.5}}).empty());
    EXPECT_TRUE(Clip({{0.5, 0.5}}).empty());
}

TEST_F(PolylineClipTest, PointsTooNearToShowAreLeftOutButNeverTheLast) {
    const auto runs = Clip({{0.3, 0.5}, {0.3001, 0.5}, {0.3002, 0.5}, {0.4, 0.5}, {0.4001, 0.5}}, 1);
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].points.size(), 3u);
    EXPECT_NEAR(runs[0].points.back().x, 150.1, 1e-9);
}

TEST(ClipPolygon, KeepsWhatIsInside) {
    const auto cut = ClipPolygon({{-1000, -1000}, {5000, -1000}, {5000, 5000}, {-1000, 5000}}, 100, 50, 10);
    ASSERT_EQ(cut.size(), 4u);
    for (const PixelPoint& point : cut) {
        EXPECT_NEAR(std::fabs(point.x - 50), 60, 1e-9);
        EXPECT_NEAR(std::fabs(point.y - 25), 35, 1e-9);
    }
    EXPECT_TRUE(ClipPolygon({{200, 0}, {300, 0}, {300, 50}}, 100, 50, 10).empty());
    EXPECT_EQ(ClipPolygon({{10, 10}, {20, 10}, {20, 20}}, 100, 50, 10).size(), 3u);
}

TEST(Straighten, LeavesOutWhatTheEyeCannotSeeAndKeepsCornersAndEnds) {
    std::vector<PixelPoint> line;
    for (int i = 0; i <= 100; ++i) {
        line.push_back({double(i), i % 2 == 0 ? 0.1 : -0.1});
    }
    for (int i = 1; i <= 50; ++i) {
        line.push_back({100, double(i)});
    }
    Straighten(line, 0.3);
    EXPECT_LE(line.size(), 5U);
    EXPECT_EQ(line.front().x, 0);
    EXPECT_EQ(line.back().y, 50);
    EXPECT_TRUE(std::any_of(line.begin(), line.end(), [](PixelPoint p) {
        return p.x >= 99 && std::fabs(p.y) < 2;
    })) << "the corner";
}

TEST(Straighten, ACurveStraysNoFurtherThanAllowedAndALineThatTurnsBackIsKept) {
    std::vector<PixelPoint> curve;
    for (int i = 0; i <= 400; ++i) {
        curve.push_back({50 * std::cos(i * 0.01), 50 * std::sin(i * 0.01)});
    }
    Straighten(curve, 0.3);
    EXPECT_LT(curve.size(), 60U);
    EXPECT_GT(curve.size(), 10U);
    for (std::size_t i = 1; i < curve.size(); ++i) {
        const double middle = std::hypot(curve[i].x + curve[i - 1].x, curve[i].y + curve[i - 1].y) / 2;
        EXPECT_NEAR(middle, 50, 0.61);
    }
    std::vector<PixelPoint> back{{0, 0}, {10, 0}, {20, 0}, {5, 0}, {0, 0}};
    Straighten(back, 0.3);
    EXPECT_TRUE(std::any_of(back.begin(), back.end(), [](PixelPoint p) { return p.x == 20; }));
    std::vector<PixelPoint> one{{3, 4}};
    Straighten(one, 0.3);
    EXPECT_EQ(one.size(), 1U);
}

TEST(CourseMarks, PointAlongTheWayAndStayAtTheirPlacesOfTheLine) {
    const PolylineRun run{{{0, 0}, {100, 0}, {100, 300}}, 0};
    const auto marks = CourseMarks(run, 100);
    ASSERT_EQ(marks.size(), 4U);
    EXPECT_DOUBLE_EQ(marks[0].at.x, 50);
    EXPECT_DOUBLE_EQ(marks[0].degrees, 90) << "to the right";
    EXPECT_DOUBLE_EQ(marks[1].at.y, 50);
    EXPECT_DOUBLE_EQ(marks[1].degrees, 180) << "downwards";
    const PolylineRun later{{{30, 0}, {100, 0}}, 30};
    ASSERT_EQ(CourseMarks(later, 100).size(), 1U);
    EXPECT_DOUBLE_EQ(CourseMarks(later, 100)[0].at.x, 50) << "the same place, though the run begins later";
    const PolylineRun behind{{{60, 0}, {100, 0}}, 60};
    EXPECT_TRUE(CourseMarks(behind, 100).empty());
    EXPECT_TRUE(CourseMarks({{{5, 5}, {5, 5}}, 0}, 100).empty());
}

}  // namespace
}  // namespace Tarvik::Seamap

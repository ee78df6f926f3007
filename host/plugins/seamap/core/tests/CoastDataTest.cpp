// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/seamap/core/CoastData.h"

namespace Tarvik::Seamap {

namespace {

LandLevel Square(float size) {
    const LandShape ring{{0, 0}, {size, 0}, {size, size}, {0, size}, {0, 0}};
    return {{ring}, {ring}};
}

TEST(CoastData, ProjectsAndBoundsEachShape) {
    const CoastData land({Square(36)});
    ASSERT_EQ(land.LevelCount(), 1);
    const CoastData::Level& level = land.At(0);
    ASSERT_EQ(level.cells.size(), 1u);
    EXPECT_EQ(level.PointsOf(level.cells[0]).size(), 5u);
    EXPECT_DOUBLE_EQ(level.cells[0].minX, 0.5);
    EXPECT_NEAR(level.cells[0].maxX, 0.6, 1e-12);
    EXPECT_DOUBLE_EQ(level.cells[0].maxY, 0.5);
    EXPECT_LT(level.cells[0].minY, 0.4);
}

TEST(CoastData, PicksAFinerLevelForALargerWorld) {
    const CoastData land({Square(1), Square(2), Square(3)});
    EXPECT_EQ(&land.For(256), &land.At(0));
    EXPECT_EQ(&land.For(4000), &land.At(1));
    EXPECT_EQ(&land.For(1 << 20), &land.At(2));
    const CoastData one({Square(1)});
    EXPECT_EQ(&one.For(1 << 20), &one.At(0));
    EXPECT_TRUE(CoastData().IsEmpty());
}

TEST(CoastData, AWorldThatIsWholeInAWindowHasAThinnedLevel) {
    LandLevel fine;
    LandShape west{{0, 0}}, east{{0, 0}};
    for (int i = 1; i < 200; ++i) {
        // The common side of two areas wanders by less than a pixel.
        west.push_back({0.01F * static_cast<float>(i % 2), static_cast<float>(i) * 0.05F});
        east.push_back(west.back());
    }
    west.push_back({-20, 10});
    east.push_back({20, 10});
    fine.cells = {west, east};
    fine.coasts = {west};
    const CoastData land({Square(1), fine});
    const CoastData::Level& thin = land.For(1800);
    ASSERT_EQ(thin.cells.size(), 2U);
    EXPECT_LT(thin.cells[0].count, 130U);
    EXPECT_LT(thin.coasts[0].count, 60U);
    EXPECT_EQ(thin.cells[0].count, thin.cells[1].count) << "neighbours lose the same points";
    for (std::uint32_t i = 0; i + 1 < thin.cells[0].count; ++i) {
        EXPECT_EQ(thin.PointsOf(thin.cells[0])[i].x, thin.PointsOf(thin.cells[1])[i].x);
        EXPECT_EQ(thin.PointsOf(thin.cells[0])[i].y, thin.PointsOf(thin.cells[1])[i].y);
    }
    EXPECT_EQ(land.For(4000).cells[0].count, west.size());
}

TEST(CoastData, DoesNotDrawTheCutsOfTheSourceAsShore) {
    LandLevel level;
    level.coasts = {{{170, 10}, {180, 12}, {180, 20}, {170, 22}}, {{-180, -90}, {180, -90}}};
    const CoastData land({level});
    ASSERT_EQ(land.At(0).coasts.size(), 2u);
    EXPECT_EQ(land.At(0).coasts[0].count, 2u);
    EXPECT_EQ(land.At(0).coasts[1].count, 2u);
}

TEST(CoastData, LongShoresAreCutIntoRunsWithoutGaps) {
    LandLevel level;
    LandShape coast;
    for (int i = 0; i < 1000; ++i) {
        coast.push_back({static_cast<float>(i) * 0.1F, 0});
    }
    level.coasts = {coast};
    const CoastData land({level});
    const auto& runs = land.At(0).coasts;
    ASSERT_GT(runs.size(), 5u);
    EXPECT_NEAR(runs.front().minX, 0.5, 1e-9);
    for (std::size_t i = 1; i < runs.size(); ++i) {
        EXPECT_DOUBLE_EQ(runs[i].minX, runs[i - 1].maxX);
    }
    EXPECT_NEAR(runs.back().maxX, 0.5 + 99.9 / 360, 1e-6);
}

TEST(CoastData, LeavesOutShapesThatAreNone) {
    LandLevel level;
    level.cells = {{}, {{1, 1}, {2, 2}}};
    level.coasts = {{}, {{1, 1}}};
    const CoastData land({level});
    EXPECT_TRUE(land.At(0).cells.empty());
    EXPECT_TRUE(land.At(0).coasts.empty());
}

}  // namespace
}  // namespace Tarvik::Seamap

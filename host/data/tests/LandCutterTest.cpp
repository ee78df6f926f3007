// SPDX-License-Identifier: MIT
#include <cmath>

#include <gtest/gtest.h>

#include "host/data/builder/Land.h"

namespace Tarvik::Data {

namespace {

double AreaOf(const std::vector<LandFile::Cell>& cells) {
    double sum = 0;
    for (const auto& cell : cells) {
        double twice = 0;
        for (std::size_t i = 0; i < cell.points.size(); ++i) {
            const auto& [ax, ay] = cell.points[i];
            const auto& [bx, by] = cell.points[(i + 1) % cell.points.size()];
            twice += static_cast<double>(ax) * by - static_cast<double>(bx) * ay;
        }
        sum += twice / 2;
    }
    return std::abs(sum);
}

double LengthOf(const std::vector<LandFile::Cell>& lines) {
    double sum = 0;
    for (const auto& line : lines) {
        for (std::size_t i = 1; i < line.points.size(); ++i) {
            sum += std::hypot(static_cast<double>(line.points[i].first - line.points[i - 1].first),
                              static_cast<double>(line.points[i].second - line.points[i - 1].second));
        }
    }
    return sum;
}

Ring Circle(double x, double y, double radius, int points) {
    Ring ring;
    for (int i = 0; i < points; ++i) {
        const double angle = 2 * M_PI * i / points;
        ring.push_back({x + radius * std::cos(angle), y + radius * std::sin(angle)});
    }
    return ring;
}

TEST(LandCutter, CutsALargeRingIntoSmallCellsOfTheSameArea) {
    const auto cells = CutIntoCells({{Circle(10, 20, 9, 3000)}});
    EXPECT_GT(cells.size(), 7u);
    for (const auto& cell : cells) {
        EXPECT_LE(cell.points.size(), LandFile::kMaxPoints);
    }
    EXPECT_NEAR(AreaOf(cells), M_PI * 81, 0.1);
}

TEST(LandCutter, LeavesALakeOut) {
    Ring lake = Circle(10, 20, 2, 100);
    lake = Ring(lake.rbegin(), lake.rend());
    EXPECT_NEAR(AreaOf(CutIntoCells({{Circle(10, 20, 9, 1000), lake}})), M_PI * (81 - 4), 0.1);
}

TEST(LandCutter, AnIslandOnTheDateLineBecomesPiecesOnBothSides) {
    const auto cells = CutIntoCells({{{{178, -2}, {-178, -2}, {-178, 2}, {178, 2}}}});
    ASSERT_EQ(cells.size(), 2u);
    EXPECT_NEAR(AreaOf(cells), 16, 1e-4);
    for (const auto& cell : cells) {
        EXPECT_GE(cell.minX, -180);
        EXPECT_LE(cell.maxX, 180);
        EXPECT_NEAR(static_cast<double>(cell.maxX - cell.minX), 2, 1e-4);
    }
}

TEST(LandCutter, ARingAroundThePoleIsFilledDownToIt) {
    const auto cells = CutIntoCells({{{{-120, -70}, {0, -70}, {120, -70}}}});
    EXPECT_NEAR(AreaOf(cells), 360.0 * 20.0, 1.0);
}

TEST(LandCutter, CoastsAreClosedLinesWithoutTheCuts) {
    const Ring ring = Circle(10, 20, 9, 1000);
    const auto coasts = CutIntoCoasts({{ring}});
    EXPECT_GE(coasts.size(), 3u);
    for (const auto& line : coasts) {
        EXPECT_LE(line.points.size(), LandFile::kMaxPoints);
    }
    EXPECT_NEAR(LengthOf(coasts), 2 * M_PI * 9, 0.01);
}

TEST(LandCutter, CoastsDoNotRunAlongTheDateLine) {
    const auto coasts = CutIntoCoasts({{{{170, 0}, {180, 0}, {180, 5}, {170, 5}}}});
    EXPECT_NEAR(LengthOf(coasts), 25, 1e-4);
}

}  // namespace
}  // namespace Tarvik::Data

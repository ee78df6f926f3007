// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/chart/ChartLines.h"

namespace Tarvik::Seaplan {

namespace {

struct ExtentCase {
    PointTexts points;
    double east;
    double north;
    double west;
    double south;
};

TEST(ViewExtent, HoldsAllPointsWithMargins) {
    for (const auto& c : {
             ExtentCase{{"100,10", "170,20"}, 172, 21, 97, 8},
             ExtentCase{{"5,6"}, 8, 8, 2, 4},
             ExtentCase{{"nothing", "5,6", "", "7"}, 8, 8, 2, 4},
             ExtentCase{{"170,0", "100,0"}, 173, 2, 98, -2},
             ExtentCase{{"179.5,89.5"}, 180, 90, 176.5, 87.5},
             ExtentCase{{"-179.5,-89.5"}, -176.5, -87.5, -180, -90},
             ExtentCase{{"-170,0", "170,10"}, 126, 11, -90, -2},
             ExtentCase{{"0,-80", "1,80"}, 126, 81, -90, -82},
             ExtentCase{{"-158,0", "158,0"}, 160, 2, -161, -2},
         }) {
        const auto extent = ExtentOf(c.points);
        ASSERT_TRUE(extent) << c.points.front();
        EXPECT_DOUBLE_EQ(extent->first, c.east) << c.points.front();
        EXPECT_DOUBLE_EQ(extent->second, c.north) << c.points.front();
        EXPECT_DOUBLE_EQ(extent->third, c.west) << c.points.front();
        EXPECT_DOUBLE_EQ(extent->fourth, c.south) << c.points.front();
    }
}

TEST(ViewExtent, NoPositionGivesNoView) {
    EXPECT_FALSE(ExtentOf({}));
    EXPECT_FALSE(ExtentOf({"", "5", "x"}));
}

}  // namespace
}  // namespace Tarvik::Seaplan

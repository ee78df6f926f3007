// SPDX-License-Identifier: MIT
#include <algorithm>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "seaplan/chart/ChartLines.h"

namespace Tarvik::Seaplan {

namespace {

/// A text as it is drawn: at the date line it stands just before it.
std::string Drawn(const std::string& point) {
    const auto comma = point.find(',');
    if (point.rfind("180", 0) == 0) {
        return "179.99" + point.substr(comma);
    }
    return point.rfind("-180", 0) == 0 ? "-179.99" + point.substr(comma) : point;
}

bool IsAtLine(const std::string& point) {
    return point.rfind("179.99", 0) == 0 || point.rfind("-179.99", 0) == 0;
}

// Whatever the points are, the pieces joined again are the points, less repeats and less a last one that
// nothing follows.
TEST(LineSplitProperty, PiecesOfAnyLineJoinedAgainAreItsPointsLessTheDroppedOnes) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const PointTexts choice{"170,1", "-170,2", "180,3", "-180,3", "180.0,4", "-180.000,-4", "18,5", "0,0"};
    for (int round = 0; round < 2000; ++round) {
        PointTexts points;
        for (std::size_t i = 2 + random() % 30; i > 0; --i) {
            points.push_back(choice[random() % choice.size()]);
        }
        PointTexts expected;
        std::unique_copy(points.begin(), points.end(), std::back_inserter(expected));
        std::transform(expected.begin(), expected.end(), expected.begin(), Drawn);
        std::vector<PointTexts> pieces;
        ASSERT_EQ(SplitAtDateLine(points, pieces), 0);
        PointTexts joined;
        for (const PointTexts& piece : pieces) {
            ASSERT_GE(piece.size(), 2U);
            ASSERT_TRUE(std::none_of(piece.begin() + 1, piece.end() - 1, IsAtLine))
                << "only the ends of a piece are at the line";
            joined.insert(joined.end(), piece.begin(), piece.end());
        }
        if (joined.size() + 1 == expected.size()) {
            expected.pop_back();
        }
        ASSERT_EQ(joined, expected);
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan

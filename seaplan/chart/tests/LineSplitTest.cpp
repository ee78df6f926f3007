// SPDX-License-Identifier: MIT
#include <random>

#include <gtest/gtest.h>

#include "seaplan/chart/ChartLines.h"

namespace Tarvik::Seaplan {

namespace {

using Pieces = std::vector<PointTexts>;

struct SplitCase {
    PointTexts points;
    Pieces pieces;
};

TEST(LineSplit, CutsWhereTheTextSaysDateLine) {
    for (const auto& [points, expected] : {
             SplitCase{{"170,0", "180,1", "-180,1", "-170,2"},
                       {{"170,0", "179.99,1"}, {"-179.99,1", "-170,2"}}},
             SplitCase{{"-170,0", "-180,1", "180,1", "170,2"},
                       {{"-170,0", "-179.99,1"}, {"179.99,1", "170,2"}}},
             SplitCase{{"180,0", "170,0"}, {{"179.99,0", "170,0"}}},
             SplitCase{{"170,0", "180,0"}, {{"170,0", "179.99,0"}}},
             SplitCase{{"170,0", "180,0", "175,0"}, {{"170,0", "179.99,0"}}},
             SplitCase{{"170,0", "180,0", "175,0", "170,1"}, {{"170,0", "179.99,0"}, {"175,0", "170,1"}}},
             SplitCase{{"179,0", "-179,0"}, {{"179,0", "-179,0"}}},
             SplitCase{{"180.00,5", "180.5,6"}, {{"179.99,5", "179.99,6"}}},
             SplitCase{{"1,0", "1800,0", "-1801,3"}, {{"1,0", "179.99,0"}}},
             SplitCase{{"1,0", "180"}, {{"1,0", "179.99"}}},
             SplitCase{{"1,0", "+180,0", " 180,0"}, {{"1,0", "+180,0", " 180,0"}}},
         }) {
        Pieces pieces{{"before"}};
        EXPECT_EQ(SplitAtDateLine(points, pieces), 0);
        EXPECT_EQ(pieces, expected) << points.front();
    }
}

TEST(LineSplit, OfARunOfEqualTextsOnlyTheLastStays) {
    Pieces pieces;
    EXPECT_EQ(SplitAtDateLine({"1,0", "1,0", "2,0", "2,0", "2,0", "1,0"}, pieces), 0);
    EXPECT_EQ(pieces, (Pieces{{"1,0", "2,0", "1,0"}}));
    EXPECT_EQ(SplitAtDateLine({"1,0", "1,0"}, pieces), 0);
    EXPECT_TRUE(pieces.empty());
}

TEST(LineSplit, NeedsTwoPoints) {
    Pieces pieces{{"before"}};
    EXPECT_EQ(SplitAtDateLine({}, pieces), -1);
    EXPECT_EQ(SplitAtDateLine({"1,0"}, pieces), -1);
    EXPECT_TRUE(pieces.empty());
}

TEST(LineSplit, TracksAreJoinedWithoutRepeatsOfTheirOwn) {
    EXPECT_EQ(JoinTracks({"1,0", "1,0", "2,0"}, {"2,0", "3,0", "3,0", "1,0"}),
              (PointTexts{"1,0", "2,0", "2,0", "3,0", "1,0"}));
    EXPECT_TRUE(JoinTracks({}, {}).empty());
    EXPECT_EQ(JoinTracks({}, {"1,0", "1,0"}), PointTexts{"1,0"});
}

// Every crossing stands as two points at the line, so that the pieces joined again are the line, but for the
// cut texts.
TEST(LineSplit, PiecesJoinedAgainAreTheLine) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 300; ++round) {
        PointTexts points;
        PointTexts expected;
        std::size_t crossings = 0;
        bool east = true;
        for (int i = 0; i < 40; ++i) {
            const std::string tail = "," + std::to_string(i);
            if (i >= 2 && i < 37 && random() % 7 == 0 && !expected.back().starts_with("179.99") &&
                !expected.back().starts_with("-179.99")) {
                points.insert(points.end(), {(east ? "180" : "-180") + tail, (east ? "-180" : "180") + tail});
                expected.insert(expected.end(),
                                {(east ? "179.99" : "-179.99") + tail, (east ? "-179.99" : "179.99") + tail});
                east = !east;
                ++crossings;
            } else {
                points.push_back((east ? "170" : "-170") + tail);
                expected.push_back(points.back());
            }
        }
        Pieces pieces;
        ASSERT_EQ(SplitAtDateLine(points, pieces), 0);
        ASSERT_EQ(pieces.size(), crossings + 1);
        PointTexts joined;
        for (const auto& piece : pieces) {
            joined.insert(joined.end(), piece.begin(), piece.end());
        }
        ASSERT_EQ(joined, expected);
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan

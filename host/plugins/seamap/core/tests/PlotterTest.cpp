// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/Plotter.h"

namespace Tarvik::Seamap {

namespace {

constexpr std::uint32_t kSea = 0xFF000000;
constexpr std::uint32_t kWhite = 0xFFFFFFFF;

/// A board of 40 by 30 black pixels.
class PlotterTest : public ::testing::Test {
  protected:
    static constexpr int kWidth = 40, kHeight = 30;

    Plotter Make(PixelRect clip = {0, 0, kWidth, kHeight}) {
        return {{pixels_.data(), kWidth, kWidth, kHeight}, clip};
    }
    std::uint32_t At(int x, int y) const { return pixels_[static_cast<std::size_t>(y * kWidth + x)]; }
    int Count(std::uint32_t colour) const {
        return static_cast<int>(std::count(pixels_.begin(), pixels_.end(), colour));
    }
    /// How many white pixels the grey ones are worth together.
    double Light() const {
        double sum = 0;
        for (const std::uint32_t pixel : pixels_) {
            sum += (pixel & 0xFF) / 255.0;
        }
        return sum;
    }
    std::vector<std::uint32_t> pixels_ = std::vector<std::uint32_t>(std::size_t{kWidth} * kHeight, kSea);
};

TEST_F(PlotterTest, AnAreaTakesThePixelsWhoseMiddlesLieInside) {
    const std::vector<PixelPoint> box{{2.4, 3.6}, {10.6, 3.6}, {10.6, 8.4}, {2.4, 8.4}};
    Make().Fill(box, kWhite);
    EXPECT_EQ(Count(kWhite), 9 * 4) << "columns 2 to 10, rows 4 to 7";
    EXPECT_EQ(At(2, 4), kWhite);
    EXPECT_EQ(At(10, 7), kWhite);
    EXPECT_EQ(At(2, 3), kSea);
    EXPECT_EQ(At(11, 7), kSea);
}

TEST_F(PlotterTest, NeighboursWithACommonSideLeaveNoSeamAndDoNotOverlap) {
    const PixelPoint above{13.3, -5}, below{21.9, 44};
    const std::vector<PixelPoint> west{{-9, -5}, above, below, {-9, 44}};
    const std::vector<PixelPoint> east{above, {60, -5}, {60, 44}, below};
    Make().Fill(west, kWhite);
    const int left = Count(kWhite);
    pixels_.assign(pixels_.size(), kSea);
    Make().Fill(east, kWhite);
    EXPECT_EQ(left + Count(kWhite), kWidth * kHeight);
    EXPECT_GT(left, 0);
    Make().Fill(west, kWhite);
    EXPECT_EQ(Count(kWhite), kWidth * kHeight);
}

TEST_F(PlotterTest, AHoleStaysFree) {
    const std::vector<PixelPoint> ring{{0, 0},  {30, 0},  {30, 20}, {0, 20}, {0, 0}, {10, 5},
                                       {20, 5}, {20, 15}, {10, 15}, {10, 5}, {0, 0}};
    Make().Fill(ring, kWhite);
    EXPECT_EQ(Count(kWhite), 30 * 20 - 10 * 10);
}

TEST_F(PlotterTest, ALineGivesAsMuchColourAsItCovers) {
    for (const PixelPoint& end :
         {PixelPoint{31, 5.3}, PixelPoint{31, 14}, PixelPoint{9, 25}, PixelPoint{5.2, 25}}) {
        for (const double width : {1.0, 1.66, 2.4}) {
            pixels_.assign(pixels_.size(), kSea);
            const PixelPoint start{5, 5.3};
            const std::vector<PixelPoint> line{end, start};
            Make().Stroke(line, {kWhite, width});
            const double length = std::hypot(end.x - start.x, end.y - start.y);
            EXPECT_NEAR(Light(), length * width, length * width * 0.05)
                << end.x << " " << end.y << " " << width;
        }
    }
}

TEST_F(PlotterTest, ThePointsOfALineAreNotDarkerThanTheRest) {
    Make().Stroke(std::vector<PixelPoint>{{3, 5.5}, {36, 5.5}}, {0x80808080, 1});
    const std::vector<std::uint32_t> once = pixels_;
    pixels_.assign(pixels_.size(), kSea);
    Make().Stroke(std::vector<PixelPoint>{{3, 5.5}, {9.5, 5.5}, {10, 5.5}, {22.7, 5.5}, {36, 5.5}},
                  {0x80808080, 1});
    EXPECT_EQ(pixels_, once);
    EXPECT_EQ(At(20, 5) & 0xFF, 0x80U) << "half of white on black";
}

TEST_F(PlotterTest, DashesFollowTheLengthOfTheLine) {
    Make().Stroke(std::vector<PixelPoint>{{0, 5.5}, {40, 5.5}}, {kWhite, 1, 6, 4}, 3);
    std::string row;
    for (int x = 0; x < 20; ++x) {
        row += At(x, 5) == kWhite ? '#' : '.';
    }
    EXPECT_EQ(row, "###....######....###");
}

TEST_F(PlotterTest, APartIsDrawnAsInTheWholeAndNothingBesideIt) {
    const std::vector<PixelPoint> line{{-200, -90}, {18.3, 11.8}, {20.1, 300}};
    const std::vector<PixelPoint> area{{-300, 12.2}, {33.1, 3.3}, {70, 90}};
    const auto draw = [&](Plotter plotter) {
        plotter.Fill(area, 0xFF00FF00);
        plotter.Stroke(line, {kWhite, 1.66});
    };
    draw(Make());
    const std::vector<std::uint32_t> whole = pixels_;
    pixels_.assign(pixels_.size(), kSea);
    draw(Make({7, 4, 19, 22}));
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const bool inside = x >= 7 && x < 19 && y >= 4 && y < 22;
            EXPECT_EQ(At(x, y), inside ? whole[static_cast<std::size_t>(y * kWidth + x)] : kSea)
                << x << " " << y;
        }
    }
}

TEST_F(PlotterTest, AnEmptyBoardAndShapesThatAreNoneAreLeftAlone) {
    Make({5, 5, 5, 20}).Fill(std::vector<PixelPoint>{{0, 0}, {30, 0}, {0, 30}}, kWhite);
    Make().Fill(std::vector<PixelPoint>{{0, 0}, {30, 30}}, kWhite);
    Make().Stroke(std::vector<PixelPoint>{{7, 7}}, {kWhite, 1});
    Make().Stroke(std::vector<PixelPoint>{{7, 7}, {7, 7}}, {kWhite, 1});
    EXPECT_EQ(Count(kSea), kWidth * kHeight);
}

}  // namespace
}  // namespace Tarvik::Seamap

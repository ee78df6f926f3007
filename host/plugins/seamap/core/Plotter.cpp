// SPDX-License-Identifier: MIT
// Areas: the sides' crossings with the middles of the rows are sorted, and each second stretch between them
// is painted. Lines: column by column of a segment's longer direction (row by row of a steep one), the two or
// three pixels across it take as much colour as the line covers of them, which is exact but for the ends
// (after Gupta and Sproull 1981, with the coverage of a box). A segment owns the columns from its beginning
// up to the next one's, so that none is painted twice. Cost: the pixels of the lines; for areas the rows of
// their sides and the sorting of these.
#include "host/plugins/seamap/core/Plotter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace Tarvik::Seamap {

namespace {

constexpr double kToMiddle = 0.5;
constexpr int kBits = 16;
constexpr std::int64_t kOne = 1 << kBits;  ///< a pixel

/// Each channel times share of 255.
std::uint32_t Scaled(std::uint32_t pixel, std::uint32_t share) {
    constexpr std::uint32_t kEven = 0x00FF00FF, kRound = 0x00800080;
    std::uint32_t even = (pixel & kEven) * share;
    even = ((even + ((even >> 8) & kEven) + kRound) >> 8) & kEven;
    std::uint32_t odd = ((pixel >> 8) & kEven) * share;
    odd = (odd + ((odd >> 8) & kEven) + kRound) & ~kEven;
    return even | odd;
}

/// As std::fill, four pixels in a step.
void FillRow(std::uint32_t* from, const std::uint32_t* end, std::uint32_t colour) {
    const std::array<std::uint32_t, 4> four{colour, colour, colour, colour};
    for (; end - from >= 4; from += 4) {
        std::memcpy(from, four.data(), sizeof four);
    }
    for (; from != end; ++from) {
        *from = colour;
    }
}

/// The first pixel whose middle does not lie before a place, which is brought near the board. As std::ceil,
/// which is a call on processors without rounding in one step.
int MiddleFrom(double place) {
    constexpr double kFar = 1e8;
    const double from = std::clamp(place - kToMiddle, -kFar, kFar);
    const int whole = static_cast<int>(from);
    return whole + (from > whole ? 1 : 0);
}

}  // namespace

Plotter::Plotter(const PixelBoard& board, const PixelRect& clip)
    : board_(board),
      clip_{std::max(clip.left, 0), std::max(clip.top, 0), std::min(clip.right, board.width),
            std::min(clip.bottom, board.height)} {}

void Plotter::Fill(std::span<const PixelPoint> area, std::uint32_t colour) {
    if (area.size() < 3 || clip_.left >= clip_.right) {
        return;
    }
    crossings_.clear();
    PixelPoint before = area.back();
    for (const PixelPoint& point : area) {
        FillSide(before, point);
        before = point;
    }
    std::sort(crossings_.begin(), crossings_.end());
    for (std::size_t i = 0; i + 1 < crossings_.size(); i += 2) {
        std::uint32_t* row = board_.pixels + static_cast<std::ptrdiff_t>(crossings_[i] >> 32) * board_.stride;
        FillRow(row + static_cast<std::uint32_t>(crossings_[i]),
                row + static_cast<std::uint32_t>(crossings_[i + 1]), colour);
    }
}

void Plotter::FillSide(PixelPoint from, PixelPoint to) {
    if (from.y > to.y) {
        std::swap(from, to);
    }
    const int first = std::max(MiddleFrom(from.y), clip_.top);
    const int end = std::min(MiddleFrom(to.y), clip_.bottom);
    if (first >= end) {
        return;
    }
    const double slope = (to.x - from.x) / (to.y - from.y);
    for (int row = first; row < end; ++row) {
        const double x = from.x + (row + kToMiddle - from.y) * slope;
        const int column = MiddleFrom(std::clamp<double>(x, clip_.left, clip_.right));
        crossings_.push_back((std::uint64_t(row) << 32) + std::uint32_t(std::min(column, clip_.right)));
    }
}

void Plotter::Stroke(std::span<const PixelPoint> line, const PlotPen& pen, double start) {
    if (shades_.back() != pen.colour) {
        Mix(pen.colour);
    }
    for (std::size_t i = 1; i < line.size(); ++i) {
        Segment(line[i - 1], line[i], pen, start);
        if (pen.gap > 0) {
            start += std::hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y);
        }
    }
}

void Plotter::Mix(std::uint32_t colour) {
    for (std::size_t shade = 0; shade <= kShades; ++shade) {
        shades_[shade] = Scaled(colour, static_cast<std::uint32_t>(shade * 255 / kShades));
    }
}

void Plotter::Segment(PixelPoint from, PixelPoint to, const PlotPen& pen, double start) {
    const bool steep = std::fabs(to.y - from.y) > std::fabs(to.x - from.x);
    if (steep) {
        std::swap(from.x, from.y);
        std::swap(to.x, to.y);
    }
    const double way = to.x - from.x;
    if (way == 0) {
        return;
    }
    const double slope = (to.y - from.y) / way;
    const double stretch = std::sqrt(1 + slope * slope);
    const int begin = MiddleFrom(std::min(from.x, to.x));
    const int first = std::max(begin, steep ? clip_.top : clip_.left);
    const int end = std::min(MiddleFrom(std::max(from.x, to.x)), steep ? clip_.bottom : clip_.right);
    const auto half = static_cast<std::int64_t>(pen.width * stretch * kToMiddle * kOne);
    const auto step = static_cast<std::int64_t>(std::floor(slope * kOne));
    // Counted from where the segment begins, so that a part of a picture is as the whole one.
    const double origin = std::floor((from.y + (begin + kToMiddle - from.x) * slope) * kOne);
    std::int64_t middle = static_cast<std::int64_t>(origin) + step * (first - begin);
    for (int at = first; at < end; ++at, middle += step) {
        if (pen.gap > 0) {
            const double passed = start + std::fabs(at + kToMiddle - from.x) * stretch;
            if (std::fmod(passed, pen.dash + pen.gap) >= pen.dash) {
                continue;
            }
        }
        Column(at, middle - half, middle + half, steep);
    }
}

void Plotter::Column(std::ptrdiff_t along, std::int64_t low, std::int64_t high, bool steep) {
    const std::ptrdiff_t across = steep ? 1 : board_.stride;
    const std::int64_t begin = steep ? clip_.left : clip_.top;
    const std::int64_t end = steep ? clip_.right : clip_.bottom;
    const std::int64_t first = low >> kBits;
    const std::int64_t last = high >> kBits;
    // A row beside the board has no place in its pixels: each is looked up where it is known to lie on it.
    std::uint32_t* const column = board_.pixels + along * (steep ? board_.stride : 1);
    if (first >= begin && first + 2 < end && last <= first + 2) {
        // Nearly always: three pixels, the last of them perhaps without a share, and no question in between.
        for (std::int64_t at = first; at < first + 3; ++at) {
            Blend(column[at * across],
                  std::max<std::int64_t>(std::min(high, (at + 1) * kOne) - std::max(low, at * kOne), 0));
        }
        return;
    }
    for (std::int64_t at = first; at <= last; ++at) {
        if (at >= begin && at < end) {
            Blend(column[at * across], std::min(high, (at + 1) * kOne) - std::max(low, at * kOne));
        }
    }
}

void Plotter::Blend(std::uint32_t& pixel, std::int64_t covered) const {
    const std::uint32_t part = shades_[static_cast<std::size_t>(covered * std::int64_t{kShades} >> kBits)];
    pixel = part + Scaled(pixel, 255 - (part >> 24));
}

}  // namespace Tarvik::Seamap

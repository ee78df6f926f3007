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
#include <numeric>

namespace Tarvik::Seamap {

namespace {

constexpr double kToMiddle = 0.5;
constexpr int kBits = 16;
constexpr std::int64_t kOne = 1 << kBits;  ///< a pixel
constexpr int kRowBits = 32;               ///< below the row of a crossing: its column
constexpr int kToShade = 10;               ///< bits between the share of a pixel and its shade

/// Each channel times share of 255, all four in one step, each with 16 bits of its own.
std::uint32_t Scaled(std::uint32_t pixel, std::uint32_t share) {
    constexpr std::uint64_t kLanes = 0x00FF00FF00FF00FF, kRound = 0x0080008000800080;
    constexpr int kApart = 24, kByte = 8;
    std::uint64_t lanes = (pixel | (std::uint64_t{pixel} << kApart)) & kLanes;
    lanes *= share;
    lanes = ((lanes + ((lanes >> kByte) & kLanes) + kRound) >> kByte) & kLanes;
    return static_cast<std::uint32_t>(lanes | (lanes >> kApart));
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

/// As std::floor, which is such a call too; the number is near the board.
std::int64_t Floor(double number) {
    const auto whole = static_cast<std::int64_t>(number);
    return whole - (number < static_cast<double>(whole) ? 1 : 0);
}

}  // namespace

Plotter::Plotter(const PixelBoard& board, const PixelRect& clip)
    : board_(board),
      clip_{std::max(clip.left, 0), std::max(clip.top, 0), std::min(clip.right, board.width),
            std::min(clip.bottom, board.height)} {}

void Plotter::Clear(std::uint32_t colour) {
    for (int row = clip_.top; row < clip_.bottom && clip_.left < clip_.right; ++row) {
        std::uint32_t* const pixels = board_.pixels + row * board_.stride;
        FillRow(pixels + clip_.left, pixels + clip_.right, colour);
    }
}

void Plotter::Fill(std::span<const PixelPoint> area, std::uint32_t colour) {
    if (area.size() < 3 || clip_.left >= clip_.right) {
        return;
    }
    crossings_.clear();
    PixelPoint before = area.back();
    int rowBefore = MiddleFrom(before.y);
    for (const PixelPoint& point : area) {
        const int row = MiddleFrom(point.y);
        if (row > rowBefore) {
            FillSide(before, point, rowBefore, row);
        } else if (row < rowBefore) {
            FillSide(point, before, row, rowBefore);
        }
        before = point;
        rowBefore = row;
    }
    Sort();
    for (std::size_t i = 0; i + 1 < crossings_.size(); i += 2) {
        std::uint32_t* row =
            board_.pixels + static_cast<std::ptrdiff_t>(crossings_[i] >> kRowBits) * board_.stride;
        FillRow(row + static_cast<std::uint32_t>(crossings_[i]),
                row + static_cast<std::uint32_t>(crossings_[i + 1]), colour);
    }
}

void Plotter::Sort() {
    if (crossings_.empty()) {
        return;
    }
    // Put in the order of their rows by counting, they need but a step or two each, as few lie in one row.
    const auto [low, high] = std::minmax_element(crossings_.begin(), crossings_.end());
    const std::uint64_t top = *low >> kRowBits;
    rows_.assign((*high >> kRowBits) - top + 2, 0);
    const auto rowOf = [top](std::uint64_t crossing) { return (crossing >> kRowBits) - top; };
    for (const std::uint64_t crossing : crossings_) {
        ++rows_[rowOf(crossing) + 1];
    }
    std::partial_sum(rows_.begin(), rows_.end(), rows_.begin());
    sorted_.resize(crossings_.size());
    for (const std::uint64_t crossing : crossings_) {
        sorted_[rows_[rowOf(crossing)]++] = crossing;
    }
    crossings_.swap(sorted_);
    for (std::size_t i = 1; i < crossings_.size(); ++i) {
        const std::uint64_t here = crossings_[i];
        std::size_t place = i;
        for (; place > 0 && crossings_[place - 1] > here; --place) {
            crossings_[place] = crossings_[place - 1];
        }
        crossings_[place] = here;
    }
}

void Plotter::FillSide(PixelPoint from, PixelPoint to, int first, int end) {
    first = std::max(first, clip_.top);
    end = std::min(end, clip_.bottom);
    if (first >= end) {
        return;
    }
    const double slope = (to.x - from.x) / (to.y - from.y);
    for (int row = first; row < end; ++row) {
        const double x = from.x + (row + kToMiddle - from.y) * slope;
        const int column = MiddleFrom(std::clamp<double>(x, clip_.left, clip_.right));
        crossings_.push_back((std::uint64_t(row) << kRowBits) + std::uint32_t(column));
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
    const int begin = MiddleFrom(std::min(from.x, to.x));
    const int first = std::max(begin, steep ? clip_.top : clip_.left);
    const int end = std::min(MiddleFrom(std::max(from.x, to.x)), steep ? clip_.bottom : clip_.right);
    if (first >= end) {
        return;
    }
    const double slope = (to.y - from.y) / way;
    const double stretch = std::sqrt(1 + slope * slope);
    const auto half = static_cast<std::int64_t>(pen.width * stretch * kToMiddle * kOne);
    const std::int64_t step = Floor(slope * kOne);
    // Counted from where the segment begins, so that a part of a picture is as the whole one.
    const std::int64_t origin = Floor((from.y + (begin + kToMiddle - from.x) * slope) * kOne);
    std::int64_t middle = origin + step * (first - begin);
    if (pen.gap <= 0) {
        Columns({first, end, middle - half, 2 * half, step, steep});
        return;
    }
    for (int at = first; at < end; ++at, middle += step) {
        const double passed = start + std::fabs(at + kToMiddle - from.x) * stretch;
        if (std::fmod(passed, pen.dash + pen.gap) < pen.dash) {
            Columns({at, at + 1, middle - half, 2 * half, step, steep});
        }
    }
}

void Plotter::Columns(const Stretch& part) {
    const std::ptrdiff_t across = part.steep ? 1 : board_.stride;
    const std::ptrdiff_t along = part.steep ? board_.stride : 1;
    const std::int64_t begin = part.steep ? clip_.left : clip_.top;
    const std::int64_t end = part.steep ? clip_.right : clip_.bottom;
    const std::int64_t lastLow = part.low + part.step * (part.end - part.first - 1);
    const std::int64_t least = std::min(part.low, lastLow) >> kBits;
    const std::int64_t most = (std::max(part.low, lastLow) + part.width) >> kBits;
    if (most < begin || least >= end) {
        return;
    }
    std::uint32_t* column = board_.pixels + part.first * along;
    std::int64_t low = part.low;
    const bool inside = least >= begin && most < end;  // nearly always
    for (int at = part.first; at < part.end; ++at, column += along, low += part.step) {
        if (inside) {
            Across(column + (low >> kBits) * across, across, low & (kOne - 1), part.width);
        } else {
            Column(column, across, {low, low + part.width}, {begin, end});
        }
    }
}

void Plotter::Across(std::uint32_t* pixel, std::ptrdiff_t across, std::int64_t free,
                     std::int64_t width) const {
    std::int64_t part = std::min(kOne - free, width);
    Blend(*pixel, part);
    while ((width -= part) > 0) {
        pixel += across;
        part = std::min(width, kOne);
        Blend(*pixel, part);
    }
}

void Plotter::Column(std::uint32_t* column, std::ptrdiff_t across, Stripe line, Stripe board) const {
    // A row beside the board has no place in its pixels: each is looked up where it is known to lie on it.
    const std::int64_t last = std::min(line.end >> kBits, board.end - 1);
    for (std::int64_t at = std::max(line.begin >> kBits, board.begin); at <= last; ++at) {
        Blend(column[at * across], std::min(line.end, (at + 1) * kOne) - std::max(line.begin, at * kOne));
    }
}

void Plotter::Blend(std::uint32_t& pixel, std::int64_t covered) const {
    const std::uint32_t part = shades_[static_cast<std::size_t>(covered >> kToShade)];
    pixel = pixel == 0 ? part : part + Scaled(pixel, 255 - (part >> 24));
}

}  // namespace Tarvik::Seamap

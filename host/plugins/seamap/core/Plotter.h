// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "host/plugins/seamap/core/Projection.h"

namespace Tarvik::Seamap {

/// The pixels of a picture, row by row: 0xAARRGGBB, the colours multiplied by their alpha.
struct PixelBoard {
    std::uint32_t* pixels = nullptr;
    std::ptrdiff_t stride = 0;  ///< pixels from one row to the next
    int width = 0;
    int height = 0;
};

/// Pixels of a board; right and bottom lie outside.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// What a line is drawn with; lengths in pixels of the board.
struct PlotPen {
    std::uint32_t colour = 0xFF000000;  ///< as the board's pixels
    double width = 1;
    double dash = 0;  ///< without gap: a solid line
    double gap = 0;
};

/// Draws many areas and thin lines into pixels. A general painter asks for each line what a plain one does
/// not need, and takes several times as long.
class Plotter {
  public:
    /// Draws on the part `clip` of a board, whose pixels outlive this.
    Plotter(const PixelBoard& board, const PixelRect& clip);

    /// Paints the whole part with a colour.
    void Clear(std::uint32_t colour);
    /// Paints the pixels whose middles lie inside, by the odd number of sides beside them, with a colour
    /// without alpha.
    void Fill(std::span<const PixelPoint> area, std::uint32_t colour);
    /// Draws a line with soft edges and without caps; `start` is the length of the line before its first
    /// point, for the dashes.
    void Stroke(std::span<const PixelPoint> line, const PlotPen& pen, double start = 0);

  private:
    /// From and to with their rows, the upper one first.
    void FillSide(PixelPoint from, PixelPoint to, int first, int end);
    /// Brings the crossings into their order.
    void Sort();
    void Segment(PixelPoint from, PixelPoint to, const PlotPen& pen, double start);
    /// From `begin` to `end`: of a line in 1/65536 pixels, of the board in pixels.
    struct Stripe {
        std::int64_t begin, end;
    };
    /// Columns `first` to `end` of a segment's longer direction: in the first of them the line covers `width`
    /// from `low` on, in each next one `step` further; in 1/65536 pixels.
    struct Stretch {
        int first, end;
        std::int64_t low, width, step;
        bool steep;
    };
    void Columns(const Stretch& part);
    /// The pixels across a line that begins `free` behind the first one's edge.
    void Across(std::uint32_t* pixel, std::ptrdiff_t across, std::int64_t free, std::int64_t width) const;
    void Column(std::uint32_t* column, std::ptrdiff_t across, Stripe line, Stripe board) const;
    /// Paints a pixel of which the line covers so much of 65536.
    void Blend(std::uint32_t& pixel, std::int64_t covered) const;
    void Mix(std::uint32_t colour);

    static constexpr std::size_t kShades = 64;

    PixelBoard board_;
    PixelRect clip_;
    std::vector<std::uint64_t> crossings_;  ///< of the area being filled: row and column, to be sorted
    std::vector<std::uint64_t> sorted_;     ///< room for sorting
    std::vector<std::uint32_t> rows_;       ///< how many crossings lie before each row
    std::array<std::uint32_t, kShades + 1> shades_{};  ///< of the pen, by the share of a pixel
};

}  // namespace Tarvik::Seamap

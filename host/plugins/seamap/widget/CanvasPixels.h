// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/plugins/seamap/core/Plotter.h"

/// A picture's pixels for the plotter.
namespace Tarvik::Seamap {

/// The pixels of a picture of 32 bits each; good until it is resized or shared.
inline PixelBoard BoardOf(QImage& canvas) {
    return {reinterpret_cast<std::uint32_t*>(canvas.bits()),
            canvas.bytesPerLine() / static_cast<qsizetype>(sizeof(std::uint32_t)), canvas.width(),
            canvas.height()};
}

/// The pixel of a colour 0x00RRGGBB.
constexpr std::uint32_t OpaquePixel(std::uint32_t colour) {
    return 0xFF000000 | colour;
}

/// Rows of a picture that are worth a thread of their own: so many of the chart's width stay in a core's
/// cache.
inline constexpr int kBandRows = 90;

/// A part of a picture cut into bands of whole rows, which can be drawn beside one another.
inline std::vector<PixelRect> BandsOf(const PixelRect& part) {
    const int height = part.bottom - part.top;
    const int count = std::max(1, height / kBandRows);
    std::vector<PixelRect> bands;
    bands.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        bands.push_back(
            {part.left, part.top + height * i / count, part.right, part.top + height * (i + 1) / count});
    }
    return bands;
}

}  // namespace Tarvik::Seamap

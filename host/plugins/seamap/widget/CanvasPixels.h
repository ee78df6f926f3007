// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <cstdint>

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

}  // namespace Tarvik::Seamap

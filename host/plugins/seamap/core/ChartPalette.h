// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include <tarvik/skin/Colours.h>

namespace Tarvik::Seamap {

/// The chart's colours of one theme, each 0x00RRGGBB, out of the list that all windows share.
struct ChartPalette {
    using Theme = Skin::Theme;

    Theme theme = Theme::Light;
    std::uint32_t sea = 0;
    std::uint32_t land = 0;
    std::uint32_t coast = 0;
    std::uint32_t graticule = 0;
    std::uint32_t text = 0;
    std::uint32_t secondaryText = 0;
    std::uint32_t halo = 0;     ///< round texts and under lines, so that both stand out from the ground
    std::uint32_t accent = 0;   ///< focus and highlight
    std::uint32_t outline = 0;  ///< rim of points

    static const ChartPalette& Of(Theme theme);

    /// The screen colour 0x00RRGGBB of an object's colour, which comes as 0x00BBGGRR: as it is on the light
    /// chart, lightened on the dark one, in shades of red by night.
    std::uint32_t ObjectColour(std::int32_t bgr) const;
};

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/ChartPalette.h"

#include <array>
#include <cstddef>

namespace Tarvik::Seamap {

namespace {

ChartPalette PaletteOf(Skin::Theme theme) {
    using Skin::Role;
    const auto colour = [theme](Role role) { return Skin::ColourOf(role, theme); };
    return {theme,
            colour(Role::Sea),
            colour(Role::Land),
            colour(Role::Coast),
            colour(Role::Graticule),
            colour(Role::ChartText),
            colour(Role::ChartSecondary),
            colour(Role::ChartHalo),
            colour(Role::ChartAccent),
            colour(Role::ChartOutline)};
}

constexpr std::uint32_t Lighten(std::uint32_t channel) {
    return channel + (255 - channel) * 3 / 10;
}

}  // namespace

const ChartPalette& ChartPalette::Of(Theme theme) {
    static const std::array<ChartPalette, Skin::kThemes.size()> kPalettes{
        PaletteOf(Theme::Light), PaletteOf(Theme::Dark), PaletteOf(Theme::Night)};
    return kPalettes[static_cast<std::size_t>(theme)];
}

std::uint32_t ChartPalette::ObjectColour(std::int32_t bgr) const {
    const auto value = static_cast<std::uint32_t>(bgr);
    const std::uint32_t red = value & 0xFF;
    const std::uint32_t green = value >> 8 & 0xFF;
    const std::uint32_t blue = value >> 16 & 0xFF;
    if (theme == Theme::Light) {
        return red << 16 | green << 8 | blue;
    }
    if (theme == Theme::Dark) {
        return Lighten(red) << 16 | Lighten(green) << 8 | Lighten(blue);
    }
    // By night only the brightness tells things apart: 120 to 230 of red with a little of the rest.
    const std::uint32_t bright = 120 + (red * 30 + green * 59 + blue * 11) / 100 * 110 / 255;
    return bright << 16 | bright / 4 << 8 | bright / 5;
}

}  // namespace Tarvik::Seamap

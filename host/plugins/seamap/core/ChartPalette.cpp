// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/ChartPalette.h"

namespace Tarvik::Seamap {

namespace {

constexpr ChartPalette kLight{ChartPalette::Theme::Light,
                              0xCFE2F0,
                              0xF2EBD9,
                              0x8C8269,
                              0x9DB3C4,
                              0x17222B,
                              0x51626F,
                              0xFFFFFF,
                              0x1F6FB2,
                              0xFFFFFF};
constexpr ChartPalette kDark{ChartPalette::Theme::Dark,
                             0x0E1A25,
                             0x25323B,
                             0x5B6B73,
                             0x2B3F4F,
                             0xE4EBF0,
                             0x9FB1BF,
                             0x0E1A25,
                             0x4BA3E3,
                             0x0E1A25};
constexpr ChartPalette kNight{ChartPalette::Theme::Night,
                              0x0A0202,
                              0x210707,
                              0x5A1414,
                              0x330B0B,
                              0xD64A3A,
                              0xA83A2E,
                              0x0A0202,
                              0xE0503C,
                              0x0A0202};

constexpr std::uint32_t Lighten(std::uint32_t channel) {
    return channel + (255 - channel) * 3 / 10;
}

}  // namespace

const ChartPalette& ChartPalette::Of(Theme theme) {
    switch (theme) {
        case Theme::Dark:
            return kDark;
        case Theme::Night:
            return kNight;
        case Theme::Light:
            break;
    }
    return kLight;
}

std::optional<ChartPalette::Theme> ChartPalette::ThemeOf(std::string_view name) {
    if (name == "light") {
        return Theme::Light;
    }
    if (name == "dark") {
        return Theme::Dark;
    }
    if (name == "night") {
        return Theme::Night;
    }
    return std::nullopt;
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

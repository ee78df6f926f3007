// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/Graticule.h"

#include <array>
#include <cmath>

#include <fmt/format.h>

namespace Tarvik::Seamap {

namespace {

constexpr double kLeastGap = 96;  // pixels between meridians
constexpr std::array<double, 16> kSpacings{0.1, 0.2, 0.5, 1,   2,   5,   10,   20,
                                           30,  60,  120, 300, 600, 900, 1800, 2700};  // minutes of arc

double ChooseSpacing(const MercatorView& view) {
    const double perMinute = static_cast<double>(view.WorldSize()) / (360.0 * 60.0);
    for (const double spacing : kSpacings) {
        if (spacing * perMinute >= kLeastGap) {
            return spacing;
        }
    }
    return kSpacings.back();
}

/// Text of an angle in tenths of a minute, with no more parts than the spacing needs.
std::string AngleText(int tenths, double spacing, int digits, char positive, char negative) {
    const int size = std::abs(tenths);
    if (size == 0) {
        return "0°";
    }
    std::string text = fmt::format("{:0{}}°", size / 600, digits);
    if (spacing < 1) {
        text += fmt::format(" {:02}.{}'", size % 600 / 10, size % 10);
    } else if (spacing < 60) {
        text += fmt::format(" {:02}'", size % 600 / 10);
    }
    if (digits == 3 && size == 180 * 600) {
        return text;
    }
    return text + ' ' + (tenths < 0 ? negative : positive);
}

}  // namespace

Graticule::Graticule(const MercatorView& view) : spacing_(ChooseSpacing(view)) {
    if (!view.HasSize()) {
        return;
    }
    const int step = static_cast<int>(std::lround(spacing_ * 10));
    const double perTenth = static_cast<double>(view.WorldSize()) / (360.0 * 600.0);
    const double west = static_cast<double>(view.Left()) / perTenth - 180.0 * 600.0;
    const double east = west + view.Width() / perTenth;
    for (int at = static_cast<int>(std::ceil(west / step)) * step; at <= east; at += step) {
        int lon = (at + 180 * 600) % (360 * 600);
        if (lon < 0) {
            lon += 360 * 600;
        }
        meridians_.push_back({(at - west) * perTenth, AngleText(lon - 180 * 600, spacing_, 3, 'E', 'W')});
    }
    const Extent shown = view.Visible();
    const int south = static_cast<int>(std::ceil(shown.south * 600 / step)) * step;
    for (int at = south; at <= shown.north * 600; at += step) {
        const double y = view.ToScreen(Project({0, at / 600.0})).y;
        if (std::abs(at) < 89 * 600) {
            parallels_.push_back({y, AngleText(at, spacing_, 2, 'N', 'S')});
        }
    }
}

ScaleBar ScaleBar::For(const MercatorView& view, double longestPixels) {
    ScaleBar bar;
    if (!view.HasSize()) {
        return bar;
    }
    const double perPixel = view.MilesPerPixel(Unproject(view.Centre()).y);
    const double longest = perPixel * longestPixels;
    const double decade = std::pow(10.0, std::floor(std::log10(longest)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * decade <= longest) {
            bar.miles = factor * decade;
        }
    }
    bar.pixels = bar.miles / perPixel;
    bar.text = fmt::format("{:g} NM", bar.miles);
    return bar;
}

}  // namespace Tarvik::Seamap

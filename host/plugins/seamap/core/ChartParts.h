// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace Tarvik::Seamap {

/// What of the chart a person shows or hides.
struct ChartParts {
    bool graticule = true;  ///< the net of meridians and parallels with its names
    bool names = true;      ///< of waters and ports
    bool daylight = false;  ///< the shadow of the night
    bool tints = false;     ///< each voyage in a colour of its own, with a legend

    bool operator==(const ChartParts&) const = default;
};

/// A part by the name that commands and preferences know it by.
struct ChartPartName {
    std::string_view name;
    bool ChartParts::*part;
};
inline constexpr std::array kChartPartNames{
    ChartPartName{"graticule", &ChartParts::graticule}, ChartPartName{"names", &ChartParts::names},
    ChartPartName{"daylight", &ChartParts::daylight}, ChartPartName{"voyage_colours", &ChartParts::tints}};

/// The part of a name; empty for an unknown one.
constexpr std::optional<ChartPartName> FindChartPart(std::string_view name) {
    for (const ChartPartName& known : kChartPartNames) {
        if (known.name == name) {
            return known;
        }
    }
    return std::nullopt;
}

}  // namespace Tarvik::Seamap

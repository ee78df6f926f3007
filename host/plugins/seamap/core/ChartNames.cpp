// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/ChartNames.h"

#include <algorithm>

#include <tarvik/interface/PlanTerms.h>

namespace Tarvik::Seamap {

namespace {

constexpr double kOceanMiles = 2000;     ///< from this width on a water is named as an ocean
constexpr double kFit = 0.8;             ///< part of a name that its water must hold
constexpr double kMajorPortMiles = 4.0;  ///< a pixel in nautical miles, from which on major ports are named
constexpr double kPortMiles = 0.8;       ///< the same for all ports
constexpr double kCodeMiles = 0.15;      ///< the same for their codes

ChartName NameOf(const Ports::Place& port, bool isChinese) {
    ChartName name{.kind = ChartName::Kind::Port, .position = *port.position, .text = port.name};
    if (isChinese && !port.nameCn.empty()) {
        name.text = port.nameCn;
    }
    name.code = port.unlocode;
    name.port = port.name;
    name.local = port.nameCn;
    name.aliases = port.aliases;
    name.own = port.id.size() > Interface::kShippedIdDigits ? port.id : std::string();
    // The ports that the trade knows have a Chinese name, the others their English one again. What a person
    // has put on the chart is looked for there.
    name.isMajor = !name.own.empty() || (!port.nameCn.empty() && port.nameCn != port.name);
    return name;
}

}  // namespace

bool ChartName::IsShownAt(double milesPerPixel, double width) const {
    if (kind != Kind::Port) {
        return miles >= kFit * width * milesPerPixel;
    }
    return milesPerPixel <= (isMajor ? kMajorPortMiles : kPortMiles);
}

bool ChartName::HasCodeAt(double milesPerPixel) {
    return milesPerPixel <= kCodeMiles;
}

std::vector<ChartName> NamesOfChart(const NameTexts& texts, const std::vector<Ports::Place>& places) {
    std::vector<ChartName> names;
    for (const Water& water : Waters()) {
        std::string text = texts("Waters", water.key);
        if (!text.empty()) {
            names.push_back(
                {.kind = water.miles >= kOceanMiles ? ChartName::Kind::Ocean : ChartName::Kind::Water,
                 .position = water.position,
                 .text = std::move(text),
                 .miles = static_cast<double>(water.miles)});
        }
    }
    const bool isChinese = texts("Chart", "PORT_NAMES") == "namecn";
    const auto firstPort = static_cast<std::ptrdiff_t>(names.size());
    for (const Ports::Place& place : places) {
        if (place.isPort && place.position && !place.name.empty()) {
            names.push_back(NameOf(place, isChinese));
        }
    }
    const auto others = std::stable_partition(names.begin() + firstPort, names.end(),
                                              [](const ChartName& name) { return name.isMajor; });
    std::stable_partition(names.begin() + firstPort, others,
                          [](const ChartName& name) { return !name.own.empty(); });
    return names;
}

}  // namespace Tarvik::Seamap

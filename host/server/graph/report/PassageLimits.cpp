// SPDX-License-Identifier: MIT
#include <stdexcept>

#include <fmt/format.h>

#include "host/server/graph/report/RouteFiles.h"

namespace Tarvik::Server {

namespace {

struct Measure {
    const char* name;
    std::optional<double> ShipSize::*value;
};

constexpr Measure kMeasures[] = {
    {"draught", &ShipSize::draught},
    {"beam", &ShipSize::beam},
    {"length", &ShipSize::length},
};

}  // namespace

std::optional<double> ReadMetres(const std::string& text) {
    try {
        const double metres = Data::ToNumber(text);
        return metres > 0.0 ? std::optional(metres) : std::nullopt;
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

PassageLimits::PassageLimits(const Data::CsvTable& table) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        Limit limit{table.At(i, "passage"), {}};
        for (const Measure& measure : kMeasures) {
            const std::string text = table.At(i, measure.name);
            limit.largest.*measure.value = ReadMetres(text);
            if (!text.empty() && !(limit.largest.*measure.value)) {
                throw std::runtime_error(limit.passage + " has no " + measure.name + " of " + text);
            }
        }
        limits_.push_back(std::move(limit));
    }
}

std::vector<PassageLimits::Refusal> PassageLimits::RefusedTo(const ShipSize& ship) const {
    std::vector<Refusal> refusals;
    for (const Limit& limit : limits_) {
        for (const Measure& measure : kMeasures) {
            const auto& largest = limit.largest.*measure.value;
            const auto& mine = ship.*measure.value;
            if (largest && mine && *mine > *largest) {
                refusals.push_back({limit.passage, fmt::format("{} above {} m", measure.name, *largest)});
                break;
            }
        }
    }
    return refusals;
}

}  // namespace Tarvik::Server

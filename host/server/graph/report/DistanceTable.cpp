// SPDX-License-Identifier: MIT
#include "host/server/graph/report/DistanceTable.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "host/geo/Sphere.h"
#include "host/server/graph/report/Places.h"

namespace Tarvik::Server {

namespace {

/// Longer ways are oceans' business, shorter ones the coasts'.
constexpr double kLongNm = 1000.0;
constexpr double kShortNm = 100.0;

std::string FirstOf(const Data::CsvTable& table, std::size_t row, const char* one, const char* other) {
    const std::string text = table.At(row, one);
    return text.empty() ? table.At(row, other) : text;
}

void Measure(const Places& places, const RouteEngine& engine, DistanceLine& line) {
    const std::string from = places.PortId(line.from);
    const std::string to = places.PortId(line.to);
    if (from.empty() || to.empty()) {
        line.fault = "there is no port " + (from.empty() ? line.from : line.to);
        return;
    }
    const auto miles = [&](const StatedPassages& passages) {
        const RouteResult result = engine.Plan({{from, {}, {}}, places.StopBy(passages.through, from, to)},
                                               {}, places.WithoutPassages(passages.without));
        line.fault = result.message;
        return result.error == kRouteOk ? result.stops[1].distanceKm / kKmPerNm : 0.0;
    };
    line.usualNm = miles({});
    const StatedPassages stated = PassagesOf(line.via);
    line.nm = stated.through.empty() && stated.without.empty() ? line.usualNm : miles(stated);
}

std::string Summary(const char* title, std::vector<double> errors) {
    if (errors.empty()) {
        return {};
    }
    std::sort(errors.begin(), errors.end());
    const auto share = [&errors](double part) {
        return 100.0 * errors[static_cast<std::size_t>(part * static_cast<double>(errors.size() - 1))];
    };
    const auto within = [&errors](double limit) {
        const auto end = std::upper_bound(errors.begin(), errors.end(), limit);
        return 100.0 * static_cast<double>(end - errors.begin()) / static_cast<double>(errors.size());
    };
    return fmt::format(
        "{}: {} pairs, median {:.2f} %, 90th percentile {:.2f} %, {:.1f} % within 5 %, "
        "{:.1f} % within 10 %\n",
        title, errors.size(), share(0.5), share(0.9), within(0.05), within(0.1));
}

}  // namespace

std::vector<DistanceLine> MeasureDistances(const SeaNetwork& network, const RouteEngine& engine,
                                           const Data::CsvTable& table) {
    const Places places(network);
    std::vector<DistanceLine> lines;
    for (std::size_t i = 0; i < table.size(); ++i) {
        DistanceLine line;
        line.from = FirstOf(table, i, "from_unlocode", "from");
        line.to = FirstOf(table, i, "to_unlocode", "to");
        line.via = table.At(i, "via");
        const double published = std::strtod(table.At(i, "nm").c_str(), nullptr);
        if (published > 0.0) {
            line.published = published;
        }
        Measure(places, engine, line);
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string DistanceText(const std::vector<DistanceLine>& lines) {
    std::string text = "from,to,nm,published,error,via\n";
    for (const DistanceLine& line : lines) {
        if (!line.fault.empty()) {
            text += fmt::format("{},{},,,,\"{}\"\n", line.from, line.to, line.fault);
            continue;
        }
        text += fmt::format("{},{},{:.1f},", line.from, line.to, line.nm);
        text += line.published ? fmt::format("{},{:.2f} %", *line.published, 100.0 * line.Error()) : ",";
        text += fmt::format(",\"{}\"\n", line.via);
    }
    return text;
}

std::string DistanceStatistics(const std::vector<DistanceLine>& lines) {
    struct Best {
        double published = 0.0;
        double stated = HUGE_VAL;
        double usual = HUGE_VAL;
    };
    std::map<std::pair<std::string, std::string>, Best> pairs;
    for (const DistanceLine& line : lines) {
        if (!line.published || !line.fault.empty()) {
            continue;
        }
        Best& best = pairs[{line.from, line.to}];
        best.published = *line.published;
        best.stated = std::min(best.stated, std::abs(line.Error()));
        best.usual = std::min(best.usual, std::abs(line.usualNm / *line.published - 1.0));
    }
    std::vector<double> errors[4];
    for (const auto& [pair, best] : pairs) {
        if (best.published < kShortNm) {
            continue;
        }
        const std::size_t range = best.published > kLongNm ? 0 : 2;
        errors[range].push_back(best.stated);
        errors[range + 1].push_back(best.usual);
    }
    return Summary("above 1,000 NM by the stated routing", std::move(errors[0])) +
           Summary("above 1,000 NM by our routing", std::move(errors[1])) +
           Summary("100 to 1,000 NM by the stated routing", std::move(errors[2])) +
           Summary("100 to 1,000 NM by our routing", std::move(errors[3]));
}

}  // namespace Tarvik::Server

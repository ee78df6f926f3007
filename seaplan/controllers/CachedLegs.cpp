// SPDX-License-Identifier: MIT
#include "seaplan/controllers/CachedLegs.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include <tarvik/util/FileUtl.h>

#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/controllers/RouteExchange.h"

/// Known legs between two ports, by the ports' names and the direction. The whole file is read once, at the
/// first question, and written in full after each leg that was fetched: a new voyage of n legs costs n
/// requests and n writings, a known one costs n look-ups in an ordered map.
namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kStopsOfLeg = 2;
constexpr float kMaxAgeHours = 2160.0F;
/// Some hundred times the largest cache of real use; a larger file is none, and would not fit into memory.
constexpr std::uintmax_t kMostCacheBytes = 256UL * 1024 * 1024;

/// Legs that were stored before this are not good any more, whatever their age.
Util::_datetime_t Epoch() {
    return {0, 0, 0, 1, 6, 2011};
}

std::filesystem::path CachePath(const std::string& name) {
    const std::string file = name.empty() ? "Ports.dat" : name;
    return Util::FileUtl::NativePath(Util::FileUtl::GetCurrentAppDirectory() + "\\businessdata\\seaplan\\" +
                                     file);
}

}  // namespace

void ReadCacheFile(const std::string& name, LegCache& cache) {
    const std::filesystem::path path = CachePath(name);
    std::error_code missing;
    if (std::filesystem::file_size(path, missing) > kMostCacheBytes || missing) {
        return;
    }
    std::ifstream in(path, std::ios::binary);
    if (in) {
        ReadCache(in, cache);
    }
}

int WriteCacheFile(const std::string& name, const LegCache& cache) {
    const std::filesystem::path path = CachePath(name);
    std::error_code ignored;
    std::filesystem::create_directories(path.parent_path(), ignored);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    return WriteCache(out, cache);
}

Outcome<CachedLegs::FetchStep> CachedLegs::Fetch(const VoyPortCall& from, const VoyPortCall& to) {
    RouteLegCacheEntry fresh;
    const auto asked = AskRoute(RouteRequestText({from.ppi, to.ppi}), fresh.stops);
    if (asked.Failed() || fresh.stops.size() != kStopsOfLeg) {
        return FetchStep::Ask;
    }
    fresh.from = from.ppn;
    fresh.to = to.ppn;
    fresh.stamp = Util::_datetime_t::now();
    legs_[LegCacheKey(from.ppn, to.ppn)] = std::move(fresh);
    return WriteCacheFile("", legs_) < 0 ? FetchStep::Write : Outcome<FetchStep>();
}

Outcome<LegStep> CachedLegs::Leg(const VoyPortCall& from, const VoyPortCall& to, RouteStops& leg) {
    const std::string key = LegCacheKey(from.ppn, to.ppn);
    const auto found = legs_.find(key);
    const bool known = found != legs_.end();
    const int stale = known ? IsStale(found->second, Epoch(), kMaxAgeHours, Util::_datetime_t::now()) : 1;
    if (stale < 0) {
        return LegStep::Age;
    }
    if (stale > 0) {
        if (const auto fetched = Fetch(from, to); fetched.Failed()) {
            const bool unasked = fetched.At() == FetchStep::Ask;
            return known ? (unasked ? LegStep::FetchAgain : LegStep::StoreAgain)
                         : (unasked ? LegStep::Fetch : LegStep::Store);
        }
    }
    leg = legs_[key].stops;
    return leg.size() == kStopsOfLeg ? Outcome<LegStep>() : LegStep::Stops;
}

Outcome<LegStep> CachedLegs::StopsOf(const PortCallRows& rows, RouteStops& out) {
    out.clear();
    if (rows.size() < 2) {
        return LegStep::TooFewRows;
    }
    if (legs_.empty()) {
        ReadCacheFile("", legs_);
    }
    RouteStops stops;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        RouteStops leg;
        if (const auto failed = Leg(rows[i - 1], rows[i], leg); failed.Failed()) {
            return failed;
        }
        if (i == 1) {
            stops.push_back(leg.front());
        }
        stops.push_back(leg.back());
        for (RoutePointGroup& group : stops.back().rp_groups) {
            group.leg = static_cast<std::int32_t>(i);
        }
    }
    for (std::size_t i = 1; i < stops.size(); ++i) {
        if (!MeasureSegments(stops[i])) {
            return LegStep::Pointset;
        }
    }
    out = std::move(stops);
    return {};
}

}  // namespace Tarvik::Seaplan

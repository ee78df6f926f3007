// SPDX-License-Identifier: MIT
#include "seaplan/controllers/CachedLegs.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include <tarvik/util/FileUtl.h>

#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/controllers/RouteExchange.h"

/// Known legs between two ports, by the ports' names and the direction. The whole file is read once, at the
/// first question. Asked for leg by leg, it is written in full after each leg that was fetched: a new voyage
/// of n legs costs n requests and n writings, a known one n look-ups in an ordered map. The legs of a whole
/// list cost one writing, and none when all were confirmed within a day.
namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kStopsOfLeg = 2;
constexpr float kMaxAgeHours = 2160.0F;
/// A leg that the server has confirmed within a day is not written again.
constexpr float kFreshHours = 24.0F;
/// Some hundred times the largest cache of real use; a larger file is none, and would not fit into memory.
constexpr std::uintmax_t kMostCacheBytes = 256UL * 1024 * 1024;

/// Legs that were stored before this are not good any more, whatever their age.
Util::_datetime_t Epoch() {
    return {0, 0, 0, 1, 6, 2011};
}

std::filesystem::path CachePath(const std::string& name) {
    return Util::FileUtl::NativePath(
        Util::FileUtl::BusinessData("seaplan/" + (name.empty() ? "Ports.dat" : name)));
}

/// Appends a leg to the stops before it; its groups belong to the stop that they then are.
void AddLeg(const RouteStops& leg, RouteStops& stops) {
    if (stops.empty()) {
        stops.push_back(leg.front());
    }
    const auto index = static_cast<std::int32_t>(stops.size());
    stops.push_back(leg.back());
    for (RoutePointGroup& group : stops.back().rp_groups) {
        group.leg = index;
    }
}

/// Whether two ends of a leg were reached by the same way with the same choices.
bool IsSameWay(const RouteStop& a, const RouteStop& b) {
    const auto sameSegment = [](const RouteSegment& x, const RouteSegment& y) {
        return x.from_cd == y.from_cd && x.end_cd == y.end_cd && x.pointset == y.pointset;
    };
    const auto sameGroup = [](const RoutePointGroup& x, const RoutePointGroup& y) {
        return x.rp_id == y.rp_id && x.range == y.range && x.alternatives == y.alternatives;
    };
    return a.point_cd == b.point_cd &&
           std::equal(a.routes.begin(), a.routes.end(), b.routes.begin(), b.routes.end(), sameSegment) &&
           std::equal(a.rp_groups.begin(), a.rp_groups.end(), b.rp_groups.begin(), b.rp_groups.end(),
                      sameGroup);
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

void CachedLegs::Open() {
    if (legs_.empty()) {
        ReadCacheFile("", legs_);
    }
}

/// Whether the leg is new, or another one than was kept, or was kept long ago.
bool CachedLegs::KeepLeg(const VoyPortCall& from, const VoyPortCall& to, const RouteStop& start,
                         const RouteStop& end) {
    const Util::_datetime_t now = Util::_datetime_t::now();
    RouteLegCacheEntry fresh;
    fresh.from = from.ppn;
    fresh.to = to.ppn;
    fresh.stamp = now;
    fresh.stops.resize(kStopsOfLeg);
    fresh.stops[0].point_cd = start.point_cd;
    fresh.stops[1] = end;
    RouteLegCacheEntry& kept = legs_[LegCacheKey(from.ppn, to.ppn)];
    const bool good = kept.stops.size() == kStopsOfLeg && IsStale(kept, Epoch(), kFreshHours, now) == 0 &&
                      IsSameWay(kept.stops[1], end);
    if (!good) {
        kept = std::move(fresh);
    }
    return !good;
}

void CachedLegs::Keep(const PortCallRows& rows, const RouteStops& stops) {
    if (rows.size() != stops.size()) {
        return;
    }
    Open();
    bool changed = false;
    for (std::size_t i = 1; i < stops.size(); ++i) {
        const bool named = !rows[i - 1].ppn.empty() && !rows[i].ppn.empty();
        if (named && stops[i].locks.empty() && !stops[i].routes.empty()) {
            changed = KeepLeg(rows[i - 1], rows[i], stops[i - 1], stops[i]) || changed;
        }
    }
    if (changed) {
        static_cast<void>(WriteCacheFile("", legs_));
    }
}

std::optional<Util::_datetime_t> CachedLegs::Known(const PortCallRows& rows, RouteStops& out) {
    Open();
    RouteStops stops;
    std::optional<Util::_datetime_t> oldest;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const auto found = legs_.find(LegCacheKey(rows[i - 1].ppn, rows[i].ppn));
        if (found == legs_.end() || found->second.stops.size() != kStopsOfLeg ||
            Epoch() > found->second.stamp) {
            return std::nullopt;
        }
        const RouteStops& leg = found->second.stops;
        if (leg.front().point_cd != rows[i - 1].ppi || leg.back().point_cd != rows[i].ppi) {
            return std::nullopt;
        }
        AddLeg(leg, stops);
        if (!MeasureSegments(stops.back())) {
            return std::nullopt;
        }
        oldest = oldest && found->second.stamp > *oldest ? oldest : found->second.stamp;
    }
    out = std::move(stops);
    return oldest;
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
    Open();
    RouteStops stops;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        RouteStops leg;
        if (const auto failed = Leg(rows[i - 1], rows[i], leg); failed.Failed()) {
            return failed;
        }
        AddLeg(leg, stops);
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

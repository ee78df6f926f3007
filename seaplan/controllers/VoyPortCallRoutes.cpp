// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include <tarvik/util/FileUtl.h>

#include "seaplan/calculation/Pointset.h"
#include "seaplan/calculation/RouteReply.h"
#include "seaplan/calculation/RouteRequest.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/protocol/StatusReply.h"

/// Where the module gets its routes from: the server, or the leg cache.
namespace Tarvik::Seaplan {

namespace {

constexpr std::uint16_t kRouteCommand = 1;
constexpr std::uint16_t kNearestCommand = 2;
constexpr std::size_t kStopsOfLeg = 2;
/// Some hundred times the largest cache of real use; a larger file is none, and would not fit into memory.
constexpr std::uintmax_t kMostCacheBytes = 256UL * 1024 * 1024;

std::filesystem::path CachePath(const std::string& name) {
    const std::string file = name.empty() ? "Ports.dat" : name;
    return Util::FileUtl::NativePath(Util::FileUtl::GetCurrentAppDirectory() + "\\businessdata\\seaplan\\" +
                                     file);
}

VoyPortCall ResultRow(const VoyPortCall& row, const RouteStop& stop) {
    VoyPortCall result;
    result.ppi = stop.point_cd;
    result.ppn = row.ppn;
    result.pp = row.pp;
    result.psp = row.psp;
    result.pw = row.pw;
    result.apt = row.apt;
    result.distance = stop.distance;
    return result;
}

bool IsPosition(const std::string& point) {
    Position ignored;
    return ReadPosition(point, 1, ignored);
}

/// Lengths in km from the point sets; a cached leg stores none.
int Measure(RouteStop& stop) {
    float total = 0;
    for (RouteSegment& segment : stop.routes) {
        if (PointsetLength(segment.pointset, segment.distance) < 0) {
            return -9;
        }
        total += segment.distance;
    }
    stop.distance = total;
    return 0;
}

}  // namespace

int VoyPortCallModule::RequestRoute(const std::string& text, RouteStops& stops, int sendCode, int parseCode) {
    Util::Jsona reply;
    if (SendText(text, kRouteCommand, reply) < 0) {
        return sendCode;
    }
    RouteStops parsed;
    if (ParseRouteReply(reply, parsed) < 0) {
        return parseCode;
    }
    stops = std::move(parsed);
    return 0;
}

int VoyPortCallModule::RequestNearestRoute(const std::string& position, const std::string& portId,
                                           std::vector<std::string>& points) {
    points.clear();
    if (position.empty() || portId.empty()) {
        return -1;
    }
    Util::Jsona reply;
    if (SendText(NearestRequestText(position, portId), kNearestCommand, reply) < 0) {
        return -2;
    }
    if (reply.size() < 1) {
        return -3;
    }
    if (reply.getv("eid", 0) != 0) {
        return -4;
    }
    std::vector<std::string> way;
    SplitPointset(reply.getv("pointset", ""), way);
    if (!std::all_of(way.begin(), way.end(), IsPosition)) {
        return -5;
    }
    points = std::move(way);
    return 0;
}

int VoyPortCallModule::GetRoute(const PortCallRows& rows, PortCallRows& results, bool wholeList) {
    results.clear();
    RouteStops stops;
    if (wholeList) {
        std::vector<std::string> ids;
        for (const VoyPortCall& row : rows) {
            ids.push_back(row.ppi);
        }
        const int failed = ids.size() < 2 ? -1 : RequestRoute(RouteRequestText(ids), stops, -2, -3);
        if (failed < 0) {
            return failed;
        }
    } else if (const int failed = GetStopsByCache(rows, stops); failed < 0) {
        return failed;
    }
    if (stops.size() != rows.size()) {
        return -5;
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        results.push_back(ResultRow(rows[i], stops[i]));
    }
    stops_ = std::move(stops);
    return 0;
}

int VoyPortCallModule::FetchLeg(const VoyPortCall& from, const VoyPortCall& to, RouteLegCacheEntry& entry) {
    RouteStops stops;
    if (const int failed = RequestRoute(RouteRequestText({from.ppi, to.ppi}), stops, -2, -3); failed < 0) {
        return failed;
    }
    if (stops.size() != kStopsOfLeg) {
        return -4;
    }
    entry.from = from.ppn;
    entry.to = to.ppn;
    entry.stops = std::move(stops);
    entry.stamp = Util::_datetime_t::now();
    return 0;
}

int VoyPortCallModule::StoreLeg(const VoyPortCall& from, const VoyPortCall& to, int fetchCode, int saveCode) {
    RouteLegCacheEntry fresh;
    if (FetchLeg(from, to, fresh) < 0) {
        return fetchCode;
    }
    routeCache_[LegCacheKey(from.ppn, to.ppn)] = std::move(fresh);
    return SaveCache("", routeCache_) < 0 ? saveCode : 0;
}

int VoyPortCallModule::CachedLeg(const VoyPortCall& from, const VoyPortCall& to, RouteLegCacheEntry& entry) {
    const std::string key = LegCacheKey(from.ppn, to.ppn);
    int failed = 0;
    if (const auto found = routeCache_.find(key); found == routeCache_.end()) {
        failed = StoreLeg(from, to, -3, -4);
    } else {
        const int stale = IsStale(found->second, cacheEpoch_, cacheMaxAgeHours_, Util::_datetime_t::now());
        failed = stale > 0 ? StoreLeg(from, to, -6, -7) : stale;
    }
    if (failed < 0) {
        return failed;
    }
    entry = routeCache_[key];
    return entry.stops.size() == kStopsOfLeg ? 0 : -8;
}

int VoyPortCallModule::GetStopsByCache(const PortCallRows& rows, RouteStops& out) {
    out.clear();
    if (rows.size() < 2) {
        return -1;
    }
    if (routeCache_.empty() && LoadCache("", routeCache_) < 0) {
        return -2;
    }
    RouteStops stops;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        RouteLegCacheEntry entry;
        if (const int failed = CachedLeg(rows[i - 1], rows[i], entry); failed < 0) {
            return failed;
        }
        if (i == 1) {
            stops.push_back(entry.stops.front());
        }
        stops.push_back(entry.stops.back());
        for (RoutePointGroup& group : stops.back().rp_groups) {
            group.leg = static_cast<std::int32_t>(i);
        }
    }
    for (std::size_t i = 1; i < stops.size(); ++i) {
        if (const int failed = Measure(stops[i]); failed < 0) {
            return failed;
        }
    }
    out = std::move(stops);
    return 0;
}

int VoyPortCallModule::LoadCache(const std::string& name, LegCache& cache) {
    const std::filesystem::path path = CachePath(name);
    std::error_code missing;
    if (std::filesystem::file_size(path, missing) > kMostCacheBytes || missing) {
        return 0;
    }
    std::ifstream in(path, std::ios::binary);
    if (in) {
        ReadCache(in, cache);
    }
    return 0;
}

int VoyPortCallModule::SaveCache(const std::string& name, const LegCache& cache) {
    const std::filesystem::path path = CachePath(name);
    std::error_code ignored;
    std::filesystem::create_directories(path.parent_path(), ignored);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    return WriteCache(out, cache);
}

int VoyPortCallModule::ShowAlternatives(const std::string& id) {
    const auto clicked = routePoints_.find(id);
    if (clicked == routePoints_.end()) {
        return -1;
    }
    PointTexts extent{clicked->second.position};
    clickedRoutePoint_ = id;
    std::vector<std::string> alternatives;
    for (const RouteStop& stop : stops_) {
        for (const RoutePointGroup& group : stop.rp_groups) {
            if (group.rp_id == id) {
                alternatives = group.alternatives;
            }
        }
    }
    layer_.ClearAlternatives();
    for (const std::string& alternative : alternatives) {
        const auto found = routePoints_.find(alternative);
        if (found == routePoints_.end()) {
            return -2;
        }
        extent.push_back(found->second.position);
        layer_.AddAlternativeLabel(found->second);
    }
    return layer_.SetExtent(extent) < 0 ? -3 : 0;
}

int VoyPortCallModule::ChooseAlternative(const std::string& id) {
    if (clickedRoutePoint_.empty()) {
        return -1;
    }
    std::string text;
    if (!AlternativeRequestText(stops_, clickedRoutePoint_, id, text)) {
        return -2;
    }
    if (const int failed = RequestRoute(text, stops_, -3, -4); failed < 0) {
        return failed;
    }
    const int drawn = DrawCurrentRoute();
    if (routeChosen_) {
        routeChosen_();
    }
    return drawn < 0 ? -5 : 0;
}

}  // namespace Tarvik::Seaplan

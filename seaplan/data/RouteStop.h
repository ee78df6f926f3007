// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

/// One stretch between two named points; `pointset` is "x,y" pairs joined by "|".
struct RouteSegment {
    std::string route;
    std::string from_cd;
    std::string end_cd;
    std::string pointset;
    LengthNm distance = 0;  ///< worked out by the reader from `pointset`
};

/// A route point that has alternatives. The range is the two ends of the stretch that it belongs to, "a,b".
struct RoutePointGroup {
    std::int32_t leg = -1;  ///< index of the stop whose legs hold the point
    std::string rp_id;
    std::string range;
    std::vector<std::string> alternatives;
};

/// A choice that the server is to keep: key "new id", item "new id=range".
struct RoutePointLock {
    std::string key;
    std::string item;
};

/// One stop of a calculated route with the legs that end there; the first stop has none.
struct RouteStop {
    std::string point_cd;
    LengthNm distance = 0;  ///< of all its legs
    std::vector<RouteSegment> routes;
    std::vector<RoutePointGroup> rp_groups;
    std::string rp_id_str;
    std::vector<RoutePointLock> locks;
};

using RouteStops = std::vector<RouteStop>;

/// One cached leg between two ports, by name; always two stops.
struct RouteLegCacheEntry {
    std::string from;
    std::string to;
    RouteStops stops;
    Util::_datetime_t stamp;  ///< local time of the server's reply
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/controllers/RouteWays.h"

#include <algorithm>
#include <set>
#include <utility>

#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/controllers/RouteExchange.h"
#include "seaplan/data/PortDirectory.h"

namespace Tarvik::Seaplan {

namespace {

/// Ids of a route point and of another one that can be chosen in its place.
using Choice = std::pair<std::string, std::string>;

/// Every choice along a route once: a request puts a point in the place of the first one with its id.
std::vector<Choice> ChoicesOf(const RouteStops& stops) {
    std::vector<Choice> choices;
    std::set<std::string> seen;
    for (const RouteStop& stop : stops) {
        for (const RoutePointGroup& group : stop.rp_groups) {
            if (!seen.insert(group.rp_id).second) {
                continue;
            }
            for (const std::string& alternative : group.alternatives) {
                if (alternative != group.rp_id) {
                    choices.emplace_back(group.rp_id, alternative);
                }
            }
        }
    }
    choices.resize(std::min(choices.size(), kMostWays));
    return choices;
}

}  // namespace

bool AskOtherWays(const RouteStops& stops, std::vector<RouteWay>& ways) {
    ways.clear();
    for (const auto& [past, by] : ChoicesOf(stops)) {
        RouteWay way{past, by, {}};
        std::string text;
        if (!AlternativeRequestText(stops, past, by, text)) {
            continue;
        }
        const auto asked = AskRoute(text, way.stops);
        if (asked.Failed() && asked.At() == RouteStep::Send) {
            return false;
        }
        if (!asked.Failed() && way.stops.size() == stops.size()) {
            ways.push_back(std::move(way));
        }
    }
    return true;
}

std::string RoutePointName(PortDirectory& ports, const std::string& id) {
    const PointMap* points = ports.RoutePoints();
    const auto point = points == nullptr ? PointMap::const_iterator() : points->find(id);
    if (points == nullptr || point == points->end()) {
        return id;
    }
    const std::string name = ShownName(point->second);
    return name.empty() ? id : name;
}

std::vector<std::string> ChosenPoints(const RouteStops& stops) {
    std::vector<std::string> ids;
    for (const RouteStop& stop : stops) {
        for (const RoutePointLock& lock : stop.locks) {
            if (std::find(ids.begin(), ids.end(), lock.key) == ids.end()) {
                ids.push_back(lock.key);
            }
        }
    }
    return ids;
}

}  // namespace Tarvik::Seaplan

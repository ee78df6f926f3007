// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "seaplan/data/RouteStop.h"

namespace Tarvik::Seaplan {

class PortDirectory;

/// A route by another route point than one that it passes now.
struct RouteWay {
    std::string past;  ///< id of the route point that it passes now
    std::string by;    ///< id of the point that is chosen in its place
    RouteStops stops;  ///< the route then, a stop for each port
};

/// No more are asked for: each costs a request.
inline constexpr std::size_t kMostWays = 24;

/// Asks the server for the route by each alternative of each of its route points, in the order of the route.
/// What it refuses is left out; nothing pending changes. False when the server does not answer: `ways` holds
/// what came before.
bool AskOtherWays(const RouteStops& stops, std::vector<RouteWay>& ways);

/// Name of a route point in the language in force, its id where it has none or is unknown.
std::string RoutePointName(PortDirectory& ports, const std::string& id);

/// Ids of the route points that were chosen along a route, in its order.
std::vector<std::string> ChosenPoints(const RouteStops& stops);

}  // namespace Tarvik::Seaplan

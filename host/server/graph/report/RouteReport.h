// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/report/RouteFiles.h"

namespace Tarvik::Server {

/// What a person asks about one route: ports and passages by id, code or name.
struct RouteQuestion {
    std::string from;
    std::string to;
    std::vector<std::string> via;
    std::vector<std::string> without;
    std::vector<std::string> open;      ///< passages that are shut unless asked for
    ShipSize ship;                      ///< keeps out of passages that are too small for it
    RouteLimits standing;               ///< what holds for every route, by ids of route points
    std::vector<std::string> waters{};  ///< what waters the network was made without, to be told
    bool explain = false;
    bool geojson = false;
};

/// The words behind "route" as a question; nothing and a line in `error` when they are none.
std::optional<RouteQuestion> ReadRouteQuestion(const std::vector<std::string>& words, std::string& error);

/// The route as a table of its legs, or as GeoJSON with a line string a leg; each leg tells its miles inside
/// emission control areas where these are known. With `explain` the table is followed by how far the ports
/// lie from the network, what was forbidden, and the ways by other passages with the miles they add. Nothing
/// and a line in `error` when a place or the limits for a ship are unknown, or there is no way.
std::optional<std::string> RouteText(const SeaNetwork& network, const RouteFiles& files,
                                     const RouteQuestion& question, std::string& error);

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Data {

using Server::GeoPoint;

/// A line of route_points.csv.
struct RoutePointSource {
    std::string id;
    std::string name;
    std::string namecn;
    GeoPoint at;
    bool shut = false;
    std::vector<GeoPoint> gate;
    std::vector<std::string> groups;  ///< names of the groups of passages that can replace one another
    float cost = 0.0F;                ///< miles that the search adds and the distance does not
};

/// A vertex of a hand-made way; `routePoint` names the route point it is, or is empty.
struct PassageVertex {
    GeoPoint at;
    std::string routePoint;
};

/// A line of passages.csv.
struct PassageSource {
    std::string name;
    std::vector<PassageVertex> vertices;
};

/// A line of areas.csv: a water that ships keep out of, at sea; rivers' and canals' ways may run through it.
struct AreaSource {
    std::string name;
    std::vector<GeoPoint> ring;
};

/// A port with its corrected position; ids have five digits and begin with 4.
struct PortSource {
    std::string id;
    std::string unlocode;
    std::string name;
    std::string namecn;
    GeoPoint at;
    std::string origid = "0";            ///< the port that this one is another entry of, "0" for none
    std::vector<std::string> aliases{};  ///< other names that people use
};

/// Everything that is made by hand or fetched, apart from the land.
struct Sources {
    std::vector<RoutePointSource> routePoints;
    std::vector<PassageSource> passages;
    std::vector<PortSource> ports;
    std::vector<AreaSource> areas;
};

/// The ports of the fetched JSON file with what the hand-made files of `folder` put right. Throws
/// std::runtime_error, or what the JSON library throws, for a file that is missing or wrong.
std::vector<PortSource> ReadPorts(const std::string& folder, const std::string& portsJson);

/// Reads the hand-made files of `folder` and the ports of the fetched JSON file; nothing and an error text
/// naming file and line when one of them is missing or wrong.
std::optional<Sources> ReadSources(const std::string& folder, const std::string& portsJson,
                                   std::string& error);

/// Writes the client's table of ports and route points, `t_point`, into a new SQLite file; returns an error
/// text, empty on success. An existing file is replaced.
std::string WritePointDatabase(const std::string& path, const Sources& sources);

}  // namespace Tarvik::Data

// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

/// Reading the local table t_point, one statement a part. PortDirectory asks; who needs a part asks it. Every
/// function gives 0, or -1 with the map as it was when the database cannot be read.
namespace Tarvik::Seaplan {

/// A row of the table; position is "x,y".
struct RoutePointRow {
    std::string id;
    std::string name;
    std::string position;
};

using PointMap = std::map<std::string, RoutePointRow>;
/// Keys "id-id" of ports that are one place, both ways round.
using SamePortLinks = std::map<std::string, std::string>;
/// Whether two ports are one place.
bool AreLinked(const SamePortLinks& links, const std::string& idA, const std::string& idB);

/// Name of a point in the language in force (section "RoutePoints" of the language files, by id), the table's
/// where that has none.
std::string ShownName(const RoutePointRow& point);

/// Path of the database below the host's data folder.
std::string PointDatabasePath();
/// Ports by id; 0 without reading when the map is filled already.
int LoadPortPositions(const std::string& database, PointMap& map);
/// Route points by id; 0 without reading when the map is filled already.
int LoadRoutePoints(const std::string& database, PointMap& map);
/// Adds the links of the ports that name an original.
int LoadSamePortLinks(const std::string& database, SamePortLinks& links);
/// Port names by local name.
int LoadPortNamesByLocal(const std::string& database, std::map<std::string, std::string>& names);
/// Kind of book row of a point id: 3 for fewer than four characters, 5 (port) for a first digit of 4 or
/// above, else 2.
int PointKindOfId(const std::string& id);

}  // namespace Tarvik::Seaplan

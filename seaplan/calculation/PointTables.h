// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "seaplan/data/RouteStop.h"
#include "seaplan/data/VoyPositionBook.h"

/// Reading the local table t_point. Every function gives 0, or -1 when the data base cannot be read.
namespace Tarvik::Seaplan {

using PointMap = std::map<std::string, RoutePointRow>;

/// Path of the data base below the host's data folder.
std::string PointDatabasePath();
/// Ports by id; 0 without reading when the map is filled already.
int LoadPortPositions(const std::string& database, PointMap& map);
/// Route points by id; 0 without reading when the map is filled already.
int LoadRoutePoints(const std::string& database, PointMap& map);
/// Keys "id-origid" and "origid-id" of ports that are one place.
int LoadSamePortLinks(const std::string& database, std::map<std::string, std::string>& links);
/// Port names by local name.
int LoadPortNamesByLocal(const std::string& database, std::map<std::string, std::string>& names);
/// Kind of book row of a point id: 3 for fewer than four characters, 5 (port) for a first digit of 4 or
/// above, else 2.
int PointKindOfId(const std::string& id);

}  // namespace Tarvik::Seaplan

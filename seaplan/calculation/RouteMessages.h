// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/util/Jsona.h>

#include "seaplan/data/RouteStop.h"

/// Request texts of the route commands, and the reply.
namespace Tarvik::Seaplan {

/// Whole list: {"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"a#b"}.
std::string RouteRequestText(const std::vector<std::string>& pointIds);
/// Request that puts `newId` in the place of `oldId`. False when the old id is empty or no stop has a group
/// of it, or the group's stop has no segments; then `text` is left alone.
bool AlternativeRequestText(const RouteStops& stops, const std::string& oldId, const std::string& newId,
                            std::string& text);
/// {"nr_point":[x,y],"dest_port":id}
std::string NearestRequestText(const std::string& position, const std::string& portId);

/// Reads a route reply. 0; -1 an error object; -2 no record; -3 a bad pointset; -4 a group that does not
/// parse; -5 a variant that does not parse; -6 no variant chosen. After a failure `out` is empty. Distances
/// become nautical miles worked out from the point sets.
int ParseRouteReply(const Util::Jsona& reply, RouteStops& out);
/// "rp=a,b;x|y". 0; -2 without "="; -3 without ";".
int ParseRoutePointGroup(const std::string& text, RoutePointGroup& out);
/// Works the lengths of a stop's segments, and of the stop, out from the point sets. False for a point set
/// that does not parse.
bool MeasureSegments(RouteStop& stop);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/util/Jsona.h>

#include "seaplan/data/RouteStop.h"

namespace Tarvik::Seaplan {

/// Reads a route reply. 0; -1 an error object; -2 no record; -3 a bad pointset; -4 a group that does not
/// parse; -5 a variant that does not parse; -6 no variant chosen. After a failure `out` is empty. Distances
/// become nautical miles worked out from the point sets.
int ParseRouteReply(const Util::Jsona& reply, RouteStops& out);
/// "rp=a,b;x|y". 0; -2 without "="; -3 without ";".
int ParseRoutePointGroup(const std::string& text, RoutePointGroup& out);
/// Length of a point set in km, summed in 32-bit float. 0; -2 no points; -3 first point without comma. An
/// empty text has length 0.
int PointsetLength(const std::string& pointset, float& km);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/data/Outcome.h"
#include "seaplan/data/RouteStop.h"

/// The two questions that the server's sea-route engine answers. A failure leaves the caller's lists as each
/// function says.
namespace Tarvik::Seaplan {

enum class RouteStep {
    Send,   ///< no exchange
    Parse,  ///< the reply is no route
};
/// Asks for the route of a request text; after a failure `stops` is as it was.
Outcome<RouteStep> AskRoute(const std::string& text, RouteStops& stops);

enum class NearestStep { Input, Send, Empty, Refused, Position };
/// Numbers of RequestNearestRoute.
inline constexpr CodeTable kNearestRouteCodes{
    Code{NearestStep::Input, -1},     // no position or no port id; nothing is sent
    Code{NearestStep::Send, -2},      // no exchange
    Code{NearestStep::Empty, -3},     // empty reply
    Code{NearestStep::Refused, -4},   // the server refused
    Code{NearestStep::Position, -5},  // a point that is no position
};
/// The way from `position` to a port: its points, the position first and the port last; an empty answer gives
/// none. After a failure `points` is empty.
Outcome<NearestStep> AskNearestRoute(const std::string& position, const std::string& portId,
                                     std::vector<std::string>& points);

}  // namespace Tarvik::Seaplan

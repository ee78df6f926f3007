// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// One segment between neighbouring named points (ports or route points). Points follow the great circle
/// closely; where the way crosses the date line it has two points, at exactly 180 and -180 or the other way
/// round.
struct RouteLeg {
    std::string fromId;
    std::string endId;
    std::vector<GeoPoint> points;
    double distanceKm = 0.0;
};

/// A passed route point and what can stand in its place between `rangeFrom` and `rangeEnd`.
struct RouteAlternativeGroup {
    std::string rpId;
    std::string rangeFrom;
    std::string rangeEnd;
    std::vector<std::string> alternatives;
};

/// One stop of the answer; everything but the id concerns the way from the stop before, and is empty for the
/// first.
struct PlannedStop {
    std::string pointId;
    double distanceKm = 0.0;
    std::vector<RouteLeg> legs;
    std::vector<RouteAlternativeGroup> groups;
    std::vector<std::string> passedIds;  ///< both ends included
    std::string locks;                   ///< choices in force, "new=from,end" joined by "."
};

/// A choice: use `newId` on the stretch `range` ("from,end").
struct RouteChoice {
    std::string newId;
    std::string range;
};

/// One stop asked for: its id, the ids passed on the way to it last time, and the choices for that way.
struct RouteRequestPoint {
    std::string id;
    std::vector<std::string> chain;
    std::vector<RouteChoice> locks;
};

/// What a request may not or may use beside what the network says, by ids of route points; unknown ids are
/// passed over.
struct RouteLimits {
    std::vector<std::string> forbidden;
    std::vector<std::string> opened;  ///< passages that are shut unless asked for
};

/// A place that may be a stop and is not in the network.
struct OwnPort {
    std::string id;
    GeoPoint position;  ///< degrees
};

/// What can be wrong with a request; the numbers go to the client as `eid` and never change their meaning.
enum RouteError : int {
    kRouteOk = 0,
    kRouteBadRequest = 1,  ///< the text does not parse or lacks a value
    kRouteTooFewPoints = 60,
    kRouteUnknownPoint = 61,
    kRouteNoWay = 62,
    kRouteBadPosition = 63,
};

/// The answer to a list of stops; `message` says what is wrong when `error` is not 0, and then there are no
/// stops.
struct RouteResult {
    int error = kRouteOk;
    std::string message;
    std::vector<PlannedStop> stops;
};

/// The answer to a position and a port: the way, beginning at the position.
struct NearestResult {
    int error = kRouteOk;
    std::string message;
    std::vector<GeoPoint> points;
    double distanceKm = 0.0;
};

}  // namespace Tarvik::Server

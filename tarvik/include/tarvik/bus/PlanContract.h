// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tarvik/bus/BusName.h>

/// The times of the voyages that are on the chart: by them it places their ships at any time of the plan,
/// numbers their ports and tells hours and arrivals of their legs.
namespace Tarvik::Interface {

/// A place that a voyage passes or calls at. Times are seconds after 1970-01-01 00:00:00 UTC.
struct TrvMapPlanPlace {
    double x = 0;                ///< longitude in degrees
    double y = 0;                ///< latitude in degrees
    std::int64_t arrival = 0;    ///< not before the departure of the place before
    std::int64_t departure = 0;  ///< not before the arrival
    std::string name;            ///< empty for a place without one
    bool port = false;           ///< a port of call, not only a point of the way
};

/// Argument of TRV_MAP_SET_PLAN: the plan of one voyage.
struct TrvMapPlan {
    std::string layer;     ///< of the voyage's objects
    std::string id;        ///< of the voyage; its lines bear it, or it, "_" and a number
    std::string shipType;  ///< of the image with this id that stands for its ship
    std::string name;      ///< of the voyage
    std::string vessel;    ///< its name, empty when none is known
    /// In the order of the way, the ship going straight on the chart between them.
    std::vector<TrvMapPlanPlace> places;
};

namespace Bus {

/// Tells the plan of a voyage on the chart, in place of what was told of it before; with fewer than two
/// places it is forgotten, and with an empty id the plans of all voyages of that layer are. The chart copies
/// it.
inline constexpr Service<const TrvMapPlan, None> MapSetPlan{"TRV_MAP_SET_PLAN"};

}  // namespace Bus
}  // namespace Tarvik::Interface

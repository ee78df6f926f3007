// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/graph/NetworkData.h"

namespace Tarvik::Server {

/// Waters that no way of a server may touch, whatever its network allows.
struct ForbiddenWaters {
    /// A ring of straight lines in longitude and latitude, closed implicitly; a step of more than 180 degrees
    /// is one over the date line.
    struct Area {
        std::string name;
        std::vector<GeoPoint> ring;
    };
    std::vector<Area> areas;
    double north = 90.0;   ///< no way runs north of this latitude
    double south = -90.0;  ///< nor south of this one

    bool Any() const { return !areas.empty() || north < 90.0 || south > -90.0; }
    /// Whether a place lies in such a water.
    bool Hold(GeoPoint place) const;
};

/// A network without the ways that touch such waters, rivers and canals included, and with places to turn
/// outside the areas' corners and along the limits, joined to what lies in sight. Ports in these waters have
/// no way left.
NetworkData Narrowed(const NetworkData& whole, const ForbiddenWaters& waters);

}  // namespace Tarvik::Server

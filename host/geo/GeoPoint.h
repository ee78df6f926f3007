// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Server {

/// A place on the earth in decimal degrees: `x` is the longitude, `y` the latitude.
struct GeoPoint {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const GeoPoint&, const GeoPoint&) = default;
};

}  // namespace Tarvik::Server

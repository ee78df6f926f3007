// SPDX-License-Identifier: MIT
// Mercator's projection of the sphere and back, in closed form.
#include "host/plugins/seamap/core/Projection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/geo/Sphere.h"

namespace Tarvik::Seamap {

WorldPoint Project(GeoPoint point) {
    const double lat = std::clamp(point.y, -kDrawLatitude, kDrawLatitude) * Server::kDegree;
    return {(point.x + 180.0) / 360.0, 0.5 - std::asinh(std::tan(lat)) / (2.0 * std::numbers::pi)};
}

GeoPoint Unproject(WorldPoint point) {
    const double lat = std::atan(std::sinh((0.5 - point.y) * 2.0 * std::numbers::pi)) / Server::kDegree;
    return {Server::WrapLongitude(point.x * 360.0 - 180.0), lat};
}

}  // namespace Tarvik::Seamap

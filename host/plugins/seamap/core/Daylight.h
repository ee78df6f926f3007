// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "host/plugins/seamap/core/MercatorView.h"

namespace Tarvik::Seamap {

/// The place over which the sun stands at a time, in centiseconds after 1970-01-01 00:00:00 UTC; exact to a
/// tenth of a degree from 1950 to 2050.
GeoPoint SunAt(std::int64_t utcCsecs);

/// Whether the sun's middle stands below the horizon of a place.
bool IsNight(GeoPoint place, GeoPoint sun);

/// The edge of the night over the whole width of the view: a closed polygon in pixels of the window, the part
/// of the globe that has the sun below its horizon. Refraction and twilight are left out.
std::vector<PixelPoint> NightIn(const MercatorView& view, GeoPoint sun);

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Seaplan {

/// Kilometres in a nautical mile, and so km/h in a knot.
inline constexpr double kKmPerNauticalMile = 1.852;

/// Knots of a speed in km/h, rounded once to the record's 32 bits.
inline float KnotsFromWire(double kmPerHour) {
    return static_cast<float>(kmPerHour / kKmPerNauticalMile);
}

/// km/h of a speed in knots, unrounded: the printed text rounds.
inline double WireFromKnots(float knots) {
    return static_cast<double>(knots) * kKmPerNauticalMile;
}

}  // namespace Tarvik::Seaplan

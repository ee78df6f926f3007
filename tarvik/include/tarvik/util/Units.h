// SPDX-License-Identifier: MIT
#pragma once

/// Lengths and speeds between the sea's units and the land's. One product or one quotient in double each, so
/// that a caller that stores a 32-bit float rounds once.
namespace Tarvik::Util {

/// Kilometres in a nautical mile, by definition, and so km/h in a knot.
inline constexpr double kKmPerNauticalMile = 1.852;

constexpr double KmFromNm(double nauticalMiles) {
    return nauticalMiles * kKmPerNauticalMile;
}
constexpr double NmFromKm(double km) {
    return km / kKmPerNauticalMile;
}
constexpr double KmhFromKnots(double knots) {
    return knots * kKmPerNauticalMile;
}
constexpr double KnotsFromKmh(double kmPerHour) {
    return kmPerHour / kKmPerNauticalMile;
}

}  // namespace Tarvik::Util

// SPDX-License-Identifier: MIT
#pragma once

/// Lengths and speeds between the sea's units and the land's. One product or one quotient in double each, so
/// that a caller that stores a 32-bit float rounds once.
namespace Tarvik::Util {

/// Kilometres in a nautical mile, by definition, and so km/h in a knot.
inline constexpr double kKmPerNauticalMile = 1.852;

/// Hours in a day, for spans that are told in either.
inline constexpr double kHoursPerDay = 24;

/// Nautical miles in kilometres.
constexpr double KmFromNm(double nauticalMiles) {
    return nauticalMiles * kKmPerNauticalMile;
}
/// Kilometres in nautical miles.
constexpr double NmFromKm(double km) {
    return km / kKmPerNauticalMile;
}
/// Knots in kilometres an hour.
constexpr double KmhFromKnots(double knots) {
    return knots * kKmPerNauticalMile;
}
/// Kilometres an hour in knots.
constexpr double KnotsFromKmh(double kmPerHour) {
    return kmPerHour / kKmPerNauticalMile;
}

}  // namespace Tarvik::Util

// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/util/Units.h>

namespace Tarvik::Seaplan {

/// Knots of a speed in km/h, rounded once to the record's 32 bits.
inline float KnotsFromWire(double kmPerHour) {
    return static_cast<float>(Util::KnotsFromKmh(kmPerHour));
}

/// km/h of a speed in knots, unrounded: the printed text rounds.
inline double WireFromKnots(float knots) {
    return Util::KmhFromKnots(static_cast<double>(knots));
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Client {

/// A position in degrees, longitude `x` (any number of turns) and latitude `y`, in degrees and minutes to a
/// tenth: "51° 54.5' N 004° 29.0' E".
std::string PositionText(double x, double y);

}  // namespace Tarvik::Client

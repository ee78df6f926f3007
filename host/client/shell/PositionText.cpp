// SPDX-License-Identifier: MIT
#include "host/client/shell/PositionText.h"

#include <cmath>

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Client {

namespace {

/// Degrees and minutes of a magnitude; tenths of a minute are rounded before they are split, so 60.0' cannot
/// appear.
std::string Angle(double degrees, const char* format, const char* positive, const char* negative) {
    const long tenths = std::lround(std::abs(degrees) * 600.0);
    const long whole = tenths / 600;
    const double minutes = static_cast<double>(tenths % 600) / 10.0;
    return Util::StringUtl::Format(format, whole) + Util::StringUtl::Format(" %04.1f' ", minutes) +
           (degrees < 0 && tenths != 0 ? negative : positive);
}

}  // namespace

std::string PositionText(double x, double y) {
    const double longitude = std::remainder(x, 360.0);
    return Angle(y, "%02ld\u00B0", "N", "S") + " " + Angle(longitude, "%03ld\u00B0", "E", "W");
}

}  // namespace Tarvik::Client

// SPDX-License-Identifier: MIT
#include "host/geo/GeoPoint.h"

#include <cmath>

#include <fmt/format.h>

#include <tarvik/util/PointText.h>

#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

std::string DegreesAndMinutes(double value, int degreeDigits, char positive, char negative) {
    const long tenths = std::lround(std::fabs(value) * 600.0);
    const char side = value < 0 && tenths != 0 ? negative : positive;
    return fmt::format("{:0{}}° {:02}.{}' {}", tenths / 600, degreeDigits, tenths % 600 / 10, tenths % 10,
                       side);
}

}  // namespace

std::optional<GeoPoint> ParsePosition(std::string_view text) {
    constexpr double kTwoTurns = 720;
    const auto point = Util::ParsePoint(text);
    const bool isPlace =
        point && std::fabs(point->y) <= Util::kMostLatitude && std::fabs(point->x) <= kTwoTurns;
    return isPlace ? point : std::nullopt;
}

std::string FormatPosition(GeoPoint point) {
    return DegreesAndMinutes(point.y, 2, 'N', 'S') + " " +
           DegreesAndMinutes(WrapLongitude(point.x), 3, 'E', 'W');
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/geo/GeoPoint.h"

#include <charconv>
#include <cmath>

#include <fmt/format.h>

#include <tarvik/util/Geodesy.h>

#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

std::optional<double> Number(std::string_view text) {
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::string DegreesAndMinutes(double value, int degreeDigits, char positive, char negative) {
    const long tenths = std::lround(std::fabs(value) * 600.0);
    const char side = value < 0 && tenths != 0 ? negative : positive;
    return fmt::format("{:0{}}° {:02}.{}' {}", tenths / 600, degreeDigits, tenths % 600 / 10, tenths % 10,
                       side);
}

}  // namespace

std::optional<GeoPoint> ParsePosition(std::string_view text) {
    const auto comma = text.find(',');
    if (comma == std::string_view::npos) {
        return std::nullopt;
    }
    const auto lon = Number(text.substr(0, comma));
    const auto lat = Number(text.substr(comma + 1));
    if (!lon || !lat || std::fabs(*lat) > Util::kMostLatitude || std::fabs(*lon) > 720.0) {
        return std::nullopt;
    }
    return GeoPoint{*lon, *lat};
}

std::string FormatPosition(GeoPoint point) {
    return DegreesAndMinutes(point.y, 2, 'N', 'S') + " " +
           DegreesAndMinutes(WrapLongitude(point.x), 3, 'E', 'W');
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include <charconv>
#include <cmath>

#include <tarvik/util/PointText.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Util {

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

/// The number without zeros at its end; "0" for what is rounded to nothing.
std::string_view Shortest(std::string_view number) {
    if (number.find('.') != std::string_view::npos) {
        number = number.substr(0, number.find_last_not_of('0') + 1);
    }
    if (number.ends_with('.')) {
        number.remove_suffix(1);
    }
    return number == "-0" ? number.substr(1) : number;
}

}  // namespace

std::optional<PointHalves> SplitPoint(std::string_view text) {
    const auto comma = text.find(',');
    if (comma == std::string_view::npos) {
        return std::nullopt;
    }
    return PointHalves{text.substr(0, comma), text.substr(comma + 1)};
}

std::optional<GeoPoint> ReadPoint(std::string_view text) {
    const auto halves = SplitPoint(text);
    if (!halves) {
        return std::nullopt;
    }
    return GeoPoint{StringUtl::ToDouble(std::string(halves->x)), StringUtl::ToDouble(std::string(halves->y))};
}

std::optional<GeoPoint> ParsePoint(std::string_view text) {
    const auto halves = SplitPoint(text);
    const auto x = halves ? Number(halves->x) : std::nullopt;
    const auto y = halves ? Number(halves->y) : std::nullopt;
    if (!x || !y) {
        return std::nullopt;
    }
    return GeoPoint{*x, *y};
}

std::string PointText(const GeoPoint& point, int decimals) {
    // Room for what a route has; the general printer takes the rest and is four times as slow.
    char text[64];
    char* const end = text + sizeof text;
    const auto x = std::to_chars(text, end - 1, point.x, std::chars_format::fixed, decimals);
    if (x.ec == std::errc()) {
        *x.ptr = ',';
        const auto y = std::to_chars(x.ptr + 1, end, point.y, std::chars_format::fixed, decimals);
        if (y.ec == std::errc()) {
            return {text, y.ptr};
        }
    }
    return StringUtl::Format("%.*f,%.*f", decimals, point.x, decimals, point.y);
}

std::string ShortPointText(const GeoPoint& point, int mostDecimals) {
    const std::string whole = PointText(point, mostDecimals);
    const auto halves = SplitPoint(whole);
    return std::string(Shortest(halves->x)).append(",").append(Shortest(halves->y));
}

}  // namespace Tarvik::Util

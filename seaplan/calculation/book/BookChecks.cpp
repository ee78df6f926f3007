// SPDX-License-Identifier: MIT
#include "seaplan/calculation/book/BookChecks.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/Geodesy.h>
#include <tarvik/util/StringUtl.h>
#include <tarvik/util/Units.h>

namespace Tarvik::Seaplan {

namespace {

constexpr double kMostSpeed = 92.6;  // km/h, 50 knots
constexpr double kSpeedSlack = 1e-9;
constexpr std::size_t kLongestNumber = 1023;

/// A number, read as it says, or else a coordinate as people write it.
std::optional<double> ReadDegrees(const std::string& text, Axis axis) {
    return IsNumberText(text) ? Util::StringUtl::ToDouble(text) : Util::ReadTypedDegrees(text, axis);
}

}  // namespace

bool IsNumberText(const std::string& text) {
    std::string_view rest = text;
    if (rest.starts_with('-')) {
        rest.remove_prefix(1);
    }
    const bool isNumeric = std::all_of(rest.begin(), rest.end(),
                                       [](char c) { return (c >= '0' && c <= '9') || c == '.' || c == ','; });
    return isNumeric && rest.size() <= kLongestNumber && rest != "." &&
           std::count(rest.begin(), rest.end(), '.') <= 1;
}

BookRefusal CheckDegrees(double degrees, Axis axis) {
    const bool latitude = axis == Axis::Latitude;
    const double limit = latitude ? Util::kMostLatitude : Util::kMostLongitude;
    const bool isWithin = degrees > -limit && degrees < limit;
    return isWithin ? BookRefusal::None : latitude ? BookRefusal::Latitude : BookRefusal::Longitude;
}

BookRefusal CheckDegreesText(const std::string& text, Axis axis, double& value) {
    const std::optional<double> degrees = ReadDegrees(text, axis);
    if (!degrees) {
        return BookRefusal::NotANumber;
    }
    const BookRefusal refusal = CheckDegrees(*degrees, axis);
    value = refusal == BookRefusal::None ? *degrees : value;
    return refusal;
}

BookRefusal CheckPosition(const std::string& text, Axis axis, GeoPoint& position) {
    double& typed = axis == Axis::Latitude ? position.y : position.x;
    const BookRefusal refusal = CheckDegreesText(text, axis, typed);
    const auto pair = refusal == BookRefusal::NotANumber ? Util::ReadTypedPosition(text)
                                                         : std::optional<Util::TypedPosition>();
    if (!pair) {
        return refusal;
    }
    for (const auto& [degrees, of] :
         {std::pair(pair->y, Axis::Latitude), std::pair(pair->x, Axis::Longitude)}) {
        if (const BookRefusal why = CheckDegrees(degrees, of); why != BookRefusal::None) {
            return why;
        }
    }
    position = {pair->x, pair->y};
    return BookRefusal::None;
}

// Fifty knots times 1.852 is a hair above 92.6 in double, hence the slack.
BookRefusal CheckSpeed(const std::string& text, BookSpeedUnit unit, double& value) {
    if (!IsNumberText(text)) {
        return BookRefusal::NotANumber;
    }
    const double typed = Util::StringUtl::ToDouble(text);
    const double speed = unit == BookSpeedUnit::Knots ? Util::KmhFromKnots(typed) : typed;
    if (!(speed > 0 && speed <= kMostSpeed + kSpeedSlack)) {
        return BookRefusal::Speed;
    }
    value = speed;
    return BookRefusal::None;
}

BookRefusal ChangeDeparture(const Util::_datetime_t& time, PosBookPortRow& port) {
    if (time < port.eta) {
        return BookRefusal::Date;
    }
    port.portTime = Util::DateTimeUtl::Diff(time, port.eta);
    port.etd = Util::DateTimeUtl::AddHour(port.eta, port.portTime);
    return BookRefusal::None;
}

}  // namespace Tarvik::Seaplan

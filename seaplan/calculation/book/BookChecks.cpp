// SPDX-License-Identifier: MIT
#include "seaplan/calculation/book/BookChecks.h"

#include <algorithm>
#include <string_view>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>
#include <tarvik/util/Units.h>

namespace Tarvik::Seaplan {

namespace {

constexpr double kMostSpeed = 92.6;  // km/h, 50 knots
constexpr double kSpeedSlack = 1e-9;
constexpr double kMostLatitude = 90.0;
constexpr double kMostLongitude = 180.0;
constexpr std::size_t kLongestNumber = 1023;

/// A number strictly between -limit and limit.
BookRefusal CheckDegrees(const std::string& text, double limit, BookRefusal refusal, double& value) {
    if (!IsNumberText(text)) {
        return BookRefusal::NotANumber;
    }
    const double degrees = Util::StringUtl::ToDouble(text);
    if (!(degrees > -limit && degrees < limit)) {
        return refusal;
    }
    value = degrees;
    return BookRefusal::None;
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

BookRefusal CheckLatitude(const std::string& text, double& value) {
    return CheckDegrees(text, kMostLatitude, BookRefusal::Latitude, value);
}

BookRefusal CheckLongitude(const std::string& text, double& value) {
    return CheckDegrees(text, kMostLongitude, BookRefusal::Longitude, value);
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

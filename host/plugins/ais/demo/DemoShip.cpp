// SPDX-License-Identifier: MIT
#include "host/plugins/ais/demo/DemoShip.h"

#include <charconv>
#include <cmath>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/PointText.h>
#include <tarvik/util/Units.h>

namespace Tarvik::Ais {

namespace {

constexpr double kHour = 3600;
constexpr double kMostKnots = 60;

/// Takes the text up to `separator` off `rest`; all of it without one.
std::string_view TakePiece(std::string_view& rest, char separator) {
    const std::size_t end = rest.find(separator);
    const std::string_view piece = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return piece;
}

template <class Number>
bool Read(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool ReadRoute(std::string_view text, std::vector<DemoShip::Point>& route) {
    while (!text.empty()) {
        const auto point = Util::ParsePoint(TakePiece(text, '|'));
        if (!point || !Util::IsOnEarth(point->x, point->y) || std::fabs(point->y) >= Util::kMostLatitude) {
            return false;
        }
        route.push_back({point->x, point->y});
    }
    return !route.empty();
}

bool ReadDeparture(std::string_view text, std::int64_t now, std::int64_t& departure) {
    const bool relative = text.starts_with('+') || text.starts_with('-');
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (!Read(text, departure)) {
        return false;
    }
    departure += relative ? now : 0;
    return true;
}

/// The way from `a` to `b` that is shorter round the earth: `b` with a longitude near that of `a`.
DemoShip::Point Near(const DemoShip::Point& a, const DemoShip::Point& b) {
    return {a.longitude + std::remainder(b.longitude - a.longitude, 360.0), b.latitude};
}

}  // namespace

std::optional<DemoShip> DemoShip::Parse(std::string_view line, std::int64_t now) {
    DemoShip ship;
    const bool head = Read(TakePiece(line, ';'), ship.mmsi);
    ship.name = TakePiece(line, ';');
    const bool good = head && Read(TakePiece(line, ';'), ship.knots) &&
                      ReadDeparture(TakePiece(line, ';'), now, ship.departure) && ReadRoute(line, ship.route);
    const bool inRange =
        ship.mmsi > 0 && ship.mmsi <= 999'999'999 && ship.knots > 0 && ship.knots <= kMostKnots;
    return good && inRange ? std::optional(ship) : std::nullopt;
}

DemoPlace PlaceOf(const DemoShip& ship, std::int64_t time) {
    DemoPlace place{ship.route.front()};
    double left = double(time - ship.departure) / kHour * ship.knots * Util::kKmPerNauticalMile;
    for (std::size_t i = 1; left >= 0 && i < ship.route.size(); ++i) {
        const DemoShip::Point& from = ship.route[i - 1];
        const DemoShip::Point to = Near(from, ship.route[i]);
        const double leg =
            Util::CircleLineUtl::CalRhumbDist(from.longitude, from.latitude, to.longitude, to.latitude);
        place.at = ship.route[i];
        if (leg > left) {
            const double share = left / leg;
            place.at = {std::remainder(from.longitude + share * (to.longitude - from.longitude), 360.0),
                        from.latitude + share * (to.latitude - from.latitude)};
            place.course = Util::CCourse::CalCourse(from.longitude, from.latitude, to.longitude, to.latitude);
            place.knots = ship.knots;
            place.sails = true;
            return place;
        }
        left -= leg;
    }
    return place;
}

}  // namespace Tarvik::Ais

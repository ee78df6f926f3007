// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/Measure.h"

#include <cmath>

#include <fmt/format.h>

#include <tarvik/util/DateTime.h>
#include <tarvik/util/Geodesy.h>
#include <tarvik/util/Units.h>

#include "host/geo/Sphere.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kWholeTurn = 360;

/// How the kit calls a track.
const char* CodeOf(Track track) {
    return track == Track::GreatCircle ? "GC" : "RL";
}

}  // namespace

MeasuredLeg MeasureLeg(GeoPoint from, GeoPoint to, Track track) {
    const double km = Util::CircleLineUtl::CalculateDistance(from.x, from.y, to.x, to.y, CodeOf(track));
    return {from, to, Util::NmFromKm(km),
            Util::CCourse::CalCourse(from.x, from.y, to.x, to.y, CodeOf(track))};
}

std::vector<GeoPoint> WayOf(const MeasuredLeg& leg, Track track) {
    if (track == Track::GreatCircle) {
        return Server::GreatCircle(leg.from, leg.to);
    }
    // Straight on the chart, by the shorter way round.
    return {leg.from, {leg.from.x + Server::WrapLongitude(leg.to.x - leg.from.x), leg.to.y}};
}

std::string LegText(const MeasuredLeg& leg) {
    return fmt::format("{:.1f} NM  {:03}°", leg.miles, std::lround(leg.course) % kWholeTurn);
}

std::string HoursText(double miles, double knots) {
    if (!(knots > 0)) {
        return {};
    }
    constexpr double kHoursInADay = double(Util::kCsecsPerDay) / Util::kCsecsPerHour;
    const double hours = miles / knots;
    const std::string text = fmt::format("{:.1f} h", hours);
    return hours < kHoursInADay ? text : text + fmt::format(" ({:.1f} d)", hours / kHoursInADay);
}

void Measure::Add(GeoPoint place) {
    if (IsRunning() && !(points_.back() == place)) {
        points_.push_back(place);
    }
}

bool Measure::TakeBack() {
    if (points_.size() < 2) {
        return false;
    }
    points_.pop_back();
    return true;
}

std::vector<MeasuredLeg> Measure::Legs() const {
    std::vector<MeasuredLeg> legs;
    for (std::size_t i = 1; i < points_.size(); ++i) {
        legs.push_back(MeasureLeg(points_[i - 1], points_[i], track));
    }
    return legs;
}

}  // namespace Tarvik::Seamap

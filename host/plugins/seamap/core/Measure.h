// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/plugins/seamap/core/Projection.h"

namespace Tarvik::Seamap {

/// How a measured leg runs.
enum class Track { GreatCircle, RhumbLine };

/// A leg of the measuring tool.
struct MeasuredLeg {
    GeoPoint from;
    GeoPoint to;
    double miles = 0;   ///< nautical
    double course = 0;  ///< degrees, from 0 to below 360; where a great circle starts
};

/// The leg between two places. Of a place with itself it has no length and course 0.
MeasuredLeg MeasureLeg(GeoPoint from, GeoPoint to, Track track);
/// Points of the way on the chart, ends included. The longitudes run on past 180 where it crosses the date
/// line.
std::vector<GeoPoint> WayOf(const MeasuredLeg& leg, Track track);
/// "132.4 NM  045°".
std::string LegText(const MeasuredLeg& leg);
/// "36.4 h", from a day on with the days behind, "36.4 h (1.5 d)"; empty without a speed above 0.
std::string HoursText(double miles, double knots);

/// The measuring tool's points and what lies between them.
class Measure {
  public:
    static constexpr double kUsualKnots = 12;

    bool IsRunning() const { return !points_.empty(); }
    /// Begins anew at a place.
    void Begin(GeoPoint place) { points_ = {place}; }
    /// Adds a point; the same place twice in a row counts once. Nothing before the beginning.
    void Add(GeoPoint place);
    /// Takes the last point back. False when only the first is left, which stays.
    bool TakeBack();
    void End() { points_.clear(); }

    const std::vector<GeoPoint>& Points() const { return points_; }
    std::vector<MeasuredLeg> Legs() const;
    /// The leg from the last point to a place; not before the beginning.
    MeasuredLeg LegTo(GeoPoint place) const { return MeasureLeg(points_.back(), place, track); }

    Track track = Track::GreatCircle;
    double knots = kUsualKnots;

  private:
    std::vector<GeoPoint> points_;
};

}  // namespace Tarvik::Seamap

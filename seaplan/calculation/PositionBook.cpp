// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PositionBook.h"

#include <algorithm>

#include <tarvik/interface/PlanTerms.h>
#include <tarvik/util/Geodesy.h>
#include <tarvik/util/Units.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/Position.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kLeastBookSpeed = 0.00001;

enum class RouteStep { OneStop, Split, Points, ShortId, LongId };
using RouteOutcome = Outcome<RouteStep>;
/// Numbers of BookFromStops; -2 is free.
constexpr CodeTable kBookFromStopsCodes{Code{RouteStep::OneStop, -1}, Code{RouteStep::Split, -3},
                                        Code{RouteStep::Points, -4}, Code{RouteStep::ShortId, -5},
                                        Code{RouteStep::LongId, -6}};
enum class TimesStep { Rows, FirstStay, Distance, Speed, Time, Stay };
using TimesOutcome = Outcome<TimesStep>;
/// Numbers of ComputeBookTimes.
constexpr CodeTable kBookTimesCodes{Code{TimesStep::Rows, -1},     Code{TimesStep::FirstStay, -2},
                                    Code{TimesStep::Distance, -3}, Code{TimesStep::Speed, -4},
                                    Code{TimesStep::Time, -5},     Code{TimesStep::Stay, -6}};

/// Makes the last point of a segment the named point that the segment leads to.
RouteOutcome NameEnd(const std::string& id, const PointMap& routePoints, PosBookPoint& row) {
    row.pointId = id;
    row.pst = PointKindOfId(id);
    if (row.pst == PortPoint) {
        row.psn = PortNameOf(id);
        return {};
    }
    const auto found = routePoints.find(id);
    if (found == routePoints.end()) {
        // A port of the user's own is in the dictionary, whatever digit its long id begins with.
        row.psn = id.size() > Interface::kShippedIdDigits ? PortNameOf(id) : std::string();
        if (row.psn.empty()) {
            return row.pst == ShortIdRoutePoint ? RouteStep::ShortId : RouteStep::LongId;
        }
        row.pst = PortPoint;
        return {};
    }
    row.psn = found->second.name;
    return {};
}

/// Adds the rows of a segment behind its first point; that one stands in the book already.
RouteOutcome AddSegment(const RouteSegment& segment, const std::vector<std::string>& points,
                        const PointMap& routePoints, BookPoints& rows) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        PosBookPoint row;
        row.position = points[i];
        if (i + 1 == points.size()) {
            if (const auto named = NameEnd(segment.end_cd, routePoints, row); named.Failed()) {
                return named;
            }
        }
        rows.push_back(std::move(row));
    }
    return {};
}

RouteOutcome AddStops(const RouteStops& stops, const PointMap& routePoints, BookPoints& rows) {
    for (std::size_t s = 1; s < stops.size(); ++s) {
        for (const auto& segment : stops[s].routes) {
            std::vector<std::string> points;
            if (!SplitPointset(segment.pointset, points)) {
                return RouteStep::Split;
            }
            if (points.size() < 2) {
                return RouteStep::Points;
            }
            if (s == 1 && &segment == &stops[s].routes.front()) {
                rows.front().position = points.front();
            }
            if (const auto added = AddSegment(segment, points, routePoints, rows); added.Failed()) {
                return added;
            }
        }
    }
    return {};
}

bool IsPortOf(const PosBookPoint& point, const VoyPortCall& row) {
    if ((point.psn.empty() && point.pointId.empty()) || point.psn == row.ppn) {
        return true;
    }
    return !row.ppi.empty() && (point.pointId == row.ppi || PortIdOf(point.psn) == row.ppi);
}

/// Stay and weather of the port ahead; they stay as they are behind the last port.
struct PortAhead {
    std::size_t index = 0;
    float stay = 0;
    double weather = 0;

    void Next(const PortCallRows& ports) {
        if (++index < ports.size()) {
            stay = ports[index].apt;
            weather = static_cast<double>(ports[index].pw);
        }
    }
};

TimesOutcome TimeRow(const PosBookPoint& previous, const PortCallRows& ports, PortAhead& ahead,
                     PosBookPoint& row) {
    float distance = 0;
    if (LegDistance(previous.position, row.position, row.psr, distance) != 0) {
        return TimesStep::Distance;
    }
    const auto speed = static_cast<double>(row.psp);
    if (speed <= kLeastBookSpeed) {
        return TimesStep::Speed;
    }
    row.eta = previous.etd;
    if (AddHours(static_cast<float>(SteamTime(static_cast<double>(distance), speed, ahead.weather)),
                 row.eta) != 0) {
        return TimesStep::Time;
    }
    row.etd = row.eta;
    if (row.pst == PortPoint) {
        if (AddHours(ahead.stay, row.etd) != 0) {
            return TimesStep::Stay;
        }
        ahead.Next(ports);
    }
    return {};
}

TimesOutcome TimeRows(const Util::_datetime_t& start, const PortCallRows& ports, BookPoints& rows) {
    if (rows.empty() || ports.empty()) {
        return TimesStep::Rows;
    }
    BookPoints timed = rows;
    timed.front().eta = start;
    timed.front().etd = start;
    if (AddHours(ports.front().apt, timed.front().etd) != 0) {
        return TimesStep::FirstStay;
    }
    PortAhead ahead;
    ahead.Next(ports);
    for (std::size_t i = 1; i < timed.size(); ++i) {
        if (const auto row = TimeRow(timed[i - 1], ports, ahead, timed[i]); row.Failed()) {
            return row;
        }
    }
    rows = std::move(timed);
    return {};
}

}  // namespace

int LegDistance(const std::string& a, const std::string& b, const std::string& psr, float& nm) {
    GeoPoint from;
    GeoPoint to;
    if (!ReadPosition(a, 1, from) || !ReadPosition(b, 1, to)) {
        return -1;
    }
    const double km = Util::CircleLineUtl::CalculateDistance(from.x, from.y, to.x, to.y, psr);
    nm = static_cast<float>(Util::NmFromKm(km));
    return 0;
}

int BookFromStops(const RouteStops& stops, const PointMap& routePoints, BookPoints& rows) {
    rows.clear();
    if (stops.size() < 2) {
        return kBookFromStopsCodes.Of(stops.empty() ? RouteOutcome() : RouteStep::OneStop);
    }
    PosBookPoint start;
    start.pointId = stops.front().point_cd;
    start.psn = PortNameOf(start.pointId);
    start.pst = PortPoint;
    start.psp = 0;
    rows.push_back(std::move(start));
    const RouteOutcome added = AddStops(stops, routePoints, rows);
    if (added.Failed()) {
        rows.clear();
    }
    return kBookFromStopsCodes.Of(added);
}

bool RouteFits(const RouteStops& stops, const PortCallRows& rows) {
    return std::equal(stops.begin(), stops.end(), rows.begin(), rows.end(),
                      [](const RouteStop& stop, const VoyPortCall& row) { return stop.point_cd == row.ppi; });
}

bool BookFits(const BookPoints& book, const PortCallRows& rows) {
    const std::vector<BookLeg> legs = LegsOf(book);
    return std::equal(
        legs.begin(), legs.end(), rows.begin(), rows.end(),
        [&](const BookLeg& leg, const VoyPortCall& row) { return IsPortOf(book[leg.last], row); });
}

int ComputeBookTimes(const Util::_datetime_t& start, const PortCallRows& ports, BookPoints& rows) {
    return kBookTimesCodes.Of(TimeRows(start, ports, rows));
}

int GroupBookByPort(const BookPoints& rows, std::map<int, BookPoints>& groups) {
    groups.clear();
    if (rows.size() < 2) {
        return -1;
    }
    int index = 0;
    for (const auto& row : rows) {
        groups[index].push_back(row);
        if (row.pst == PortPoint) {
            ++index;
        }
    }
    return 0;
}

}  // namespace Tarvik::Seaplan

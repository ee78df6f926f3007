// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PositionBook.h"

#include <algorithm>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/Units.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/Position.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kLeastBookSpeed = 0.00001;

/// Ports and route points of the host's table have at most this many digits, a user's own have more.
constexpr std::size_t kShippedIdDigits = 5;

/// Makes the last point of a segment the named point that the segment leads to.
int NameEnd(const std::string& id, const PointMap& routePoints, PosBookPoint& row) {
    row.pointId = id;
    row.pst = PointKindOfId(id);
    if (row.pst == PortPoint) {
        row.psn = PortNameOf(id);
        return 0;
    }
    const auto found = routePoints.find(id);
    if (found == routePoints.end()) {
        // A port of the user's own is in the dictionary, whatever digit its long id begins with.
        row.psn = id.size() > kShippedIdDigits ? PortNameOf(id) : std::string();
        if (row.psn.empty()) {
            return row.pst == ShortIdRoutePoint ? -5 : -6;
        }
        row.pst = PortPoint;
        return 0;
    }
    row.psn = found->second.name;
    return 0;
}

/// Adds the rows of a segment behind its first point; that one stands in the book already.
int AddSegment(const RouteSegment& segment, const std::vector<std::string>& points,
               const PointMap& routePoints, BookPoints& rows) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        PosBookPoint row;
        row.position = points[i];
        if (i + 1 == points.size()) {
            if (const int code = NameEnd(segment.end_cd, routePoints, row); code != 0) {
                return code;
            }
        }
        rows.push_back(std::move(row));
    }
    return 0;
}

int AddStops(const RouteStops& stops, const PointMap& routePoints, BookPoints& rows) {
    for (std::size_t s = 1; s < stops.size(); ++s) {
        for (const auto& segment : stops[s].routes) {
            std::vector<std::string> points;
            if (!SplitPointset(segment.pointset, points)) {
                return -3;
            }
            if (points.size() < 2) {
                return -4;
            }
            if (s == 1 && &segment == &stops[s].routes.front()) {
                rows.front().position = points.front();
            }
            if (const int code = AddSegment(segment, points, routePoints, rows); code != 0) {
                return code;
            }
        }
    }
    return 0;
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

int TimeRow(const PosBookPoint& previous, const PortCallRows& ports, PortAhead& ahead, PosBookPoint& row) {
    float distance = 0;
    if (LegDistance(previous.position, row.position, row.psr, distance) != 0) {
        return -3;
    }
    const auto speed = static_cast<double>(row.psp);
    if (speed <= kLeastBookSpeed) {
        return -4;
    }
    row.eta = previous.etd;
    if (AddHours(static_cast<float>(SteamTime(static_cast<double>(distance), speed, ahead.weather)),
                 row.eta) != 0) {
        return -5;
    }
    row.etd = row.eta;
    if (row.pst == PortPoint) {
        if (AddHours(ahead.stay, row.etd) != 0) {
            return -6;
        }
        ahead.Next(ports);
    }
    return 0;
}

}  // namespace

int LegDistance(const std::string& a, const std::string& b, const std::string& psr, float& nm) {
    Position from;
    Position to;
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
        return stops.empty() ? 0 : -1;
    }
    PosBookPoint start;
    start.pointId = stops.front().point_cd;
    start.psn = PortNameOf(start.pointId);
    start.pst = PortPoint;
    start.psp = 0;
    rows.push_back(std::move(start));
    const int code = AddStops(stops, routePoints, rows);
    if (code != 0) {
        rows.clear();
    }
    return code;
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
    if (rows.empty() || ports.empty()) {
        return -1;
    }
    BookPoints timed = rows;
    timed.front().eta = start;
    timed.front().etd = start;
    if (AddHours(ports.front().apt, timed.front().etd) != 0) {
        return -2;
    }
    PortAhead ahead;
    ahead.Next(ports);
    for (std::size_t i = 1; i < timed.size(); ++i) {
        if (const int code = TimeRow(timed[i - 1], ports, ahead, timed[i]); code != 0) {
            return code;
        }
    }
    rows = std::move(timed);
    return 0;
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

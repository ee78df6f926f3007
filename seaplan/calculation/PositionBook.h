// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <vector>

#include "seaplan/data/PointTables.h"
#include "seaplan/data/RouteStop.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// Making and timing the position book, and its legs. Speeds in knots, distances in nautical miles.
namespace Tarvik::Seaplan {

/// Slowest real speed of a row in knots with which its leg's figures and the ship's place are worked out.
inline constexpr double kLeastRowKnots = 0.0001;

/// Length of the leg between two "x,y" texts in NM, great circle for `psr` "GC", else rhumb line. 0, or -1
/// for a text whose comma is missing or at its beginning.
int LegDistance(const std::string& a, const std::string& b, const std::string& psr, float& nm);
/// Rows of the route. 0 (no stops: no rows); -1 one stop; -3 split; -4 fewer than two points in a segment;
/// -5, -6 unknown route point. On failure the list is empty.
int BookFromStops(const RouteStops& stops, const PointMap& routePoints, BookPoints& rows);
/// Times of the rows from the book's start. -1 no row or no port; -2 first stay; -3 distance; -4 speed of at
/// most 0.00001; -5 a time that is not finite; -6 a stay.
int ComputeBookTimes(const Util::_datetime_t& start, const PortCallRows& ports, BookPoints& rows);
/// Rows by port: group 0 is the first port's row alone. -1 for fewer than two rows.
int GroupBookByPort(const BookPoints& rows, std::map<int, BookPoints>& groups);
/// Gives the ports their distance and speed from the book, then recomputes them from the book's start. -1
/// fewer than two ports; -2 too few ports in the book; -3 a leg of fewer than two points; -4 a position
/// without comma; -5 a speed below 0.0001; -6 a leg time below 0.0001; -7 recompute. On failure the ports are
/// untouched.
int LegTotalsFromBook(const VoyPositionBook& book, PortCallRows& ports);
/// Carries the ports' speeds over into the rows of their legs. -1 too few rows; -2 legs differ in number from
/// ports; -3 the averages of the legs cannot be formed; -4 the ports cannot be recomputed with them. On
/// failure the rows are untouched.
int RescaleBookSpeeds(const PortCallRows& ports, BookPoints& rows);
/// Whether the ports of a route are the rows' ports, in order, by id.
bool RouteFits(const RouteStops& stops, const PortCallRows& rows);
/// The same for the ports of a book, by name, or by id where a port is spelt otherwise. A port row that says
/// nothing of its port fits any.
bool BookFits(const BookPoints& book, const PortCallRows& rows);
/// Joins the legs of `fresh` with those of `stored` that run between the same two ports, so that
/// waypoints that the person worked on stay. A book's own rows name its ports; only a row without a name has
/// that of its port call, if the book has as many ports as there are calls. 0, or -1 when either side has
/// fewer than two ports or the fresh legs do not match theirs.
int JoinKeepingLegs(const PortCallRows& oldPorts, const BookPoints& stored, const PortCallRows& newPorts,
                    const BookPoints& fresh, BookPoints& out);

/// The rows of one leg by index, both ends included. Leg 0 is the start up to the first port; every later leg
/// opens with the port row that closes the one before.
struct BookLeg {
    std::size_t first = 0;
    std::size_t last = 0;
};

/// One leg for each port row of a book; rows behind the last port belong to none.
std::vector<BookLeg> LegsOf(const BookPoints& rows);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/util/Units.h>

#include "seaplan/data/PosBookData.h"

/// Courses, times and totals of the position book on show.
namespace Tarvik::Seaplan {

using Util::kHoursPerDay;

enum class BookSpeedUnit : int { Knots = 0, KmPerHour = 1 };
enum class BookDistanceUnit : int { NauticalMiles = 0, Kilometres = 1 };
enum class BookTimeUnit : int { Days = 0, Hours = 1 };

/// Units in which the panel shows its totals.
struct BookUnits {
    BookSpeedUnit speed = BookSpeedUnit::Knots;
    BookDistanceUnit distance = BookDistanceUnit::NauticalMiles;
    BookTimeUnit time = BookTimeUnit::Days;
};

/// Totals in the units on show, and how far the voyage has come.
struct BookTotals {
    double averageSpeed = 0;  ///< not a number for a book that takes no time
    double totalDistance = 0;
    double totalTime = 0;  ///< stays included, that of the first port not
    int passedPort = -1;   ///< index of the last port reached, -1 none
    int passedSub = -1;    ///< index in its leg of the waypoint passed last, of whatever leg; -1 none
};

/// Works out course, ETA and ETD of every row from the first port's ETD, and the totals. `now` is UTC. The
/// first port's own times stay; its speed and course become 0. A point of the AIS track right behind a plain
/// waypoint is timed but counts in no total.
BookTotals RecomputeBook(PosBookData& book, const BookUnits& units, const Util::_datetime_t& now);
/// Whether a row lies behind the ship and so cannot be edited: waypoint `sub` of a port's leg, or -1 for the
/// port.
bool IsPassed(const BookTotals& totals, int port, int sub);

}  // namespace Tarvik::Seaplan

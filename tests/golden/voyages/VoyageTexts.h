// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/RouteStop.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// A planned voyage as text that is the same wherever it is made: numbers as the panels print them.
namespace Tarvik::Golden {

/// Stops with their segments, points, groups and locks.
std::string RouteText(const Seaplan::RouteStops& stops);
/// One line a row, with the distance of every leg of a port before it.
std::string BookText(const Seaplan::BookPoints& rows);
/// The table of port calls with its totals and summary.
std::string ScheduleText(const Seaplan::PortCallRows& rows);

}  // namespace Tarvik::Golden

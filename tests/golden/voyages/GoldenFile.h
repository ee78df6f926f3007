// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/RouteStop.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// A planned voyage as text that is the same wherever it is made: numbers as the panels print them.

namespace Tarvik::Golden {

/// Whether the tests write the golden files anew instead of comparing: SEAPLAN_WRITE_GOLDEN=1.
bool Writing();
/// Compares a text with a file of a voyage's folder byte by byte, or writes it. Empty when they are equal or
/// it is written, else words that name the file and the first line that differs.
std::string CompareOrWrite(const std::string& voyage, const std::string& file, const std::string& text);

/// Stops with their segments, points, groups and locks.
std::string RouteText(const Seaplan::RouteStops& stops);
/// One line a row, with the distance of every leg of a port before it.
std::string BookText(const Seaplan::BookPoints& rows);
/// The table of port calls with its totals and summary.
std::string ScheduleText(const Seaplan::PortCallRows& rows);

}  // namespace Tarvik::Golden

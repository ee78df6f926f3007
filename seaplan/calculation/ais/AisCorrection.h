// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// Putting the ship's last real position into the plan. Times are in the plan's reading.

/// Planning anew what lies ahead of a corrected voyage's ship.

namespace Tarvik::Seaplan {

/// Ids of the ports that the ship leaves after `fix` by the recomputed schedule, by the dictionary; an empty
/// list means that there is nothing to correct. 0; -1 fewer than two ports; -2 the schedule.
int NextPortsAfter(const Util::_datetime_t& fix, const PortCallRows& ports, std::vector<std::string>& ids);
/// Positions of the book behind the leg under way, for `nextPorts` ports ahead; the group right behind the
/// first of them is taken each time. 0; -1 more next ports than ports; -2 the book cannot be grouped; -3 a
/// port without rows.
int RestOfBookPositions(const PortCallRows& ports, const BookPoints& rows, std::size_t nextPorts,
                        std::vector<std::string>& positions);
/// Puts the fix and the server's way from there (`positions`, the fix first, the port last) into the leg on
/// which the ship was at time `fix`. `applied` becomes 1, or 0 when the ship hardly moved and the fix itself
/// got no row. New rows have `fix` as their time until ComputeBookTimes times them. 0; -1 the times; -2
/// grouping; -3 a port without group; -4 an empty group; -5 the ship had not left; -6 a time; -7 a position.
/// On failure the book is as it was.
int InsertAisPosition(const Util::_datetime_t& fix, const PortCallRows& ports,
                      const std::vector<std::string>& positions, VoyPositionBook& book, int& applied);

/// The ship's position "x,y" from the last row of the history, whose name is "y,x". 0; -3 when the last row
/// is no position of the ship.
int ShipPositionOf(const PortCallRows& history, std::string& position);
/// What is planned behind the ship's position.
struct NewCourse {
    std::vector<std::string> nearest;  ///< the server's way from the ship to the first planned port
    PortCallRows plan;
    BookPoints ahead;  ///< the route between the planned ports when there are more
};
/// The book of a corrected voyage behind a new plan: `stored` up to the row at the ship's position, then the
/// course. Its `ahead` is scaled to the plan's speeds and loses its first row. 0; -4 no row at the position;
/// -5 fewer than two points of the way. On failure `out` is as it was.
int ReplanBook(const BookPoints& stored, const std::string& position, NewCourse course, BookPoints& out);
/// Ports of the history without the ship's positions, then the plan, in which a missing purpose becomes "D".
PortCallRows JoinHistoryAndPlan(const PortCallRows& history, const PortCallRows& plan);

}  // namespace Tarvik::Seaplan

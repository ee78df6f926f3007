// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// Planning anew what lies ahead of a corrected voyage's ship.
namespace Tarvik::Seaplan {

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

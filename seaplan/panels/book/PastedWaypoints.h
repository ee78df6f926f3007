// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "seaplan/calculation/book/BookColumns.h"
#include "seaplan/calculation/book/BookRecompute.h"
#include "seaplan/data/Position.h"
#include "seaplan/panels/paste/PastedHeads.h"
#include "seaplan/panels/paste/PastedText.h"

/// Waypoints of a text that comes from elsewhere: another program's route, a spreadsheet, or the book itself.
namespace Tarvik::Seaplan {

/// A column of pasted waypoints that holds latitude and longitude at once. The others are those of the book.
inline constexpr int kPositionColumn = 100;

/// What a person can take a column of pasted waypoints as.
inline constexpr int kWaypointKinds[] = {kNoColumn,       BookName,  BookLatitude, BookLongitude,
                                         kPositionColumn, BookTrack, BookSpeed};

/// A line that says where a waypoint lies.
struct PastedWaypoint {
    GeoPoint position;  ///< within CheckDegrees
    std::string name;   ///< empty where the line has none
    std::string track;  ///< "GC" or "RL", empty where the line tells none
    double kmh = 0;     ///< 0 where the line tells no speed
};

/// Pasted lines with what their columns were taken for.
struct PastedWaypoints {
    PastedColumns columns;
    std::vector<std::vector<PastedCell>> cells;         ///< of each line
    std::vector<std::optional<PastedWaypoint>> points;  ///< of each line; nothing where no position is told
    bool cut = false;
};

/// Finds out what the columns of lines are: by a first line of heads, which names those of the book in the
/// language in force or in English, or else by what most of their cells look like: positions, coordinates
/// with their letters, two columns of plain degrees with the latitude first, "GC" and "RL", words.
PastedColumns UnderstandWaypoints(const PastedLines& lines);
/// Reads lines whose columns are these. Positions in all forms that people type; speeds in the unit on show,
/// and none that its own text or its head tells in another unit.
PastedWaypoints ReadWaypoints(const PastedText& text, PastedColumns columns, BookSpeedUnit unit);

}  // namespace Tarvik::Seaplan

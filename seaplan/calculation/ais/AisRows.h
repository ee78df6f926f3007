// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// A corrected voyage as rows of the port call table: ports, and the ship's positions between them. Knots,
/// nautical miles, hours.
namespace Tarvik::Seaplan {

/// Whether the row stands for a position of the ship: its purpose is one blank.
bool IsAisRow(const VoyPortCall& row);
/// Table rows of a corrected book whose rows carry their times. A position's row is named by "y,x", latitude
/// first, and its leg begins at the row of the table before it. 0; -1 no ports; -2 the book cannot be
/// grouped; -3 a port without rows; -4 a position without comma.
int BuildAisRows(const PortCallRows& ports, const BookPoints& rows, PortCallRows& out);
/// Rows up to the last position of the ship, and those behind it. 0; -3 the book's times; -4 the rows; -5 no
/// position, or nothing before it.
int SplitCorrectedVoyage(const VoyPositionBook& book, const PortCallRows& ports, PortCallRows& before,
                         PortCallRows& after);

/// Average speeds in knots, before and after a moment.
struct SpeedsAround {
    float before = 0;
    float after = 0;
};
/// Real speeds of the legs in which a row was left within 0.01 hours of `time`: the way up to that row, and
/// behind it. A speed is set only when more than 0.001 hours went into it. 0; -1 not a time; -2 the book
/// cannot be grouped; -6 a position; -7 a row before its predecessor.
int AverageSpeedsAround(const std::string& time, const BookPoints& rows, SpeedsAround& speeds);

}  // namespace Tarvik::Seaplan

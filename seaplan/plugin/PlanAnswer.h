// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/interface/PlanRecords.h>

#include "seaplan/calculation/Units.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// What a client asks of a plan, looked at before anything is planned, and the plan in the words of the SDK's
/// records, which are all that a client knows of it.
namespace Tarvik::Seaplan {

/// The ports asked for as rows without ids, all with the start as arrival.
PortCallRows RowsOf(const Interface::PlanRequest& request);
/// What is wrong with a port's figures, empty when nothing is. The schedule would repair a missing speed,
/// which a person who typed it does not expect.
std::string ComplaintOf(const Interface::PlanPort& port);
/// What is wrong with the names under which a voyage is to be saved, as the tree keeps them; empty when
/// nothing is.
std::string ComplaintOfNames(const std::string& category, const std::string& voyage);

/// Rows, totals and summary of a schedule in standard units.
void TellSchedule(const PortCallRows& rows, Interface::PlanResult& out);
/// Waypoints and the lines that are drawn through them. False for a position that cannot be read.
bool TellRoute(const BookPoints& book, Interface::PlanResult& out);
/// The panel's columns and texts, and the figures below them. Rows whose units do not exist, or are the
/// standard ones already, stay as they are.
void TellTable(const PortCallRows& rows, const UnitSet& units, Interface::PlanResult& out);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/interface/PlanRecords.h>

#include "seaplan/calculation/Units.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// A plan in the words of the SDK's records, which are all that a client knows of it.
namespace Tarvik::Seaplan {

/// Rows, totals and summary of a schedule in standard units.
void TellSchedule(const PortCallRows& rows, Interface::PlanResult& out);
/// Waypoints and the lines that are drawn through them. False for a position that cannot be read.
bool TellRoute(const BookPoints& book, Interface::PlanResult& out);
/// The panel's columns and texts, and the figures below them. Rows whose units do not exist, or are the
/// standard ones already, stay as they are.
void TellTable(const PortCallRows& rows, const UnitSet& units, Interface::PlanResult& out);

}  // namespace Tarvik::Seaplan

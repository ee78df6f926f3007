// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "seaplan/data/Position.h"
#include "seaplan/data/VoyInfo.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Interface {
struct VesselCard;
}

namespace Tarvik::Seaplan {

/// A voyage cut in two where the plan has the ship; positions are "x,y".
struct PlannedProgress {
    PointTexts sailed;
    PointTexts remaining;
    std::string current;  ///< place of the ship
};

/// Dead reckoning: where the plan has the ship at `now` (the plan's reading). `groups` holds the book's rows
/// by port. On a leg the place is interpolated on plain degrees, however the leg is sailed, and seconds do
/// not count. 0; -6 a port without rows; -7 a weather factor above 1; -8 nothing sailed before the leg; -9,
/// -10 a position without comma; -11 a distance; -12 a speed of at most 0.0001 knots; -13 a steam time that
/// is not finite or leads out of the calendar.
int PlanProgress(const PortCallRows& ports, const std::map<int, BookPoints>& groups,
                 const Util::_datetime_t& now, PlannedProgress& out);

/// The same for a voyage corrected from the ship's track: rows that were left 31 seconds or more before
/// `correction` are covered by the real track and belong to neither line, and a row counts as passed 31
/// seconds after its time. `groups` hold timed rows. 0; -7 a port without rows; -8 a weather factor above 1;
/// -9, -10 a position without comma; -11 a distance; -12 a speed of at most 0.0001 knots; -13 a steam time
/// that is not finite; -14 one that leads out of the calendar.
int CorrectedProgress(const PortCallRows& ports, const std::map<int, BookPoints>& groups,
                      const Util::_datetime_t& correction, const Util::_datetime_t& now,
                      PlannedProgress& out);

/// The card that the tracking plug-in shows for a voyage's vessel. `position` is the place of its icon,
/// "x,y", or empty when it has none; `now` is the present time in the plan's reading. Cursor fields keep
/// their defaults.
Interface::VesselCard VesselCardOf(const VoyInfo& voyage, const std::string& position,
                                   const Util::_datetime_t& now);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/calculation/ScheduleFigures.h"
#include "seaplan/data/PointTables.h"
#include "seaplan/data/VoyPortCall.h"

/// The arithmetic of the port call table, in knots, nautical miles and hours, and what comes before it.
namespace Tarvik::Seaplan {

/// Gives row 0 the purpose "L" when it has none.
void PrepareFirstPurpose(PortCallRows& rows);
/// Gives every port without a purpose its own: "L" in row 0, "D" behind it. Positions of the ship are no
/// ports; the caller has none of them among the rows.
void FillMissingPurposes(PortCallRows& rows);
/// Whether a row stands for the same place as the one before it, by name or by link.
bool IsSamePlace(const VoyPortCall& before, const VoyPortCall& row, const SamePortLinks& links);
/// Leaves out every row that stands for the same place as the row before it in the list as read, by name or
/// by link; rows that stay without a purpose take "D". 0, or -1 with `out` empty when fewer than two rows are
/// left.
int DropSamePortRows(const PortCallRows& rows, const SamePortLinks& links, PortCallRows& out);

/// Largest weather factor that a schedule is worked out with after an edit.
inline constexpr double kMostWeather = 0.9999999;

/// Hours for `distance` NM at `speed` knots and weather factor `weather`: d / ((1 - w) * s). Not finite for a
/// factor of 1 or a speed of 0.
double SteamTime(double distance, double speed, double weather);
/// The same formula solved for the speed in knots: what an arrival at a given time asks of a leg, whatever
/// its speed was. Not finite for a factor of 1 or 0 hours.
double SpeedForSteamTime(double distance, double hours, double weather);
/// Schedule of rows that have distances, starting at `start`. A missing speed becomes 10 knots. 0; -1 when a
/// steam time is not finite, with `out` empty.
int BuildSchedule(const Util::_datetime_t& start, const PortCallRows& rows, PortCallRows& out);
/// Schedule after an edit, from `eta` of row 0. 0; -1 weather outside 0 to 0.9999999; -2 speed below
/// Interface::kLeastKnots; -3 a steam time that is not finite. On failure `out` is empty.
int RecomputeSchedule(const PortCallRows& rows, PortCallRows& out);
/// Adds hours, whole centiseconds truncated toward zero. 0; -1, with the time as it was, for a value that is
/// not finite or leads out of the years 1 to 9999; the passes above then fail as for a steam time that is not
/// finite.
int AddHours(float hours, Util::_datetime_t& time);
/// Hours from text b to text a, both 19 characters `kTimeFormat` read by position. 0, or -1 for another
/// length.
int HoursBetween(const std::string& a, const std::string& b, float& hours);

/// A new list with `row` before `index`, or at the end when the index is the size. -1 negative, -2 beyond the
/// size.
int InsertRowAt(const PortCallRows& rows, int index, const VoyPortCall& row, PortCallRows& out);
/// A new list without row `index`. -1 negative, -2 at or beyond the size.
int RemoveRowAt(const PortCallRows& rows, int index, PortCallRows& out);
/// -1 when the insertion, -2 when the removal fails; then `out` is empty.
int MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out);
/// As MoveRowUp.
int MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out);

/// The totals row. False, with `out` as it was, for fewer than two rows.
bool TotalsOf(const PortCallRows& rows, ScheduleTotals& out);

/// The summary of rows in standard units. False, with `out` as it was, for fewer than two rows or a total
/// time below 0.0001.
bool SummaryOf(const PortCallRows& rows, ScheduleSummary& out);

}  // namespace Tarvik::Seaplan

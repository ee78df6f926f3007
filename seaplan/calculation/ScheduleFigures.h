// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/util/DateTime.h>

/// What stands below the port call table. The columns know these and nothing of the arithmetic behind them,
/// so that a change of that does not compile every window of the table anew.
namespace Tarvik::Seaplan {

/// Sums of the totals row, from row 0, in the units of the rows.
struct ScheduleTotals {
    float portTime = 0;
    float steamTime = 0;
    float distance = 0;
    Util::_datetime_t eta;  ///< of the first row
    Util::_datetime_t etd;  ///< of the last row
};

/// Figures over the whole voyage from row 1: port time included, the stay at the first port not.
struct ScheduleSummary {
    float averageSpeed = 0;   ///< knots
    float totalTime = 0;      ///< hours
    float totalDistance = 0;  ///< nautical miles
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "seaplan/calculation/Units.h"
#include "seaplan/controllers/RouteWays.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/panels/paste/RowsPreview.h"

namespace Tarvik::Seaplan {

class PortCallDesk;

/// The legs of rows as they are and as a new route would have them, side by side in the distance unit on
/// show. Both lists are in nautical miles and have the same ports in order.
RowsPreview PreviewOfRoute(const PortCallRows& now, const PortCallRows& anew, const UnitSet& units);

enum class WaysStep {
    Rows,    ///< the table has no route that is not saved yet, or its rows no schedule over it
    None,    ///< the route can be chosen nowhere
    Server,  ///< it was not there to ask
    Left     ///< the person keeps the route as it is
};

/// The ways past the route points of the route on show, measured before one is chosen.
class RouteChoice {
  public:
    explicit RouteChoice(PortCallDesk& desk) : desk_(desk) {}

    /// Asks the server for each way, shows what each costs in miles, hours and arrival, and lets the person
    /// choose. Chosen, it is the pending route and drawn, and the rows are to follow it; failed or left, all
    /// is as before.
    Outcome<WaysStep> Choose();

  private:
    /// What a way comes to: nautical miles, hours at sea at the rows' speeds, and the arrival at the last
    /// port.
    struct Cost {
        double miles = 0;
        double hours = 0;
        Util::_datetime_t arrival;
    };
    std::optional<Cost> CostOf(const RouteStops& stops, const PortCallRows& rows) const;
    RowsPreview::Cells CellsOf(const RouteWay* way, const Cost& now, const Cost& then) const;

    PortCallDesk& desk_;
};

}  // namespace Tarvik::Seaplan

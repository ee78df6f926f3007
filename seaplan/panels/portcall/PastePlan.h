// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/paste/RowsPreview.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/paste/PastedRows.h"

namespace Tarvik::Seaplan {

/// A time that a paste puts into a row that has one, as if it were typed.
struct PastedTime {
    int place = 0;  ///< of the row among those with a port
    int column = ColEta;
    std::string text;
};

/// What a paste makes of a table, before anything is changed.
struct PastePlan {
    PortCallTable table;
    RowsPreview preview;
    std::vector<PastedTime> times;
    bool portsChange = false;  ///< a row gets another port than it had
    int rows = 0;              ///< that take something
};

/// Plans pasted rows from a row of the table on. Under other ports only the
/// first row's time counts, as the start, and the stays between arrival and
/// departure; under the same ports all times do. `portId` gives the id of a
/// port by its name; `hoursPerUnit` is the unit of the stays on show.
PastePlan PlanPaste(const PastedRows& pasted, const PortCallTable& table, int first, double hoursPerUnit,
                    const std::function<std::string(const std::string&)>& portId);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/controllers/VoyageChart.h"
#include "seaplan/data/Outcome.h"

namespace Tarvik::Seaplan {

class PortCallDesk;

enum class TableSaveStep {
    Voyage,  ///< no voyage
    Rows,    ///< no rows
    Server,  ///< the save failed; the sheet's cause tells why
    Unread   ///< the voyage has port calls on the server that were never shown here
};

/// The rows on show as the schedule of a voyage.
class TableSaving {
  public:
    explicit TableSaving(PortCallDesk& desk) : desk_(desk) {}

    /// Saves them and draws as `mode` tells.
    Outcome<TableSaveStep> Save(const std::string& vi, DrawMode mode);

  private:
    bool MayReplace(const std::string& vi);

    PortCallDesk& desk_;
};

}  // namespace Tarvik::Seaplan

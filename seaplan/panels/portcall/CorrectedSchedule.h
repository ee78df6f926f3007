// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

class PortCallDesk;

/// The table of a voyage that was corrected from its vessel's positions: history and plan, and the
/// calculation that plans the rest anew.
class CorrectedSchedule {
  public:
    explicit CorrectedSchedule(PortCallDesk& desk) : desk_(desk) {}

    /// Time of a correction, `kTimeFormat` in the user's zone, and the voyage that it belongs to.
    void SetTime(const std::string& vi, const std::string& time);
    /// The correction on show is given up: its time is noted nowhere.
    void GiveUp();
    /// Shows the voyage on show as history and plan, with nothing to save. 0; -1 it cannot be split, -2 it
    /// has no rows.
    int Fill();
    /// Marks the table as a fresh correction that must be calculated or saved.
    void MarkFresh();
    /// Plans the rest of the voyage anew and saves it. 0; -1 no position row; -2 the units; -3 no plan; -4 it
    /// cannot be shown; -5 not saved.
    int Calculate();

  private:
    int ShowHistoryAndPlan();
    int ReplanAndSave();

    PortCallDesk& desk_;
    std::string time_;
    std::string voyageId_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/StatusQueue.h"
#include "seaplan/panels/tree/TreeCodes.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

struct VoyInfo;
struct TreeContext;

/// Status, dates and vessel as a voyage's row shows them.
class TreeStatus {
  public:
    explicit TreeStatus(TreeContext& context);

    /// Takes the status of the present time into the cache.
    Outcome<StatusStep> Compute(const std::string& vi);
    /// Draws the cached status, computed when there is none. Fails also for a voyage without a row.
    Outcome<StatusStep> Show(const std::string& vi);
    /// Show for every voyage of a category, failures ignored. Many that must be asked for come in pieces
    /// between events.
    void ShowAll(TreeRow categoryRow, const std::string& ci);
    /// Show for every status in the cache.
    void ShowKnown();
    /// First departure and last arrival. Fails, with nothing changed, with fewer than two port calls.
    Outcome<DatesStep> ShowDates(TreeRow row, const VoyInfo& voyage);
    /// The vessel in the place of the link; `alert` marks one that is only a typed name.
    void ShowVessel(TreeRow row, const std::string& name, bool alert);
    /// Draws name and dates of the first row that shows the voyage, if there is one. Fails for a voyage that
    /// is unknown or has no dates.
    Outcome<RowRefreshStep> RefreshRow(const std::string& vi);

  private:
    Outcome<StatusStep> Know(const std::string& vi);
    void Find(const std::string& vi, TreeRow row);
    void Draw(TreeRow row, int status);

    TreeContext& c_;
    StatusQueue queue_;
};

}  // namespace Tarvik::Seaplan

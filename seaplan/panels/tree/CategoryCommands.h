// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <set>
#include <string>

#include "seaplan/panels/tree/TreeCollaborators.h"

namespace Tarvik::Seaplan {

class VoyageTreeSortDlg;
struct TreeParts;

/// Commands of a category's row.
class CategoryCommands {
  public:
    /// `reload` loads all rows anew; negative on failure.
    CategoryCommands(TreeParts& parts, VoyageTreeSortDlg& sortPanel, std::function<int()> reload)
        : p_(parts), sortPanel_(sortPanel), reload_(std::move(reload)) {}

    TreeCommands Table();
    /// A new category with this name and its row, ready for renaming. False when the server makes none.
    bool Add(const std::string& name);
    /// Creates one with a generated name when none is in use. False when that fails.
    bool Ensure();
    /// The choice of an order, which opens at a category's row.
    VoyageTreeSortDlg& SortPanel() { return sortPanel_; }
    /// A name for a new category that no category has or had.
    std::string NewName() const;

  private:
    ItemOutcome AddVoyage();
    ItemOutcome Delete();
    ItemOutcome Recover();
    ItemOutcome Clear();
    ItemOutcome OpenSortPanel();
    ItemOutcome SetDirection(int direction);
    ItemOutcome Rename();
    std::set<std::string> OnChartOf(const std::string& ci) const;
    void TakeOffChart(const std::string& ci);

    TreeParts& p_;
    VoyageTreeSortDlg& sortPanel_;
    std::function<int()> reload_;
};

}  // namespace Tarvik::Seaplan

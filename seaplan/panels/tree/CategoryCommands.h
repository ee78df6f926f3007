// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <set>
#include <string>

#include "seaplan/panels/tree/TreeCollaborators.h"

namespace Tarvik::Seaplan {

class VoyageTreeSortDlg;
struct TreeParts;

/// Commands of a category's row. Results: 0 or the negative number of the failed step, which shows nothing.
class CategoryCommands {
  public:
    /// `reload` loads all rows anew; negative on failure.
    CategoryCommands(TreeParts& parts, VoyageTreeSortDlg& sortPanel, std::function<int()> reload)
        : p_(parts), sortPanel_(sortPanel), reload_(std::move(reload)) {}

    TreeCommands Table();
    /// A new category with this name and its row, ready for renaming.
    int Add(const std::string& name);
    /// Creates one with a generated name when none is in use.
    int Ensure();
    /// A name for a new category that no category has or had.
    std::string NewName() const;

  private:
    int AddVoyage();
    int Delete();
    int Recover();
    int Clear();
    int OpenSortPanel();
    int SetDirection(int direction);
    int Rename();
    std::set<std::string> OnChartOf(const std::string& ci) const;
    void TakeOffChart(const std::string& ci);

    TreeParts& p_;
    VoyageTreeSortDlg& sortPanel_;
    std::function<int()> reload_;
};

}  // namespace Tarvik::Seaplan

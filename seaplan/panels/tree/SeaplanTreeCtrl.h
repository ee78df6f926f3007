// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/TextKeys.h"
#include "seaplan/panels/tree/TreeBuilder.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/tree/VoyagesOnChart.h"

#include <map>
#include <string>

namespace Tarvik::Seaplan {

/// What the tree asks of the port call panel.
class PortCallOpener {
  public:
    virtual ~PortCallOpener() = default;
    /// Every click on a voyage's row sets the voyage of the next opening.
    virtual void SetVoyage(const std::string& vi) = 0;
    /// Fills the panel from the voyage; negative on failure.
    virtual int FillForVoyage(int mode) = 0;
    /// Empties the panel to six rows.
    virtual void Reset() = 0;
    /// Puts the panel beside the tree and shows it.
    virtual void ShowBesideTree() = 0;
};

/// The voyage tree: rows from the store, and the commands behind their items. Results are 0 (or 1 for a click
/// whose chain ran to its end), or the negative number of the failed step.
class SeaplanTreeCtrl {
  public:
    SeaplanTreeCtrl(VoyageStore& store, CatalogCommands& catalog, ScheduleCommands& schedule,
                    TreeWidget& tree);

    void SetPortCallPanel(PortCallOpener* panel) { portCalls_ = panel; }

    /// Loads from the server and makes every row anew. -1 not connected; -2 load; -3 rows; -4 statistics.
    int ReloadTree();
    int RebuildCategory(const std::string& ci) { return builder_.RebuildCategory(ci); }
    int ComputeStatus(const std::string& vi) { return builder_.ComputeStatus(vi); }
    int ShowStatus(const std::string& vi) { return builder_.ShowStatus(vi); }
    int ShowDates(TreeRow row, const VoyInfo& voyage) { return builder_.ShowDates(row, voyage); }
    void OnViewShown(bool shown);
    /// Creates a category when none is in use. Negative on failure.
    int EnsureCategory();
    /// A new category with this name and its row, ready for renaming. Negative on failure.
    int AddCategory(const std::string& name);
    /// Redraws the first row that shows the voyage. -3 when that fails; 0 also without such a row.
    int RefreshVoyageRow(const std::string& vi);
    /// Selects a voyage's row and makes it the current one. -1 without a row.
    int SelectVoyage(const std::string& vi);
    void SetShowDeleted(bool shown);
    bool ShowsDeleted() const { return context_.showDeleted; }
    /// -1 empty id; -2 no sort state; -3 rebuild failed.
    int SetSortKey(const std::string& ci, int sortKey);
    void HideEditors();
    void ForgetAfterLogout();
    void ApplyLanguage() { builder_.ApplyLanguage(); }

    /// A left press on a row, whatever item lies under it.
    void OnRowPressed(TreeRow row);
    /// A click on an item, by name.
    int OnItemClicked(TreeRow row, const std::string& item);
    int CommitRename() { return rename_.Commit(); }

    TreeContext& Context() { return context_; }

  private:
    using Command = int (SeaplanTreeCtrl::*)();
    static const std::map<std::string, Command>& categoryCommands();
    static const std::map<std::string, Command>& voyageCommands();

    int addVoyage();
    int deleteCategory();
    int recoverCategory();
    int clearCategory();
    int openSortPanel();
    int sortDescending() { return setDirection(Descending); }
    int sortAscending() { return setDirection(Ascending); }
    int renameCategory();
    int pinRoute();
    int unpinRoute();
    int openPortCalls();
    int openEmptyPortCalls();
    int noonReport();
    int renameVoyage();
    int deleteVoyage();
    int recoverVoyage();
    int clearVoyage();

    int setDirection(int direction);
    int dropVoyageRow();
    int unfold(TreeRow row);
    bool confirmClear();
    void notice(TextId id);

    TreeContext context_;
    TreeBuilder builder_;
    VoyagesOnChart chart_;
    TreeRename rename_;
    PortCallOpener* portCalls_ = nullptr;
    TreeRow currentCategoryRow_ = kNoRow;
    TreeRow currentVoyageRow_ = kNoRow;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/CategoryCommands.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/panels/tree/TableVoyage.h"
#include "seaplan/panels/tree/TrackCommands.h"
#include "seaplan/panels/tree/TreeKeys.h"
#include "seaplan/panels/tree/TreeUndo.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "seaplan/panels/tree/VoyageCommands.h"

namespace Tarvik::Seaplan {

/// The voyage tree: rows from the store, and the commands behind their items, which are in classes by task.
/// Results are 0 (or 1 for a click whose chain ran to its end), or the negative number of the failed step.
class SeaplanTreeCtrl {
  public:
    explicit SeaplanTreeCtrl(const TreeCollaborators& given);
    SeaplanTreeCtrl(const SeaplanTreeCtrl&) = delete;
    SeaplanTreeCtrl& operator=(const SeaplanTreeCtrl&) = delete;

    /// Without it the commands that open the panel fail.
    void SetPortCallPanel(PortCallSource panel) { parts_.portCalls = std::move(panel); }

    /// Loads from the server and makes every row anew. -1 not connected; -2 load; -3 rows; -4 statistics.
    int ReloadTree();
    int RebuildCategory(const std::string& ci) { return parts_.builder.RebuildCategory(ci); }
    int ComputeStatus(const std::string& vi) { return parts_.status.Compute(vi); }
    int ShowStatus(const std::string& vi) { return parts_.status.Show(vi); }
    int ShowDates(TreeRow row, const VoyInfo& voyage) { return parts_.status.ShowDates(row, voyage); }
    void SetRemarkMark(TreeRow row, bool on) { parts_.remark.Set(row, on); }
    void OnViewShown(bool shown);
    /// Redraws the first row that shows the voyage. -3 when that fails; 0 also without such a row.
    int RefreshVoyageRow(const std::string& vi) { return parts_.status.RefreshRow(vi); }
    /// Selects a voyage's row, makes it the current one and opens the vessel editor over it. -1 without a
    /// row.
    int OpenVesselEditor(const std::string& vi) { return vessels_.OpenEditor(vi); }
    /// Shows the recycle bin's rows or not, after a load. Results of ReloadTree.
    int SetShowDeleted(bool shown);
    /// -1 empty id; -2 no sort state; -3 rebuild failed.
    int SetSortKey(const std::string& ci, int sortKey);
    /// A voyage for a port distance table, with its row, and its category where that is new: results of
    /// Seaplan::CreateVoyageFromTable.
    int CreateVoyageFromTable(const std::string& category, const std::string& voyage, TableVoyage& out) {
        return Seaplan::CreateVoyageFromTable(parts_, category, voyage, out);
    }
    /// Takes the name being typed, and closes all that is open over the rows.
    void CloseEditors();
    void ForgetAfterLogout();
    void ApplyLanguage();

    /// A left press on a row, whatever item lies under it. `fold` folds or unfolds a category first, as a
    /// press beside its items does.
    void OnRowPressed(TreeRow row, bool fold = false);
    /// Keys of the tree's window.
    TreeKeys& Keys() { return keys_; }
    /// A click on an item, by name.
    int OnItemClicked(TreeRow row, const std::string& item);
    /// Whether a click on an item of this name runs a command.
    bool HasCommand(const std::string& item) const;

    CategoryCommands& Categories() { return categories_; }
    TreeRename& Renaming() { return parts_.rename; }
    /// Remarks and consumption; a panel for them is set here.
    NoteCommands& Notes() { return notes_; }
    VesselCommands& Vessels() { return vessels_; }
    VoyageTreeSortDlg& SortPanel() { return sortPanel_; }
    TreeContext& Context() { return parts_.context; }

  private:
    TreeParts parts_;
    VoyageTreeSortDlg sortPanel_;
    CategoryCommands categories_;
    VoyageCommands voyages_;
    VesselCommands vessels_;
    TrackCommands tracks_;
    NoteCommands notes_;
    TreeKeys keys_;
    TreeUndo undo_;
    struct Commands {
        TreeCommands ofCategory;
        TreeCommands ofVoyage;
    } commands_;
};

}  // namespace Tarvik::Seaplan

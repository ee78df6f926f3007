// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "seaplan/panels/tree/TreeCollaborators.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

class CategoryCommands;
class NoteCommands;
struct TableVoyage;
struct TreeContext;
class TreeKeys;
class TreeRename;
class VesselCommands;
struct VoyInfo;

/// The voyage tree: rows from the store, and the commands behind their items, which are in classes by task.
/// Results are 0 or the number of the failed step by the tables of TreeCodes.h.
class SeaplanTreeCtrl {
  public:
    explicit SeaplanTreeCtrl(const TreeCollaborators& given);
    ~SeaplanTreeCtrl();
    SeaplanTreeCtrl(const SeaplanTreeCtrl&) = delete;
    SeaplanTreeCtrl& operator=(const SeaplanTreeCtrl&) = delete;

    /// Without it the commands that open the panel fail.
    void SetPortCallPanel(PortCallSource panel);

    /// Loads from the server and makes every row anew: kReloadCodes.
    int ReloadTree();
    /// The rows of a category's voyages anew, in its order: kRowsCodes.
    int RebuildCategory(const std::string& ci);
    /// The status of the present time, for ShowStatus: kStatusCodes.
    int ComputeStatus(const std::string& vi);
    /// Draws it in the voyage's row: kStatusCodes.
    int ShowStatus(const std::string& vi);
    /// First departure and last arrival in a row: kShowDatesCodes; on failure nothing is changed.
    int ShowDates(TreeRow row, const VoyInfo& voyage);
    /// The icon that tells whether the row's object has remarks.
    void SetRemarkMark(TreeRow row, bool on);
    void OnViewShown(bool shown);
    /// Redraws the first row that shows the voyage: kRefreshRowCodes; 0 also without such a row.
    int RefreshVoyageRow(const std::string& vi);
    /// Selects a voyage's row, makes it the current one and opens the vessel editor over it:
    /// kOpenVesselCodes.
    int OpenVesselEditor(const std::string& vi);
    /// Shows the recycle bin's rows or not, after a load. Results of ReloadTree.
    int SetShowDeleted(bool shown);
    /// Another order of a category's voyages: kSortCodes.
    int SetSortKey(const std::string& ci, int sortKey);
    /// A voyage for a port distance table, with its row, and its category where that is new:
    /// kTableVoyageCodes.
    int CreateVoyageFromTable(const std::string& category, const std::string& voyage, TableVoyage& out);
    /// Takes the name being typed, and closes all that is open over the rows.
    void CloseEditors();
    void ForgetAfterLogout();
    void ApplyLanguage();

    /// A left press on a row, whatever item lies under it. `fold` folds or unfolds a category first, as a
    /// press beside its items does.
    void OnRowPressed(TreeRow row, bool fold = false);
    /// Keys of the tree's window.
    TreeKeys& Keys();
    /// A click on an item, by name: kItemCodes, or 1 when its chain ran to its end.
    int OnItemClicked(TreeRow row, const std::string& item);
    /// Whether a click on an item of this name runs a command.
    bool HasCommand(const std::string& item) const;

    CategoryCommands& Categories();
    TreeRename& Renaming();
    /// Remarks and consumption; a panel for them is set here.
    NoteCommands& Notes();
    VesselCommands& Vessels();
    TreeContext& Context();

  private:
    struct Parts;

    std::unique_ptr<Parts> in_;
};

}  // namespace Tarvik::Seaplan

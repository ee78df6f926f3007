// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include "seaplan/panels/TextKeys.h"
#include "seaplan/panels/services/AisCommands.h"
#include "seaplan/panels/tree/TreeBuilder.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/tree/VoyagesOnChart.h"
#include "seaplan/panels/vessel/VoyShipEditDlg.h"

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
    /// Fills the panel with a fresh correction from AIS, ready to be recalculated; negative on failure.
    virtual int ShowAisCorrection() = 0;
    /// Time of that correction, "%Y-%m-%d %H:%M:%S" in the user's zone.
    virtual void SetCorrectionTime(const std::string& time) = 0;
};

/// The voyage tree: rows from the store, and the commands behind their items. Results are 0 (or 1 for a click
/// whose chain ran to its end), or the negative number of the failed step.
class SeaplanTreeCtrl {
  public:
    SeaplanTreeCtrl(VoyageStore& store, CatalogCommands& catalog, ScheduleCommands& schedule,
                    TreeWidget& tree);

    void SetPortCallPanel(PortCallOpener* panel) { portCalls_ = panel; }
    /// Without these no voyage is corrected from AIS.
    void SetAisCommands(AisCommands* commands) { ais_ = commands; }
    /// Without a view the vessel commands do nothing.
    void SetVesselView(VesselView* view);
    VoyShipEditDlg* VesselEditor() { return vessel_.get(); }

    /// Loads from the server and makes every row anew. -1 not connected; -2 load; -3 rows; -4 statistics.
    int ReloadTree();
    int RebuildCategory(const std::string& ci) { return builder_.RebuildCategory(ci); }
    int ComputeStatus(const std::string& vi) { return builder_.ComputeStatus(vi); }
    int ShowStatus(const std::string& vi) { return builder_.ShowStatus(vi); }
    /// The row whose remarks are open; kNoRow for none.
    void SetRemarkRow(TreeRow row) { remarkRow_ = row; }
    /// Switches a row's remark mark, and its record's; kNoRow means the row whose remarks are open. Nothing
    /// happens while no remarks are open.
    void SetRemarkMark(TreeRow row, bool on);
    int ShowDates(TreeRow row, const VoyInfo& voyage) { return builder_.ShowDates(row, voyage); }
    void OnViewShown(bool shown);
    /// Creates a category when none is in use. Negative on failure.
    int EnsureCategory();
    /// A new category with this name and its row, ready for renaming. Negative on failure.
    int AddCategory(const std::string& name);
    /// Redraws the first row that shows the voyage. -3 when that fails; 0 also without such a row.
    int RefreshVoyageRow(const std::string& vi);
    /// Selects a voyage's row, makes it the current one and opens the vessel editor over it. -1 without a
    /// row, -2 without an editor.
    int OpenVesselEditor(const std::string& vi);
    /// Gives the voyage of the last click a vessel. -1 no voyage, -2 the server.
    int CommitVessel(const Interface::FleetEntry& vessel, bool typedOnly);
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
    /// Whether a click on an item of this name runs a command.
    bool HasCommand(const std::string& item) const;
    int CommitRename() { return rename_.Commit(); }

    TreeContext& Context() { return context_; }

  private:
    using Command = int (SeaplanTreeCtrl::*)();
    static const std::map<std::string, Command>& CategoryCommands();
    static const std::map<std::string, Command>& VoyageCommands();

    int AddVoyage();
    int DeleteCategory();
    int RecoverCategory();
    int ClearCategory();
    int OpenSortPanel();
    int SortDescending() { return SetDirection(Descending); }
    int SortAscending() { return SetDirection(Ascending); }
    int RenameCategory();
    int PinRoute();
    int UnpinRoute();
    int ShowAis();
    int HideAis();
    int OpenPortCalls();
    int OpenEmptyPortCalls();
    int NoonReport();
    int RenameVoyage();
    int DeleteVoyage();
    int RecoverVoyage();
    int ClearVoyage();
    int ModifyFromAis();
    int AssignVessel();
    int ReplaceVessel();
    int ShowVesselInfo();
    int AddVesselToFleet();

    int SetDirection(int direction);
    int DropVoyageRow();
    void TakeOffChart(const std::string& ci);
    bool Correctable(const VoyInfo& voyage);
    void OpenVesselBox(TreeRow row, const std::string& text);
    void TurnAisOn(const VoyInfo& voyage);
    int Unfold(TreeRow row);
    bool ConfirmClear();
    void Notice(TextId id);

    TreeContext context_;
    TreeBuilder builder_;
    VoyagesOnChart chart_;
    TreeRename rename_;
    std::unique_ptr<VoyShipEditDlg> vessel_;
    PortCallOpener* portCalls_ = nullptr;
    AisCommands* ais_ = nullptr;
    TreeRow currentCategoryRow_ = kNoRow;
    TreeRow currentVoyageRow_ = kNoRow;
    TreeRow remarkRow_ = kNoRow;
};

}  // namespace Tarvik::Seaplan

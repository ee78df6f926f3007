// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

#include <utility>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/tree/CategoryCommands.h"
#include "seaplan/panels/tree/ItemCommands.h"
#include "seaplan/panels/tree/MadeVoyages.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/panels/tree/PortCallOpener.h"
#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TrackCommands.h"
#include "seaplan/panels/tree/TreeKeys.h"
#include "seaplan/panels/tree/TreeParts.h"
#include "seaplan/panels/tree/TreeUndo.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "seaplan/panels/tree/VoyageCommands.h"
#include "seaplan/panels/tree/VoyageTreeSortDlg.h"

namespace Tarvik::Seaplan {

/// The rows' parts and the classes of the commands, by task.
struct SeaplanTreeCtrl::Parts {
    Parts(const TreeCollaborators& given, SeaplanTreeCtrl& tree)
        : parts(given),
          sortPanel(given.sortPopup,
                    [&tree](const std::string& ci, int key) { return tree.SetSortKey(ci, key); }),
          categories(parts, sortPanel, [&tree] { return tree.ReloadTree(); }),
          voyages(parts),
          vessels(parts, given.vesselView),
          tracks(parts),
          notes(parts),
          keys(given.tree,
               {[&tree](TreeRow row) { tree.OnRowPressed(row); },
                [&tree](TreeRow row) { tree.OnRowPressed(row, true); },
                [&tree](TreeRow row, const std::string& item) { return tree.OnItemClicked(row, item); },
                [this] { categories.Add(categories.NewName()); },
                [this] { return kUndoCodes.Of(undo.Undo()); }}),
          undo(parts,
               {[&tree] { return tree.ReloadTree(); },
                [&tree](TreeRow row, const std::string& item) { return tree.OnItemClicked(row, item); }}),
          commands(categories.Table(), {voyages.Table(), vessels.Table(), tracks.Table()}, notes) {}

    Outcome<ReloadStep> Reload();
    Outcome<SortStep> Sort(const std::string& ci, int sortKey);

    TreeParts parts;
    VoyageTreeSortDlg sortPanel;
    CategoryCommands categories;
    VoyageCommands voyages;
    VesselCommands vessels;
    TrackCommands tracks;
    NoteCommands notes;
    TreeKeys keys;
    TreeUndo undo;
    ItemCommands commands;
};

SeaplanTreeCtrl::SeaplanTreeCtrl(const TreeCollaborators& given)
    : in_(std::make_unique<Parts>(given, *this)) {}

SeaplanTreeCtrl::~SeaplanTreeCtrl() = default;

int SeaplanTreeCtrl::ReloadTree() {
    return kReloadCodes.Of(in_->Reload());
}

Outcome<ReloadStep> SeaplanTreeCtrl::Parts::Reload() {
    TreeContext& c = parts.context;
    // The rows point into records that the load replaces.
    parts.rename.Abandon();
    vessels.Editor().Hide();
    std::string user;
    if (c.catalog.Connect(user) != 0) {
        return ReloadStep::Connect;
    }
    if (c.catalog.Load(user) < 0) {
        return ReloadStep::Load;
    }
    c.categorySorts.clear();
    for (const auto& [ci, category] : c.store.categories) {
        c.categorySorts[ci] = {};
    }
    parts.selection.Forget();
    if (parts.builder.RebuildAll().Failed()) {
        return ReloadStep::Rows;
    }
    if (!CountAndMark(c)) {
        return ReloadStep::Counts;
    }
    c.catalog.GetNameMaps(c.categoryNames, c.voyageNames);
    return {};
}

void SeaplanTreeCtrl::OnViewShown(bool shown) {
    if (shown) {
        in_->parts.chart.MarkAll();
        in_->tracks.MarkAll();
        return;
    }
    CloseEditors();
    in_->parts.context.chartMarks.clear();
    in_->parts.context.voyages.ClearChart();
}

int SeaplanTreeCtrl::SetShowDeleted(bool shown) {
    in_->parts.context.showDeleted = shown;
    return ReloadTree();
}

int SeaplanTreeCtrl::SetSortKey(const std::string& ci, int sortKey) {
    return kSortCodes.Of(in_->Sort(ci, sortKey));
}

Outcome<SortStep> SeaplanTreeCtrl::Parts::Sort(const std::string& ci, int sortKey) {
    if (ci.empty()) {
        return SortStep::Id;
    }
    const auto sort = parts.context.categorySorts.find(ci);
    if (sort == parts.context.categorySorts.end()) {
        return SortStep::State;
    }
    sort->second.sortKey = sortKey;
    return parts.builder.RebuildCategory(ci).Failed() ? SortStep::Rows : Outcome<SortStep>();
}

void SeaplanTreeCtrl::CloseEditors() {
    in_->parts.rename.Commit();
    in_->sortPanel.Hide();
    in_->vessels.Editor().Hide();
}

void SeaplanTreeCtrl::ForgetAfterLogout() {
    // The records that the rows point to are gone.
    in_->parts.context.tree.DeleteAllItems();
    in_->parts.context.categorySorts.clear();
    in_->parts.rename.Abandon();
    in_->parts.remark.Open(kNoRow);
    CloseEditors();
    in_->parts.context.chartMarks.clear();
    in_->parts.context.steps.Clear();
    in_->parts.context.Say({});
    in_->parts.selection.Forget();
}

void SeaplanTreeCtrl::ApplyLanguage() {
    ApplyAllRowTexts(in_->parts.context.tree);
    in_->parts.status.ShowKnown();
    in_->sortPanel.ApplyLanguage();
}

bool SeaplanTreeCtrl::HasCommand(const std::string& item) const {
    return in_->commands.Has(item);
}

void SeaplanTreeCtrl::OnRowPressed(TreeRow row, bool fold) {
    TreeContext& c = in_->parts.context;
    if (fold && c.IsCategoryRow(row)) {
        c.tree.Expand(row, !c.tree.IsItemExpanded(row));
    }
    in_->parts.selection.Press(row);
}

int SeaplanTreeCtrl::OnItemClicked(TreeRow row, const std::string& item) {
    if (const ItemOutcome taken = in_->parts.selection.Take(row); taken.Failed()) {
        return kItemCodes.Of(taken);
    }
    const bool isCategory = in_->parts.context.IsCategoryRow(row);
    if (PortCallOpener* panel = isCategory ? nullptr : in_->parts.PortCalls()) {
        panel->SetVoyage(in_->parts.selection.Voyage().vi);
    }
    const TreeCommand* command = in_->commands.Find(isCategory, item);
    if (command == nullptr) {
        return 1;
    }
    const ItemOutcome done = (*command)();
    return done.Failed() ? kItemCodes.Of(done) : 1;
}

void SeaplanTreeCtrl::SetPortCallPanel(PortCallSource panel) {
    in_->parts.portCalls = std::move(panel);
}

int SeaplanTreeCtrl::RebuildCategory(const std::string& ci) {
    return kRowsCodes.Of(in_->parts.builder.RebuildCategory(ci));
}

int SeaplanTreeCtrl::ComputeStatus(const std::string& vi) {
    return kStatusCodes.Of(in_->parts.status.Compute(vi));
}

int SeaplanTreeCtrl::ShowStatus(const std::string& vi) {
    return kStatusCodes.Of(in_->parts.status.Show(vi));
}

int SeaplanTreeCtrl::ShowDates(TreeRow row, const VoyInfo& voyage) {
    return kShowDatesCodes.Of(in_->parts.status.ShowDates(row, voyage));
}

void SeaplanTreeCtrl::SetRemarkMark(TreeRow row, bool on) {
    in_->parts.remark.Set(row, on);
}

int SeaplanTreeCtrl::RefreshVoyageRow(const std::string& vi) {
    const auto refreshed = in_->parts.status.RefreshRow(vi);
    in_->parts.selection.TellAgain(vi);
    return kRefreshRowCodes.Of(refreshed);
}

int SeaplanTreeCtrl::OpenVesselEditor(const std::string& vi) {
    return kOpenVesselCodes.Of(in_->vessels.OpenEditor(vi));
}

int SeaplanTreeCtrl::CreateVoyageFromTable(const std::string& category, const std::string& voyage,
                                           TableVoyage& out) {
    return kTableVoyageCodes.Of(Seaplan::CreateVoyageFromTable(in_->parts, category, voyage, out));
}

TreeKeys& SeaplanTreeCtrl::Keys() {
    return in_->keys;
}

CategoryCommands& SeaplanTreeCtrl::Categories() {
    return in_->categories;
}

TreeRename& SeaplanTreeCtrl::Renaming() {
    return in_->parts.rename;
}

NoteCommands& SeaplanTreeCtrl::Notes() {
    return in_->notes;
}

VesselCommands& SeaplanTreeCtrl::Vessels() {
    return in_->vessels;
}

TreeContext& SeaplanTreeCtrl::Context() {
    return in_->parts.context;
}

}  // namespace Tarvik::Seaplan

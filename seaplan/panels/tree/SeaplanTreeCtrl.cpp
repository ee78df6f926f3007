// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

SeaplanTreeCtrl::SeaplanTreeCtrl(VoyageStore& store, CatalogCommands& catalog, ScheduleCommands& schedule,
                                 TreeWidget& tree)
    : context_{store, catalog, schedule, tree},
      builder_(context_),
      chart_(context_),
      rename_(context_, [this](TreeRow row) { return Unfold(row); }) {}

int SeaplanTreeCtrl::ReloadTree() {
    // The rows point into records that the load replaces.
    rename_.Abandon();
    if (vessel_ != nullptr) {
        vessel_->Hide();
    }
    std::string user;
    if (context_.catalog.Connect(user) != 0) {
        return -1;
    }
    if (context_.catalog.Load(user) < 0) {
        return -2;
    }
    context_.categorySorts.clear();
    for (const auto& [ci, category] : context_.store.categories) {
        context_.categorySorts[ci] = {};
    }
    currentCategoryRow_ = kNoRow;
    currentVoyageRow_ = kNoRow;
    if (builder_.RebuildAll() != 0) {
        return -3;
    }
    if (builder_.CountAndMark() != 0) {
        return -4;
    }
    context_.catalog.GetNameMaps(context_.categoryNames, context_.voyageNames);
    return 0;
}

void SeaplanTreeCtrl::OnViewShown(bool shown) {
    if (!shown) {
        HideEditors();
        context_.chartMarks.clear();
        context_.schedule.ClearChart();
        return;
    }
    chart_.MarkAll();
    TreeWidget& tree = context_.tree;
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        for (TreeRow child = tree.GetChildItem(row); child != kNoRow;
             child = tree.GetNextSiblingItem(child)) {
            const VoyInfo* voyage = context_.VoyageOf(child);
            int state = 0;
            if (voyage == nullptr || voyage->va != 1) {
                continue;
            }
            if (context_.catalog.GetVoyageState(voyage->vi, state) != 0 || state == InRecycleBin) {
                continue;
            }
            tree.SetDrawItemVisibleEx(child, "Voyage.child.svr8", false);
            tree.SetDrawItemVisibleEx(child, "Voyage.child.svr10", true);
            PortCallRows rows;
            if (voyage->portCalls.empty()) {
                context_.schedule.LoadSchedule(voyage->vi, rows, -1);
            }
        }
    }
}

int SeaplanTreeCtrl::EnsureCategory() {
    for (const auto& [ci, state] : context_.store.categoryStates) {
        if (state == InUse) {
            return 0;
        }
    }
    return AddCategory(
        context_.catalog.MakeUniqueName(Text(TextId::IDS_TREE_NEWVOYCATEGORY), context_.categoryNames));
}

int SeaplanTreeCtrl::AddCategory(const std::string& name) {
    std::string ci;
    if (context_.catalog.AddCategory(name, ci) != 0) {
        return -1;
    }
    const auto category = context_.store.categories.find(ci);
    if (category == context_.store.categories.end()) {
        return -2;
    }
    context_.categorySorts[ci] = {};
    context_.categoryNames[name] = InUse;
    const TreeRow row = builder_.AddCategoryRow(category->second);
    rename_.Begin(row, false);
    return 0;
}

int SeaplanTreeCtrl::RefreshVoyageRow(const std::string& vi) {
    const TreeRow row = context_.FindVoyageRow(vi);
    if (row == kNoRow) {
        return 0;
    }
    const VoyInfo* voyage = context_.store.FindVoyage(vi);
    if (voyage == nullptr) {
        return -3;
    }
    context_.tree.SetItemText(row, voyage->vn);
    return builder_.ShowDates(row, *voyage) == 0 ? 0 : -3;
}

void SeaplanTreeCtrl::SetRemarkMark(TreeRow row, bool on) {
    if (remarkRow_ == kNoRow) {
        return;
    }
    const TreeRow marked = row == kNoRow ? remarkRow_ : row;
    if (context_.tree.GetItemData(marked) == nullptr) {
        return;
    }
    const bool category = context_.IsCategoryRow(marked);
    (category ? context_.CategoryOf(marked)->crk : context_.VoyageOf(marked)->vrk) = on ? 1 : 0;
    const std::string item = category ? "Voyage.parent.svr2" : "Voyage.child.svr3";
    context_.tree.SetDrawItemVisibleEx(marked, item + ".non", !on);
    context_.tree.SetDrawItemVisibleEx(marked, item + ".exist", on);
}

void SeaplanTreeCtrl::SetShowDeleted(bool shown) {
    context_.showDeleted = shown;
    ReloadTree();
}

int SeaplanTreeCtrl::SetSortKey(const std::string& ci, int sortKey) {
    if (ci.empty()) {
        return -1;
    }
    const auto sort = context_.categorySorts.find(ci);
    if (sort == context_.categorySorts.end()) {
        return -2;
    }
    sort->second.sortKey = sortKey;
    return builder_.RebuildCategory(ci) == 0 ? 0 : -3;
}

void SeaplanTreeCtrl::HideEditors() {
    context_.tree.HideRenameEditor();
    context_.tree.HidePopups();
    if (vessel_ != nullptr) {
        vessel_->Hide();
    }
}

void SeaplanTreeCtrl::ForgetAfterLogout() {
    // The records that the rows point to are gone.
    context_.tree.DeleteAllItems();
    context_.categorySorts.clear();
    HideEditors();
    context_.chartMarks.clear();
    currentCategoryRow_ = kNoRow;
    currentVoyageRow_ = kNoRow;
}

int SeaplanTreeCtrl::Unfold(TreeRow row) {
    const VoyCategory* category = context_.CategoryOf(row);
    if (category == nullptr) {
        return -1;
    }
    context_.tree.Expand(row);
    context_.tree.SelectItem(row);
    builder_.ShowStatuses(row, category->ci);
    return 0;
}

void SeaplanTreeCtrl::OnRowPressed(TreeRow row) {
    if (row == kNoRow || context_.tree.GetItemData(row) == nullptr) {
        return;
    }
    if (context_.IsCategoryRow(row)) {
        if (context_.tree.IsItemExpanded(row)) {
            Unfold(row);
        } else {
            context_.tree.SelectItem(kNoRow);
        }
        return;
    }
    VoyInfo* voyage = context_.VoyageOf(row);
    if (voyage->vi.empty()) {
        return;
    }
    context_.tree.SelectItem(row);
    chart_.ActivateVoyage(*voyage);
    PortCallRows rows;
    if (voyage->portCalls.size() < 2) {
        context_.schedule.LoadSchedule(voyage->vi, rows, -1);
    }
    builder_.ShowDates(row, *voyage);
}

}  // namespace Tarvik::Seaplan

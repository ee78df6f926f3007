// SPDX-License-Identifier: MIT
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/language/Messages.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kModify = "Voyage_modify";

}  // namespace

const std::map<std::string, SeaplanTreeCtrl::Command>& SeaplanTreeCtrl::CategoryCommands() {
    static const std::map<std::string, Command> commands = {
        {"Voyage.parent.svr3", &SeaplanTreeCtrl::AddVoyage},
        {"Voyage.parent.svr7", &SeaplanTreeCtrl::DeleteCategory},
        {"Voyage.parent.svr.recover", &SeaplanTreeCtrl::RecoverCategory},
        {"Voyage.parent.svr.clear", &SeaplanTreeCtrl::ClearCategory},
        {"Voyage.parent.svr9", &SeaplanTreeCtrl::OpenSortPanel},
        {"Voyage.parent.svr6", &SeaplanTreeCtrl::SortDescending},
        {"Voyage.parent.svr6.desc", &SeaplanTreeCtrl::SortAscending},
        {"Voyage_parent_rename", &SeaplanTreeCtrl::RenameCategory}};
    return commands;
}

const std::map<std::string, SeaplanTreeCtrl::Command>& SeaplanTreeCtrl::VoyageCommands() {
    static const std::map<std::string, Command> commands = {
        {"Voyage.child.svr1.default", &SeaplanTreeCtrl::PinRoute},
        {"Voyage.child.svr1.auto", &SeaplanTreeCtrl::UnpinRoute},
        {"Voyage.child.svr8", &SeaplanTreeCtrl::ShowAis},
        {"Voyage.child.svr10", &SeaplanTreeCtrl::HideAis},
        {kModify, &SeaplanTreeCtrl::ModifyFromAis},
        {"Voyage.child.svr4", &SeaplanTreeCtrl::OpenPortCalls},
        {"Voyage_setPortCall", &SeaplanTreeCtrl::OpenEmptyPortCalls},
        {"Voyage.child.svr6", &SeaplanTreeCtrl::NoonReport},
        {"Voyage_child_rename", &SeaplanTreeCtrl::RenameVoyage},
        {"Voyage.child.svr9", &SeaplanTreeCtrl::DeleteVoyage},
        {"Voyage.child.svr.recover", &SeaplanTreeCtrl::RecoverVoyage},
        {"Voyage.child.svr.clear", &SeaplanTreeCtrl::ClearVoyage},
        {"Voyage_AssignShip", &SeaplanTreeCtrl::AssignVessel},
        {"Voyage_ReplaceShip", &SeaplanTreeCtrl::ReplaceVessel},
        {"Voyage_ShipInfo", &SeaplanTreeCtrl::ShowVesselInfo},
        {"Voyage_Alert", &SeaplanTreeCtrl::AddVesselToFleet}};
    return commands;
}

bool SeaplanTreeCtrl::HasCommand(const std::string& item) const {
    if (item == kModify && ais_ == nullptr) {
        return false;
    }
    return CategoryCommands().contains(item) || VoyageCommands().contains(item);
}

int SeaplanTreeCtrl::OnItemClicked(TreeRow row, const std::string& item) {
    context_.tree.SelectItem(row);
    const bool isCategory = context_.IsCategoryRow(row);
    currentCategoryRow_ = isCategory ? row : context_.tree.GetParentItem(row);
    const VoyCategory* category = context_.CategoryOf(currentCategoryRow_);
    if (category == nullptr) {
        return isCategory ? -1 : -19;
    }
    if (category->ci.empty()) {
        return isCategory ? -2 : -20;
    }
    if (!isCategory) {
        currentVoyageRow_ = row;
        const VoyInfo* voyage = context_.VoyageOf(row);
        if (voyage == nullptr) {
            return -21;
        }
        if (voyage->vi.empty()) {
            return -22;
        }
        if (portCalls_ != nullptr) {
            portCalls_->SetVoyage(voyage->vi);
        }
    }
    const auto& commands = isCategory ? CategoryCommands() : VoyageCommands();
    const auto command = commands.find(item);
    if (command == commands.end()) {
        return 1;
    }
    if (!HasCommand(item)) {
        return 1;
    }
    const int result = (this->*command->second)();
    return result < 0 ? result : 1;
}

void SeaplanTreeCtrl::Notice(TextId id) {
    context_.tree.SetEnabled(false);
    Seaplan::Notice(id, context_.tree.Handle());
    context_.tree.SetEnabled(true);
}

bool SeaplanTreeCtrl::ConfirmClear() {
    context_.tree.SetEnabled(false);
    const bool yes = Question(TextId::IDS_TREE_CLEARVOYORCATE, context_.tree.Handle());
    context_.tree.SetEnabled(true);
    return yes;
}

int SeaplanTreeCtrl::AddVoyage() {
    const std::string name =
        context_.catalog.MakeUniqueName(Text(TextId::IDS_TREE_NEWVOYAGE), context_.voyageNames);
    std::string vi;
    if (context_.catalog.AddVoyage(name, context_.CategoryOf(currentCategoryRow_)->ci, vi) != 0) {
        return -3;
    }
    context_.voyageNames[name] = InUse;
    Unfold(currentCategoryRow_);
    if (builder_.AddVoyageRow(currentCategoryRow_, vi) != 0) {
        return -4;
    }
    rename_.Begin(context_.FindVoyageRow(vi), true);
    return builder_.RefreshCounts() == 0 ? 0 : -5;
}

/// Takes the voyages of a category off the chart and unpins them, whatever their state.
void SeaplanTreeCtrl::TakeOffChart(const std::string& ci) {
    const auto voyages = context_.store.categoryVoyages.find(ci);
    if (voyages == context_.store.categoryVoyages.end()) {
        return;
    }
    for (const auto& [vi, state] : voyages->second) {
        if (context_.schedule.RemoveVoyageObjects(vi) != 0) {
            continue;
        }
        const VoyInfo* voyage = context_.store.FindVoyage(vi);
        if (voyage != nullptr && voyage->vr == 1) {
            context_.catalog.CloseRoute(vi);
        }
    }
}

int SeaplanTreeCtrl::DeleteCategory() {
    VoyCategory& category = *context_.CategoryOf(currentCategoryRow_);
    if (context_.catalog.DeleteCategory(category.ci) != 0) {
        return -6;
    }
    TakeOffChart(category.ci);
    context_.tree.DeleteItem(currentCategoryRow_);
    currentCategoryRow_ = kNoRow;
    if (context_.showDeleted) {
        builder_.AddDeletedCategoryRow(category);
    }
    context_.categoryNames[category.cn] = InRecycleBin;
    return 0;
}

int SeaplanTreeCtrl::RecoverCategory() {
    const VoyCategory category = *context_.CategoryOf(currentCategoryRow_);
    if (context_.catalog.RecoverCategory(category.ci) != 0) {
        return -7;
    }
    context_.categoryNames[category.cn] = InUse;
    return ReloadTree() == 0 ? 0 : -8;
}

int SeaplanTreeCtrl::ClearCategory() {
    if (!ConfirmClear()) {
        return 0;
    }
    const VoyCategory category = *context_.CategoryOf(currentCategoryRow_);
    if (context_.catalog.DestroyCategory(category.ci) != 0) {
        return -9;
    }
    context_.categoryNames[category.cn] = Destroyed;
    context_.tree.DeleteItem(currentCategoryRow_);
    currentCategoryRow_ = kNoRow;
    return 0;
}

int SeaplanTreeCtrl::OpenSortPanel() {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const auto sort = context_.categorySorts.find(ci);
    if (sort == context_.categorySorts.end()) {
        return -13;
    }
    context_.tree.ShowSortPanel(ci, sort->second.sortKey);
    return 0;
}

int SeaplanTreeCtrl::SetDirection(int direction) {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const auto sort = context_.categorySorts.find(ci);
    if (sort == context_.categorySorts.end()) {
        return -14;
    }
    sort->second.direction = direction;
    return builder_.RebuildCategory(ci) == 0 ? 0 : -15;
}

int SeaplanTreeCtrl::RenameCategory() {
    rename_.Begin(currentCategoryRow_, false);
    return 0;
}

int SeaplanTreeCtrl::RenameVoyage() {
    rename_.Begin(currentVoyageRow_, true);
    return 0;
}

int SeaplanTreeCtrl::PinRoute() {
    if (chart_.SetPinned(context_.VoyageOf(currentVoyageRow_)->vi, true) == 0) {
        return 0;
    }
    Notice(TextId::IDS_TREE_AUTOTRACKWARN);
    return -23;
}

int SeaplanTreeCtrl::UnpinRoute() {
    return chart_.SetPinned(context_.VoyageOf(currentVoyageRow_)->vi, false) == 0 ? 0 : -24;
}

int SeaplanTreeCtrl::ShowAis() {
    return chart_.SetAisShown(context_.VoyageOf(currentVoyageRow_)->vi, true) == 0 ? 0 : -33;
}

int SeaplanTreeCtrl::HideAis() {
    return chart_.SetAisShown(context_.VoyageOf(currentVoyageRow_)->vi, false) == 0 ? 0 : -38;
}

int SeaplanTreeCtrl::OpenPortCalls() {
    if (portCalls_ == nullptr || portCalls_->FillForVoyage(-1) < 0) {
        return -25;
    }
    portCalls_->ShowBesideTree();
    return 0;
}

int SeaplanTreeCtrl::OpenEmptyPortCalls() {
    if (portCalls_ == nullptr) {
        return -26;
    }
    portCalls_->Reset();
    portCalls_->ShowBesideTree();
    return 0;
}

int SeaplanTreeCtrl::NoonReport() {
    Notice(TextId::IDS_TREE_NOONREPORTWARN);
    return 0;
}

int SeaplanTreeCtrl::DropVoyageRow() {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    context_.tree.DeleteItem(currentVoyageRow_);
    currentVoyageRow_ = kNoRow;
    if (builder_.RebuildCategory(ci) != 0) {
        return -27;
    }
    return builder_.RefreshCounts() == 0 ? 0 : -28;
}

int SeaplanTreeCtrl::DeleteVoyage() {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const VoyInfo& voyage = *context_.VoyageOf(currentVoyageRow_);
    if (context_.catalog.DeleteVoyage(ci, voyage.vi) != 0) {
        return -29;
    }
    if (context_.schedule.RemoveVoyageObjects(voyage.vi) != 0) {
        return -30;
    }
    if (context_.catalog.CloseRoute(voyage.vi) != 0) {
        return -31;
    }
    if (chart_.SetAisShown(voyage.vi, false) != 0) {
        return -32;
    }
    const int dropped = DropVoyageRow();
    if (dropped == 0) {
        context_.voyageNames[voyage.vn] = InRecycleBin;
    }
    return dropped;
}

int SeaplanTreeCtrl::RecoverVoyage() {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const VoyInfo& voyage = *context_.VoyageOf(currentVoyageRow_);
    if (context_.catalog.RecoverVoyage(ci, voyage.vi) != 0) {
        return -34;
    }
    context_.voyageNames[voyage.vn] = InUse;
    return DropVoyageRow();
}

int SeaplanTreeCtrl::ClearVoyage() {
    if (!ConfirmClear()) {
        return 0;
    }
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const VoyInfo& voyage = *context_.VoyageOf(currentVoyageRow_);
    if (context_.catalog.DestroyVoyage(ci, voyage.vi) != 0) {
        return -35;
    }
    context_.voyageNames[voyage.vn] = Destroyed;
    return DropVoyageRow();
}

}  // namespace Tarvik::Seaplan

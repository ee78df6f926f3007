// SPDX-License-Identifier: MIT
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/language/Messages.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kModify = "Voyage_modify";

}  // namespace

const std::map<std::string, SeaplanTreeCtrl::Command>& SeaplanTreeCtrl::categoryCommands() {
    static const std::map<std::string, Command> commands = {
        {"Voyage.parent.svr3", &SeaplanTreeCtrl::addVoyage},
        {"Voyage.parent.svr7", &SeaplanTreeCtrl::deleteCategory},
        {"Voyage.parent.svr.recover", &SeaplanTreeCtrl::recoverCategory},
        {"Voyage.parent.svr.clear", &SeaplanTreeCtrl::clearCategory},
        {"Voyage.parent.svr9", &SeaplanTreeCtrl::openSortPanel},
        {"Voyage.parent.svr6", &SeaplanTreeCtrl::sortDescending},
        {"Voyage.parent.svr6.desc", &SeaplanTreeCtrl::sortAscending},
        {"Voyage_parent_rename", &SeaplanTreeCtrl::renameCategory}};
    return commands;
}

const std::map<std::string, SeaplanTreeCtrl::Command>& SeaplanTreeCtrl::voyageCommands() {
    static const std::map<std::string, Command> commands = {
        {"Voyage.child.svr1.default", &SeaplanTreeCtrl::pinRoute},
        {"Voyage.child.svr1.auto", &SeaplanTreeCtrl::unpinRoute},
        {"Voyage.child.svr8", &SeaplanTreeCtrl::showAis},
        {"Voyage.child.svr10", &SeaplanTreeCtrl::hideAis},
        {kModify, &SeaplanTreeCtrl::modifyFromAis},
        {"Voyage.child.svr4", &SeaplanTreeCtrl::openPortCalls},
        {"Voyage_setPortCall", &SeaplanTreeCtrl::openEmptyPortCalls},
        {"Voyage.child.svr6", &SeaplanTreeCtrl::noonReport},
        {"Voyage_child_rename", &SeaplanTreeCtrl::renameVoyage},
        {"Voyage.child.svr9", &SeaplanTreeCtrl::deleteVoyage},
        {"Voyage.child.svr.recover", &SeaplanTreeCtrl::recoverVoyage},
        {"Voyage.child.svr.clear", &SeaplanTreeCtrl::clearVoyage},
        {"Voyage_AssignShip", &SeaplanTreeCtrl::assignVessel},
        {"Voyage_ReplaceShip", &SeaplanTreeCtrl::replaceVessel},
        {"Voyage_ShipInfo", &SeaplanTreeCtrl::showVesselInfo},
        {"Voyage_Alert", &SeaplanTreeCtrl::addVesselToFleet}};
    return commands;
}

bool SeaplanTreeCtrl::HasCommand(const std::string& item) const {
    if (item == kModify && ais_ == nullptr) return false;
    return categoryCommands().contains(item) || voyageCommands().contains(item);
}

int SeaplanTreeCtrl::OnItemClicked(TreeRow row, const std::string& item) {
    context_.tree.SelectItem(row);
    const bool isCategory = context_.IsCategoryRow(row);
    currentCategoryRow_ = isCategory ? row : context_.tree.GetParentItem(row);
    const VoyCategory* category = context_.CategoryOf(currentCategoryRow_);
    if (category == nullptr) return isCategory ? -1 : -19;
    if (category->ci.empty()) return isCategory ? -2 : -20;
    if (!isCategory) {
        currentVoyageRow_ = row;
        const VoyInfo* voyage = context_.VoyageOf(row);
        if (voyage == nullptr) return -21;
        if (voyage->vi.empty()) return -22;
        if (portCalls_ != nullptr) portCalls_->SetVoyage(voyage->vi);
    }
    const auto& commands = isCategory ? categoryCommands() : voyageCommands();
    const auto command = commands.find(item);
    if (command == commands.end()) return 1;
    if (!HasCommand(item)) return 1;
    const int result = (this->*command->second)();
    return result < 0 ? result : 1;
}

void SeaplanTreeCtrl::notice(TextId id) {
    context_.tree.SetEnabled(false);
    Notice(id, context_.tree.Handle());
    context_.tree.SetEnabled(true);
}

bool SeaplanTreeCtrl::confirmClear() {
    context_.tree.SetEnabled(false);
    const bool yes = Question(TextId::IDS_TREE_CLEARVOYORCATE, context_.tree.Handle());
    context_.tree.SetEnabled(true);
    return yes;
}

int SeaplanTreeCtrl::addVoyage() {
    const std::string name =
        context_.catalog.MakeUniqueName(Text(TextId::IDS_TREE_NEWVOYAGE), context_.voyageNames);
    std::string vi;
    if (context_.catalog.AddVoyage(name, context_.CategoryOf(currentCategoryRow_)->ci, vi) != 0) return -3;
    context_.voyageNames[name] = InUse;
    unfold(currentCategoryRow_);
    if (builder_.AddVoyageRow(currentCategoryRow_, vi) != 0) return -4;
    rename_.Begin(context_.FindVoyageRow(vi), true);
    return builder_.RefreshCounts() == 0 ? 0 : -5;
}

/// Takes the voyages of a category off the chart and unpins them, whatever their state.
void SeaplanTreeCtrl::takeOffChart(const std::string& ci) {
    const auto voyages = context_.store.categoryVoyages.find(ci);
    if (voyages == context_.store.categoryVoyages.end()) return;
    for (const auto& [vi, state] : voyages->second) {
        if (context_.schedule.RemoveVoyageObjects(vi) != 0) continue;
        const VoyInfo* voyage = context_.store.FindVoyage(vi);
        if (voyage != nullptr && voyage->vr == 1) context_.catalog.CloseRoute(vi);
    }
}

int SeaplanTreeCtrl::deleteCategory() {
    VoyCategory& category = *context_.CategoryOf(currentCategoryRow_);
    if (context_.catalog.DeleteCategory(category.ci) != 0) return -6;
    takeOffChart(category.ci);
    context_.tree.DeleteItem(currentCategoryRow_);
    currentCategoryRow_ = kNoRow;
    if (context_.showDeleted) builder_.AddDeletedCategoryRow(category);
    context_.categoryNames[category.cn] = InRecycleBin;
    return 0;
}

int SeaplanTreeCtrl::recoverCategory() {
    const VoyCategory category = *context_.CategoryOf(currentCategoryRow_);
    if (context_.catalog.RecoverCategory(category.ci) != 0) return -7;
    context_.categoryNames[category.cn] = InUse;
    return ReloadTree() == 0 ? 0 : -8;
}

int SeaplanTreeCtrl::clearCategory() {
    if (!confirmClear()) return 0;
    const VoyCategory category = *context_.CategoryOf(currentCategoryRow_);
    if (context_.catalog.DestroyCategory(category.ci) != 0) return -9;
    context_.categoryNames[category.cn] = Destroyed;
    context_.tree.DeleteItem(currentCategoryRow_);
    currentCategoryRow_ = kNoRow;
    return 0;
}

int SeaplanTreeCtrl::openSortPanel() {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const auto sort = context_.categorySorts.find(ci);
    if (sort == context_.categorySorts.end()) return -13;
    context_.tree.ShowSortPanel(ci, sort->second.sortKey);
    return 0;
}

int SeaplanTreeCtrl::setDirection(int direction) {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const auto sort = context_.categorySorts.find(ci);
    if (sort == context_.categorySorts.end()) return -14;
    sort->second.direction = direction;
    return builder_.RebuildCategory(ci) == 0 ? 0 : -15;
}

int SeaplanTreeCtrl::renameCategory() {
    rename_.Begin(currentCategoryRow_, false);
    return 0;
}

int SeaplanTreeCtrl::renameVoyage() {
    rename_.Begin(currentVoyageRow_, true);
    return 0;
}

int SeaplanTreeCtrl::pinRoute() {
    if (chart_.SetPinned(context_.VoyageOf(currentVoyageRow_)->vi, true) == 0) return 0;
    notice(TextId::IDS_TREE_AUTOTRACKWARN);
    return -23;
}

int SeaplanTreeCtrl::unpinRoute() {
    return chart_.SetPinned(context_.VoyageOf(currentVoyageRow_)->vi, false) == 0 ? 0 : -24;
}

int SeaplanTreeCtrl::showAis() {
    return chart_.SetAisShown(context_.VoyageOf(currentVoyageRow_)->vi, true) == 0 ? 0 : -33;
}

int SeaplanTreeCtrl::hideAis() {
    return chart_.SetAisShown(context_.VoyageOf(currentVoyageRow_)->vi, false) == 0 ? 0 : -38;
}

int SeaplanTreeCtrl::openPortCalls() {
    if (portCalls_ == nullptr || portCalls_->FillForVoyage(-1) < 0) return -25;
    portCalls_->ShowBesideTree();
    return 0;
}

int SeaplanTreeCtrl::openEmptyPortCalls() {
    if (portCalls_ == nullptr) return -26;
    portCalls_->Reset();
    portCalls_->ShowBesideTree();
    return 0;
}

int SeaplanTreeCtrl::noonReport() {
    notice(TextId::IDS_TREE_NOONREPORTWARN);
    return 0;
}

int SeaplanTreeCtrl::dropVoyageRow() {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    context_.tree.DeleteItem(currentVoyageRow_);
    currentVoyageRow_ = kNoRow;
    if (builder_.RebuildCategory(ci) != 0) return -27;
    return builder_.RefreshCounts() == 0 ? 0 : -28;
}

int SeaplanTreeCtrl::deleteVoyage() {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const VoyInfo& voyage = *context_.VoyageOf(currentVoyageRow_);
    if (context_.catalog.DeleteVoyage(ci, voyage.vi) != 0) return -29;
    if (context_.schedule.RemoveVoyageObjects(voyage.vi) != 0) return -30;
    if (context_.catalog.CloseRoute(voyage.vi) != 0) return -31;
    if (chart_.SetAisShown(voyage.vi, false) != 0) return -32;
    const int dropped = dropVoyageRow();
    if (dropped == 0) context_.voyageNames[voyage.vn] = InRecycleBin;
    return dropped;
}

int SeaplanTreeCtrl::recoverVoyage() {
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const VoyInfo& voyage = *context_.VoyageOf(currentVoyageRow_);
    if (context_.catalog.RecoverVoyage(ci, voyage.vi) != 0) return -34;
    context_.voyageNames[voyage.vn] = InUse;
    return dropVoyageRow();
}

int SeaplanTreeCtrl::clearVoyage() {
    if (!confirmClear()) return 0;
    const std::string ci = context_.CategoryOf(currentCategoryRow_)->ci;
    const VoyInfo& voyage = *context_.VoyageOf(currentVoyageRow_);
    if (context_.catalog.DestroyVoyage(ci, voyage.vi) != 0) return -35;
    context_.voyageNames[voyage.vn] = Destroyed;
    return dropVoyageRow();
}

}  // namespace Tarvik::Seaplan

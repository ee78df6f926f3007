// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/CategoryCommands.h"

#include <algorithm>
#include <string>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TreeParts.h"
#include "seaplan/panels/tree/VoyageTreeSortDlg.h"

namespace Tarvik::Seaplan {

TreeCommands CategoryCommands::Table() {
    return {{Item::kAddVoyage, [this] { return AddVoyage(); }},
            {Item::kDeleteCategory, [this] { return Delete(); }},
            {Item::kRecoverCategory, [this] { return Recover(); }},
            {Item::kClearCategory, [this] { return Clear(); }},
            {Item::kSort, [this] { return OpenSortPanel(); }},
            {Item::kAscending, [this] { return SetDirection(Descending); }},
            {Item::kDescending, [this] { return SetDirection(Ascending); }},
            {Item::kRenameCategory, [this] { return Rename(); }}};
}

std::string CategoryCommands::NewName() const {
    std::string name;
    p_.context.catalog.MakeUniqueName(Text(TextIds::IDS_TREE_NEWVOYCATEGORY), p_.context.categoryNames, name);
    return name;
}

bool CategoryCommands::Ensure() {
    for (const auto& [ci, state] : p_.context.store.categoryStates) {
        if (state == InUse) {
            return true;
        }
    }
    return Add(NewName());
}

bool CategoryCommands::Add(const std::string& name) {
    TreeContext& c = p_.context;
    std::string ci;
    if (c.catalog.AddCategory(name, ci) != 0) {
        return false;
    }
    const auto category = c.store.categories.find(ci);
    if (category == c.store.categories.end()) {
        return false;
    }
    c.categorySorts[ci] = {};
    c.categoryNames[name] = InUse;
    p_.rename.Begin(p_.builder.AddCategoryRow(category->second), false);
    return true;
}

ItemOutcome CategoryCommands::AddVoyage() {
    TreeContext& c = p_.context;
    std::string name;
    c.catalog.MakeUniqueName(Text(TextIds::IDS_TREE_NEWVOYAGE), c.voyageNames, name);
    std::string vi;
    if (c.catalog.AddVoyage(name, p_.selection.Category().ci, vi) != 0) {
        return ItemStep::NewVoyage;
    }
    c.voyageNames[name] = InUse;
    p_.selection.Unfold(p_.selection.CategoryRow());
    // What an empty category says to do first has just been done.
    c.Say({});
    if (p_.builder.AddVoyageRow(p_.selection.CategoryRow(), vi).Failed()) {
        return ItemStep::NewRow;
    }
    p_.rename.Begin(c.FindVoyageRow(vi), true);
    return RefreshCounts(c) ? ItemOutcome() : ItemStep::NewCounts;
}

/// Voyages of a category whose routes are kept on the chart, whatever their state.
std::set<std::string> CategoryCommands::OnChartOf(const std::string& ci) const {
    std::set<std::string> kept;
    const auto voyages = p_.context.store.categoryVoyages.find(ci);
    if (voyages != p_.context.store.categoryVoyages.end()) {
        for (const auto& [vi, state] : voyages->second) {
            const VoyInfo* voyage = p_.context.store.FindVoyage(vi);
            if (voyage != nullptr && voyage->vr == 1) {
                kept.insert(vi);
            }
        }
    }
    return kept;
}

/// Takes the voyages of a category off the chart and unpins them, whatever their state.
void CategoryCommands::TakeOffChart(const std::string& ci) {
    TreeContext& c = p_.context;
    const auto voyages = c.store.categoryVoyages.find(ci);
    if (voyages == c.store.categoryVoyages.end()) {
        return;
    }
    for (const auto& [vi, state] : voyages->second) {
        if (c.voyages.RemoveVoyageObjects(vi) != 0) {
            continue;
        }
        const VoyInfo* voyage = c.store.FindVoyage(vi);
        if (voyage != nullptr && voyage->vr == 1) {
            c.catalog.CloseRoute(vi);
        }
    }
}

ItemOutcome CategoryCommands::Delete() {
    TreeContext& c = p_.context;
    VoyCategory& category = p_.selection.Category();
    if (c.catalog.DeleteCategory(category.ci) != 0) {
        return ItemStep::DeleteCategory;
    }
    TreeStep step{TreeStep::Kind::Delete, false, category.ci, {}, category.cn, OnChartOf(category.ci)};
    c.steps.Note(std::move(step));
    TakeOffChart(category.ci);
    p_.selection.DropCategoryRow();
    if (c.showDeleted) {
        p_.builder.AddDeletedCategoryRow(category);
    }
    c.categoryNames[category.cn] = InRecycleBin;
    c.Say(Text(TextIds::IDS_VIEW_CANUNDELETE, {category.cn}));
    return {};
}

ItemOutcome CategoryCommands::Recover() {
    TreeContext& c = p_.context;
    const VoyCategory category = p_.selection.Category();
    if (c.catalog.RecoverCategory(category.ci) != 0) {
        return ItemStep::RecoverCategory;
    }
    c.categoryNames[category.cn] = InUse;
    c.steps.Note({TreeStep::Kind::Recover, false, category.ci, {}, category.cn});
    return reload_() == 0 ? ItemOutcome() : ItemStep::Reload;
}

ItemOutcome CategoryCommands::Clear() {
    TreeContext& c = p_.context;
    const VoyCategory category = p_.selection.Category();
    const auto voyages = c.store.categoryVoyages.find(category.ci);
    const auto isThere = [](const auto& voyage) { return voyage.second != Destroyed; };
    const auto count = voyages == c.store.categoryVoyages.end()
                           ? 0
                           : std::count_if(voyages->second.begin(), voyages->second.end(), isThere);
    if (!c.boxes.Question(TextIds::IDS_TREE_CLEARVOYORCATE,
                          Text(TextIds::IDS_VIEW_LOSTCATEGORY, {category.cn, std::to_string(count)}))) {
        return {};
    }
    if (c.catalog.DestroyCategory(category.ci) != 0) {
        return ItemStep::DestroyCategory;
    }
    c.categoryNames[category.cn] = Destroyed;
    c.steps.Forget(category.ci, false);
    p_.selection.DropCategoryRow();
    return {};
}

ItemOutcome CategoryCommands::OpenSortPanel() {
    const std::string ci = p_.selection.Category().ci;
    const auto sort = p_.context.categorySorts.find(ci);
    if (sort == p_.context.categorySorts.end()) {
        return ItemStep::SortPanel;
    }
    sortPanel_.Open(ci, sort->second.sortKey);
    return {};
}

ItemOutcome CategoryCommands::SetDirection(int direction) {
    const std::string ci = p_.selection.Category().ci;
    const auto sort = p_.context.categorySorts.find(ci);
    if (sort == p_.context.categorySorts.end()) {
        return ItemStep::Direction;
    }
    sort->second.direction = direction;
    return p_.builder.RebuildCategory(ci).Failed() ? ItemStep::DirectionRows : ItemOutcome();
}

ItemOutcome CategoryCommands::Rename() {
    p_.rename.Begin(p_.selection.CategoryRow(), false);
    return {};
}

}  // namespace Tarvik::Seaplan

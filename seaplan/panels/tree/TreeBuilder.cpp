// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeBuilder.h"

#include "seaplan/calculation/Units.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/TimeText.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRules.h"
#include "seaplan/panels/tree/TreeStatus.h"

namespace Tarvik::Seaplan {

Outcome<RowsStep> TreeBuilder::RebuildAll() {
    ReadTexts();
    const Outcome<RowsStep> result = MakeAll();
    TellMade();
    return result;
}

void TreeBuilder::TellMade() const {
    if (c_.rowsMade) {
        c_.rowsMade();
    }
}

Outcome<RowsStep> TreeBuilder::MakeAll() {
    c_.tree.DeleteAllItems();
    std::vector<VoyCategory*> deleted;
    for (const auto& [ci, voyages] : c_.store.categoryVoyages) {
        const auto category = c_.store.categories.find(ci);
        const auto state = c_.store.categoryStates.find(ci);
        if (category == c_.store.categories.end() || state == c_.store.categoryStates.end()) {
            return RowsStep::Category;
        }
        if (state->second == InRecycleBin) {
            deleted.push_back(&category->second);
        }
        if (state->second != InUse) {
            continue;
        }
        const TreeRow row = MakeCategoryRow(category->second);
        if (category->second.crk > 0) {
            c_.tree.SetDrawItemVisibleEx(row, Item::kCategoryNoRemark, false);
            c_.tree.SetDrawItemVisibleEx(row, Item::kCategoryRemark, true);
        }
        if (const auto made = AddVoyages(row, ci, DateSource::PositionBook); made.Failed()) {
            return made;
        }
    }
    return AddEmptyCategories(deleted);
}

Outcome<RowsStep> TreeBuilder::AddEmptyCategories(const std::vector<VoyCategory*>& deleted) {
    std::vector<VoyCategory*> emptyDeleted;
    for (auto& [ci, category] : c_.store.categories) {
        if (c_.store.categoryVoyages.contains(ci)) {
            continue;
        }
        const auto state = c_.store.categoryStates.find(ci);
        if (state == c_.store.categoryStates.end()) {
            return RowsStep::Category;
        }
        if (state->second == InUse) {
            MakeCategoryRow(category);
        }
        if (state->second == InRecycleBin) {
            emptyDeleted.push_back(&category);
        }
    }
    if (!c_.showDeleted) {
        return {};
    }
    emptyDeleted.insert(emptyDeleted.end(), deleted.begin(), deleted.end());
    for (VoyCategory* category : emptyDeleted) {
        MakeRow(category->cn, kDeletedCategoryStyle, kNoRow, category);
    }
    return {};
}

Outcome<RowsStep> TreeBuilder::RebuildCategory(const std::string& ci) {
    const TreeRow row = ci.empty() ? kNoRow : c_.FindCategoryRow(ci);
    if (row == kNoRow) {
        return RowsStep::Row;
    }
    c_.tree.DeleteChildItems(row);
    ReadTexts();
    const Outcome<RowsStep> result = AddVoyages(row, ci, DateSource::PortCalls);
    if (!result.Failed()) {
        status_.ShowAll(row, ci);
    }
    TellMade();
    return result;
}

Outcome<RowsStep> TreeBuilder::SortVoyages(const std::string& ci, DateSource source,
                                           std::vector<std::string>& inUse,
                                           std::vector<std::string>& deleted) const {
    const auto sort = c_.categorySorts.find(ci);
    const auto voyages = c_.store.categoryVoyages.find(ci);
    if (voyages == c_.store.categoryVoyages.end()) {
        return RowsStep::Voyages;
    }
    std::vector<VoyageKeys> keys;
    int undated = 0;
    for (const auto& [vi, state] : voyages->second) {
        if (state == Destroyed) {
            continue;
        }
        if (state == InRecycleBin) {
            deleted.push_back(vi);
            continue;
        }
        const VoyInfo* voyage = c_.store.FindVoyage(vi);
        if (voyage == nullptr) {
            return RowsStep::Voyage;
        }
        std::string date;
        if (source == DateSource::PositionBook && !voyage->positionBook.points.empty()) {
            date = voyage->positionBook.eta.fmt(kTimeFormat);
        } else if (source == DateSource::PortCalls && !voyage->portCalls.empty()) {
            date = voyage->portCalls.front().etd.fmt(kTimeFormat);
        } else {
            date = "0" + std::to_string(++undated);
        }
        keys.push_back({vi, voyage->vn, date});
    }
    if (sort == c_.categorySorts.end()) {
        return RowsStep::SortState;
    }
    return OrderVoyages(keys, sort->second, inUse) ? Outcome<RowsStep>() : RowsStep::SortKey;
}

Outcome<RowsStep> TreeBuilder::AddVoyages(TreeRow row, const std::string& ci, DateSource source) {
    std::vector<std::string> inUse;
    std::vector<std::string> deleted;
    if (const auto sorted = SortVoyages(ci, source, inUse, deleted); sorted.Failed()) {
        return sorted;
    }
    const int direction = c_.categorySorts.at(ci).direction;
    c_.tree.SetDrawItemVisibleEx(row, Item::kAscending, direction == Ascending);
    c_.tree.SetDrawItemVisibleEx(row, Item::kDescending, direction == Descending);
    for (const std::string& vi : inUse) {
        if (const auto added = MakeVoyageRow(row, vi); added.Failed()) {
            return added;
        }
    }
    return c_.showDeleted ? AddDeletedVoyages(row, deleted) : Outcome<RowsStep>();
}

Outcome<RowsStep> TreeBuilder::AddDeletedVoyages(TreeRow row, const std::vector<std::string>& deleted) {
    for (const std::string& vi : deleted) {
        VoyInfo* voyage = c_.store.FindVoyage(vi);
        if (voyage == nullptr) {
            return RowsStep::Voyage;
        }
        MakeRow(voyage->vn, kDeletedVoyageStyle, row, voyage);
    }
    return {};
}

void TreeBuilder::ReadTexts() const {
    RowTexts().ApplyToStyles(c_.tree);
}

TreeRow TreeBuilder::MakeRow(const std::string& text, const char* style, TreeRow parent, void* record) {
    const TreeRow row = c_.tree.InsertItem(text, style, parent);
    c_.tree.SetItemData(row, record);
    return row;
}

TreeRow TreeBuilder::MakeCategoryRow(VoyCategory& category) {
    const TreeRow row = MakeRow(category.cn, kCategoryStyle, kNoRow, &category);
    c_.tree.SetDrawItemValue(row, Item::kCount, CountText(0));
    return row;
}

TreeRow TreeBuilder::AddCategoryRow(VoyCategory& category) {
    ReadTexts();
    return MakeCategoryRow(category);
}

TreeRow TreeBuilder::AddDeletedCategoryRow(VoyCategory& category) {
    ReadTexts();
    return MakeRow(category.cn, kDeletedCategoryStyle, kNoRow, &category);
}

Outcome<RowsStep> TreeBuilder::AddVoyageRow(TreeRow categoryRow, const std::string& vi) {
    ReadTexts();
    return MakeVoyageRow(categoryRow, vi);
}

Outcome<RowsStep> TreeBuilder::MakeVoyageRow(TreeRow categoryRow, const std::string& vi) {
    VoyInfo* voyage = c_.store.FindVoyage(vi);
    if (voyage == nullptr) {
        return RowsStep::Voyage;
    }
    const TreeRow row = MakeRow(voyage->vn, kVoyageStyle, categoryRow, voyage);
    ShowFlags(row, *voyage);
    if (!voyage->vsn.empty()) {
        status_.ShowVessel(row, voyage->vsn, voyage->vsi.empty());
    }
    return {};
}

void TreeBuilder::ShowFlags(TreeRow row, const VoyInfo& voyage) {
    c_.tree.SetDrawItemVisibleEx(row, Item::kVoyageNoRemark, voyage.vrk < 1);
    c_.tree.SetDrawItemVisibleEx(row, Item::kVoyageRemark, voyage.vrk >= 1);
    c_.tree.SetDrawItemVisibleEx(row, Item::kUnpinned, voyage.vr != 1);
    c_.tree.SetDrawItemVisibleEx(row, Item::kPinned, voyage.vr == 1);
    c_.tree.SetDrawItemVisibleEx(row, Item::kAisOff, voyage.va != 1);
    c_.tree.SetDrawItemVisibleEx(row, Item::kAisOn, voyage.va == 1);
    c_.tree.SetDrawItemVisibleEx(row, Item::kReplaceShip, !voyage.vsn.empty());
}

}  // namespace Tarvik::Seaplan

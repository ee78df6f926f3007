// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeBuilder.h"

#include <map>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/NumberForms.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/tree/VoyageOrder.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kDateFormat = "%Y-%m-%d";

std::string CountText(int count) {
    return Util::StringUtl::Format("  (%d)", count);
}

}  // namespace

int TreeBuilder::RebuildAll() {
    c_.tree.DeleteAllItems();
    std::vector<VoyCategory*> deleted;
    for (const auto& [ci, voyages] : c_.store.categoryVoyages) {
        const auto category = c_.store.categories.find(ci);
        const auto state = c_.store.categoryStates.find(ci);
        if (category == c_.store.categories.end() || state == c_.store.categoryStates.end()) {
            return -1;
        }
        if (state->second == InRecycleBin) {
            deleted.push_back(&category->second);
        }
        if (state->second != InUse) {
            continue;
        }
        const TreeRow row = AddCategoryRow(category->second);
        if (category->second.crk > 0) {
            c_.tree.SetDrawItemVisibleEx(row, "Voyage.parent.svr2.non", false);
            c_.tree.SetDrawItemVisibleEx(row, "Voyage.parent.svr2.exist", true);
        }
        if (AddVoyages(row, ci, DateSource::PositionBook) != 0) {
            return -2;
        }
    }
    return AddEmptyCategories(deleted);
}

int TreeBuilder::AddEmptyCategories(const std::vector<VoyCategory*>& deleted) {
    std::vector<VoyCategory*> emptyDeleted;
    for (auto& [ci, category] : c_.store.categories) {
        if (c_.store.categoryVoyages.contains(ci)) {
            continue;
        }
        const auto state = c_.store.categoryStates.find(ci);
        if (state == c_.store.categoryStates.end()) {
            return -3;
        }
        if (state->second == InUse) {
            AddCategoryRow(category);
        }
        if (state->second == InRecycleBin) {
            emptyDeleted.push_back(&category);
        }
    }
    if (!c_.showDeleted) {
        return 0;
    }
    for (VoyCategory* category : emptyDeleted) {
        AddDeletedCategoryRow(*category);
    }
    for (VoyCategory* category : deleted) {
        AddDeletedCategoryRow(*category);
    }
    return 0;
}

int TreeBuilder::RebuildCategory(const std::string& ci) {
    const TreeRow row = ci.empty() ? kNoRow : c_.FindCategoryRow(ci);
    if (row == kNoRow) {
        return -1;
    }
    c_.tree.DeleteChildItems(row);
    if (const int result = AddVoyages(row, ci, DateSource::PortCalls); result != 0) {
        return result;
    }
    ShowStatuses(row, ci);
    return 0;
}

int TreeBuilder::SortVoyages(const std::string& ci, DateSource source, std::vector<std::string>& inUse,
                             std::vector<std::string>& deleted) const {
    const auto sort = c_.categorySorts.find(ci);
    const auto voyages = c_.store.categoryVoyages.find(ci);
    if (voyages == c_.store.categoryVoyages.end()) {
        return -2;
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
            return -3;
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
        return -4;
    }
    return OrderVoyages(keys, sort->second, inUse);
}

int TreeBuilder::AddVoyages(TreeRow row, const std::string& ci, DateSource source) {
    std::vector<std::string> inUse;
    std::vector<std::string> deleted;
    if (const int result = SortVoyages(ci, source, inUse, deleted); result != 0) {
        return result;
    }
    const auto sort = c_.categorySorts.find(ci);
    if (sort == c_.categorySorts.end()) {
        return -6;
    }
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.parent.svr6", sort->second.direction == Ascending);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.parent.svr6.desc", sort->second.direction == Descending);
    for (const std::string& vi : inUse) {
        if (AddVoyageRow(row, vi) != 0) {
            return -3;
        }
    }
    return c_.showDeleted ? AddDeletedVoyages(row, deleted) : 0;
}

int TreeBuilder::AddDeletedVoyages(TreeRow row, const std::vector<std::string>& deleted) {
    for (const std::string& vi : deleted) {
        VoyInfo* voyage = c_.store.FindVoyage(vi);
        if (voyage == nullptr) {
            return -3;
        }
        const TreeRow child = c_.tree.InsertItem(voyage->vn, kDeletedVoyageStyle, row);
        c_.tree.SetItemData(child, voyage);
        ApplyTexts(child);
    }
    return 0;
}

TreeRow TreeBuilder::AddCategoryRow(VoyCategory& category) {
    const TreeRow row = c_.tree.InsertItem(category.cn, kCategoryStyle, kNoRow);
    c_.tree.SetItemData(row, &category);
    c_.tree.SetDrawItemValue(row, "cat.statistic", CountText(0));
    ApplyTexts(row);
    return row;
}

TreeRow TreeBuilder::AddDeletedCategoryRow(VoyCategory& category) {
    const TreeRow row = c_.tree.InsertItem(category.cn, kDeletedCategoryStyle, kNoRow);
    c_.tree.SetItemData(row, &category);
    ApplyTexts(row);
    return row;
}

int TreeBuilder::AddVoyageRow(TreeRow categoryRow, const std::string& vi) {
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = c_.store.FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    const TreeRow row = c_.tree.InsertItem(voyage->vn, kVoyageStyle, categoryRow);
    c_.tree.SetItemData(row, voyage);
    ApplyTexts(row);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.child.svr3.non", voyage->vrk < 1);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.child.svr3.exist", voyage->vrk >= 1);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.child.svr1.default", voyage->vr != 1);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.child.svr1.auto", voyage->vr == 1);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.child.svr8", voyage->va != 1);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.child.svr10", voyage->va == 1);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage_ReplaceShip", !voyage->vsn.empty());
    if (!voyage->vsn.empty()) {
        ShowVessel(row, voyage->vsn, voyage->vsi.empty());
    }
    return 0;
}

void TreeBuilder::ShowVessel(TreeRow row, const std::string& name, bool alert) {
    c_.tree.SetDrawItemVisibleEx(row, "Voyage_AssignShip", false);
    c_.tree.SetDrawItemValueOfEventItem(row, "Voyage_ShipInfo", "ShipName", name);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage_ShipInfo", true);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage_Alert", alert);
}

void TreeBuilder::MarkVoyage(const VoyInfo& voyage) {
    if (voyage.vr != 1) {
        c_.chartMarks[voyage.vi] = {0, OffChart};
    } else if (c_.schedule.ShowVoyage(voyage.vi) == 0) {
        c_.chartMarks[voyage.vi] = {1, OnChart};
    }
}

int TreeBuilder::CountAndMark() {
    const bool first = c_.chartMarks.empty();
    for (TreeRow row = c_.tree.GetRootItem(); row != kNoRow; row = c_.tree.GetNextSiblingItem(row)) {
        if (c_.tree.GetItemStyle(row) != kCategoryStyle) {
            continue;
        }
        int count = 0;
        for (TreeRow child = c_.tree.GetChildItem(row); child != kNoRow;
             child = c_.tree.GetNextSiblingItem(child)) {
            if (c_.tree.GetItemStyle(child) != kVoyageStyle) {
                continue;
            }
            const VoyInfo* voyage = c_.VoyageOf(child);
            if (voyage == nullptr || voyage->vi.empty()) {
                return -1;
            }
            if (first) {
                MarkVoyage(*voyage);
            }
            // A pinned voyage that could not be drawn stays uncounted until the next RefreshCounts.
            if (!first || c_.chartMarks.contains(voyage->vi)) {
                ++count;
            }
        }
        c_.tree.SetDrawItemValue(row, "cat.statistic", CountText(count));
    }
    return 0;
}

int TreeBuilder::RefreshCounts() {
    for (TreeRow row = c_.tree.GetRootItem(); row != kNoRow; row = c_.tree.GetNextSiblingItem(row)) {
        if (c_.tree.GetItemStyle(row) != kCategoryStyle) {
            continue;
        }
        const VoyCategory* category = c_.CategoryOf(row);
        if (category == nullptr) {
            return -1;
        }
        const auto voyages = c_.store.categoryVoyages.find(category->ci);
        if (voyages == c_.store.categoryVoyages.end()) {
            continue;
        }
        int count = 0;
        for (const auto& [vi, state] : voyages->second) {
            count += state == InUse ? 1 : 0;
        }
        c_.tree.SetDrawItemValue(row, "cat.statistic", CountText(count));
    }
    return 0;
}

int TreeBuilder::ComputeStatus(const std::string& vi) {
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = c_.store.FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    if (voyage->portCalls.empty()) {
        // A voyage without port calls has nothing to fetch; it is a plan all the same.
        PortCallRows rows;
        c_.schedule.LoadSchedule(vi, rows, -1);
    }
    c_.voyageStatuses[vi] = static_cast<int>(StatusAt(voyage->portCalls, Util::_datetime_t()));
    return 0;
}

int TreeBuilder::KnowStatus(const std::string& vi) {
    return c_.voyageStatuses.contains(vi) ? 0 : ComputeStatus(vi);
}

int TreeBuilder::ShowStatus(const std::string& vi) {
    if (const int result = KnowStatus(vi); result != 0) {
        return result;
    }
    const TreeRow row = c_.FindVoyageRow(vi);
    if (row == kNoRow) {
        return -4;
    }
    DrawStatus(row, c_.voyageStatuses.at(vi));
    return 0;
}

void TreeBuilder::ShowStatuses(TreeRow categoryRow, const std::string& ci) {
    const auto voyages = c_.store.categoryVoyages.find(ci);
    if (voyages == c_.store.categoryVoyages.end()) {
        return;
    }
    // The rows are looked up once: a search for each voyage grows with the square of their number.
    std::map<std::string, TreeRow> rows;
    for (TreeRow row = c_.tree.GetChildItem(categoryRow); row != kNoRow;
         row = c_.tree.GetNextSiblingItem(row)) {
        if (const VoyInfo* voyage = c_.VoyageOf(row)) {
            rows.emplace(voyage->vi, row);
        }
    }
    for (const auto& [vi, state] : voyages->second) {
        const auto row = rows.find(vi);
        if (KnowStatus(vi) == 0 && row != rows.end()) {
            DrawStatus(row->second, c_.voyageStatuses.at(vi));
        }
    }
}

void TreeBuilder::DrawStatus(TreeRow row, int status) {
    const char* image = "#Voyage_status_plan";
    TextId tip = TextId::IDS_TREESTATUS_BFVOY;
    if (status == static_cast<int>(VoyageStatus::Underway)) {
        image = "#Voyage_status_underway";
        tip = TextId::IDS_TREESTATUS_VOYING;
    } else if (status == static_cast<int>(VoyageStatus::Finished)) {
        image = "#Voyage_status_finish";
        tip = TextId::IDS_TREESTATUS_VOYFINISH;
    }
    c_.tree.SetDrawItemValueOfEventItem(row, "Voyage.child.svr2", "Voyage_Status", image);
    c_.tree.SetToolTipsOfEventItem(row, "Voyage.child.svr2", Text(tip));
}

int TreeBuilder::ShowDates(TreeRow row, const VoyInfo& voyage) {
    if (voyage.portCalls.size() < 2) {
        return -1;
    }
    const auto& calls = voyage.portCalls;
    c_.tree.SetDrawItemValueOfEventItem(row, "Voyage_Date", "Saildate", calls.front().etd.fmt(kDateFormat));
    c_.tree.SetDrawItemValueOfEventItem(row, "Voyage_Date", "Enddate", calls.back().eta.fmt(kDateFormat));
    c_.tree.SetDrawItemVisibleEx(row, "Voyage_setPortCall", false);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage_Date", true);
    return 0;
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeStatus.h"

#include <map>

#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

TreeStatus::TreeStatus(TreeContext& context)
    : c_(context), queue_(context.tree, [this](const std::string& vi, TreeRow row) { Find(vi, row); }) {}

Outcome<StatusStep> TreeStatus::Compute(const std::string& vi) {
    if (vi.empty()) {
        return StatusStep::Id;
    }
    const VoyInfo* voyage = c_.store.FindVoyage(vi);
    if (voyage == nullptr) {
        return StatusStep::Voyage;
    }
    if (voyage->portCalls.empty()) {
        // A voyage without port calls has nothing to fetch; it is a plan all the same.
        c_.FetchPortCalls(vi);
    }
    c_.voyageStatuses[vi] = static_cast<int>(StatusAt(voyage->portCalls, Util::_datetime_t()));
    return {};
}

Outcome<StatusStep> TreeStatus::Know(const std::string& vi) {
    return c_.voyageStatuses.contains(vi) ? Outcome<StatusStep>() : Compute(vi);
}

Outcome<StatusStep> TreeStatus::Show(const std::string& vi) {
    if (const Outcome<StatusStep> known = Know(vi); known.Failed()) {
        return known;
    }
    const TreeRow row = c_.FindVoyageRow(vi);
    if (row == kNoRow) {
        return StatusStep::Row;
    }
    Draw(row, c_.voyageStatuses.at(vi));
    return {};
}

void TreeStatus::ShowAll(TreeRow categoryRow, const std::string& ci) {
    const auto voyages = c_.store.categoryVoyages.find(ci);
    if (voyages == c_.store.categoryVoyages.end()) {
        return;
    }
    // Rows are walked once: a search for each voyage grows with the square of their number.
    std::map<std::string, TreeRow> rows;
    for (TreeRow row = c_.tree.GetChildItem(categoryRow); row != kNoRow;
         row = c_.tree.GetNextSiblingItem(row)) {
        if (const VoyInfo* voyage = c_.VoyageOf(row)) {
            rows.emplace(voyage->vi, row);
        }
    }
    for (const auto& [vi, state] : voyages->second) {
        const auto row = rows.find(vi);
        const TreeRow shown = row == rows.end() ? kNoRow : row->second;
        if (c_.voyageStatuses.contains(vi)) {
            Find(vi, shown);
        } else {
            queue_.Add(vi, shown);
        }
    }
    queue_.Run();
}

/// The row may have gone while the voyage waited.
void TreeStatus::Find(const std::string& vi, TreeRow row) {
    if (Know(vi).Failed()) {
        return;
    }
    const VoyInfo* voyage = row == kNoRow ? nullptr : c_.VoyageOf(row);
    if (voyage != nullptr && voyage->vi == vi) {
        Draw(row, c_.voyageStatuses.at(vi));
    }
}

void TreeStatus::ShowKnown() {
    for (const auto& [vi, status] : c_.voyageStatuses) {
        static_cast<void>(Show(vi));
    }
}

void TreeStatus::Draw(TreeRow row, int status) {
    const char* image = ItemValue::kPlanImage;
    TextId tip = TextIds::IDS_TREESTATUS_BFVOY;
    if (status == static_cast<int>(VoyageStatus::Underway)) {
        image = ItemValue::kUnderwayImage;
        tip = TextIds::IDS_TREESTATUS_VOYING;
    } else if (status == static_cast<int>(VoyageStatus::Finished)) {
        image = ItemValue::kFinishImage;
        tip = TextIds::IDS_TREESTATUS_VOYFINISH;
    }
    c_.tree.SetDrawItemValueOfEventItem(row, Item::kStatus, ItemValue::kStatusImage, image);
    c_.tree.SetToolTipsOfEventItem(row, Item::kStatus, Text(tip));
}

Outcome<DatesStep> ShowRowDates(TreeWidget& tree, TreeRow row, const VoyInfo& voyage) {
    if (voyage.portCalls.size() < 2) {
        return DatesStep::PortCalls;
    }
    const std::string sails = voyage.portCalls.front().etd.fmt(Util::kDayFormat);
    const std::string ends = voyage.portCalls.back().eta.fmt(Util::kDayFormat);
    tree.SetDrawItemValueOfEventItem(row, Item::kDates, ItemValue::kSailDate, sails);
    tree.SetDrawItemValueOfEventItem(row, Item::kDates, ItemValue::kEndDate, ends);
    tree.SetDrawItemVisibleEx(row, Item::kSetPortCall, false);
    tree.SetDrawItemVisibleEx(row, Item::kDates, true);
    return {};
}

Outcome<DatesStep> TreeStatus::ShowDates(TreeRow row, const VoyInfo& voyage) {
    return ShowRowDates(c_.tree, row, voyage);
}

void TreeStatus::ShowVessel(TreeRow row, const std::string& name, bool alert) {
    c_.tree.SetDrawItemVisibleEx(row, Item::kAssignShip, false);
    c_.tree.SetDrawItemValueOfEventItem(row, Item::kShipInfo, ItemValue::kShipName, name);
    c_.tree.SetDrawItemVisibleEx(row, Item::kShipInfo, true);
    c_.tree.SetDrawItemVisibleEx(row, Item::kAlert, alert);
}

Outcome<RowRefreshStep> TreeStatus::RefreshRow(const std::string& vi) {
    const TreeRow row = c_.FindVoyageRow(vi);
    if (row == kNoRow) {
        return {};
    }
    const VoyInfo* voyage = c_.store.FindVoyage(vi);
    if (voyage == nullptr) {
        return RowRefreshStep::Voyage;
    }
    c_.tree.SetItemText(row, voyage->vn);
    return ShowDates(row, *voyage).Failed() ? RowRefreshStep::Voyage : Outcome<RowRefreshStep>();
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/RowSelection.h"

#include "seaplan/data/VoyageStore.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeStatus.h"
#include "seaplan/panels/tree/VoyagesOnChart.h"

namespace Tarvik::Seaplan {

namespace {

/// What a voyage lacks first, as the next step to take; empty when it has ports and a vessel.
std::string NextStep(const VoyInfo& voyage) {
    if (voyage.portCalls.size() < 2) {
        return Text(TextIds::IDS_VIEW_HINTPORTS);
    }
    return voyage.vsn.empty() ? Text(TextIds::IDS_VIEW_HINTVESSEL) : std::string();
}

}  // namespace

ItemOutcome RowSelection::Take(TreeRow row) {
    c_.tree.SelectItem(row);
    const bool isCategory = c_.IsCategoryRow(row);
    categoryRow_ = isCategory ? row : c_.tree.GetParentItem(row);
    const VoyCategory* category = c_.CategoryOf(categoryRow_);
    if (category == nullptr) {
        return isCategory ? ItemStep::CategoryRecord : ItemStep::ParentRecord;
    }
    if (category->ci.empty()) {
        return isCategory ? ItemStep::CategoryId : ItemStep::ParentId;
    }
    if (isCategory) {
        return {};
    }
    voyageRow_ = row;
    const VoyInfo* voyage = c_.VoyageOf(row);
    if (voyage == nullptr) {
        return ItemStep::VoyageRecord;
    }
    return voyage->vi.empty() ? ItemStep::VoyageId : ItemOutcome();
}

void RowSelection::TakeVoyage(TreeRow row) {
    c_.tree.Expand(c_.tree.GetParentItem(row), true);
    c_.tree.SelectItem(row);
    categoryRow_ = row;
    voyageRow_ = row;
}

void RowSelection::Press(TreeRow row) {
    if (row == kNoRow || c_.tree.GetItemData(row) == nullptr) {
        return;
    }
    told_.clear();
    if (c_.IsCategoryRow(row)) {
        if (c_.tree.IsItemExpanded(row)) {
            Unfold(row);
        } else {
            c_.tree.SelectItem(kNoRow);
        }
        return;
    }
    const VoyInfo& voyage = *c_.VoyageOf(row);
    if (voyage.vi.empty()) {
        return;
    }
    c_.tree.SelectItem(row);
    static_cast<void>(chart_.ActivateVoyage(voyage));
    if (voyage.portCalls.size() < 2) {
        c_.FetchPortCalls(voyage.vi);
    }
    static_cast<void>(status_.ShowDates(row, voyage));
    told_ = voyage.vi;
    TellAgain(told_);
}

void RowSelection::TellAgain(const std::string& vi) {
    const TreeRow row = vi == told_ ? c_.FindVoyageRow(vi) : kNoRow;
    if (row != kNoRow) {
        c_.Say(c_.tree.GetItemStyle(row) == kVoyageStyle ? NextStep(*c_.VoyageOf(row)) : std::string());
    }
}

bool RowSelection::Unfold(TreeRow row) {
    const VoyCategory* category = c_.CategoryOf(row);
    if (category == nullptr) {
        return false;
    }
    c_.tree.Expand(row, true);
    c_.tree.SelectItem(row);
    status_.ShowAll(row, category->ci);
    c_.Say(c_.tree.GetChildItem(row) == kNoRow ? Text(TextIds::IDS_VIEW_HINTVOYAGE) : std::string());
    return true;
}

void RowSelection::Forget() {
    told_.clear();
    categoryRow_ = kNoRow;
    voyageRow_ = kNoRow;
}

void RowSelection::DropCategoryRow() {
    c_.tree.DeleteItem(categoryRow_);
    categoryRow_ = kNoRow;
}

void RowSelection::DropVoyageRow() {
    c_.tree.DeleteItem(voyageRow_);
    voyageRow_ = kNoRow;
}

VoyCategory& RowSelection::Category() const {
    return *c_.CategoryOf(categoryRow_);
}

VoyInfo& RowSelection::Voyage() const {
    return *c_.VoyageOf(voyageRow_);
}

}  // namespace Tarvik::Seaplan

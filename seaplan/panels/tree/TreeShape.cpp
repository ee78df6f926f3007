// SPDX-License-Identifier: MIT
#include <algorithm>

#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeRows.h"

namespace Tarvik::Seaplan {

namespace {

struct ItemDefault {
    const char* name;
    bool visible;
};

constexpr ItemDefault kCategoryItems[] = {
    {Item::kCount, true},          {Item::kRenameCategory, true},   {Item::kAddVoyage, true},
    {Item::kAscending, true},      {Item::kDescending, false},      {Item::kSort, true},
    {Item::kDeleteCategory, true}, {Item::kCategoryNoRemark, true}, {Item::kCategoryRemark, false}};
constexpr ItemDefault kVoyageItems[] = {
    {Item::kRenameVoyage, true}, {Item::kUnpinned, true},       {Item::kPinned, false},
    {Item::kStatus, true},       {Item::kVoyageNoRemark, true}, {Item::kVoyageRemark, false},
    {Item::kPortCalls, true},    {Item::kConsumption, true},    {Item::kNoonReport, true},
    {Item::kAisOff, true},       {Item::kAisOn, false},         {Item::kDeleteVoyage, true},
    {Item::kModify, true},       {Item::kSetPortCall, true},    {Item::kDates, false},
    {Item::kAssignShip, true},   {Item::kShipInfo, false},      {Item::kAlert, false},
    {Item::kReplaceShip, false}};
constexpr ItemDefault kDeletedCategoryItems[] = {{Item::kRecoverCategory, true},
                                                 {Item::kClearCategory, true}};
constexpr ItemDefault kDeletedVoyageItems[] = {{Item::kRecoverVoyage, true}, {Item::kClearVoyage, true}};

template <std::size_t N>
StyleItems ItemsOf(const ItemDefault (&defaults)[N]) {
    StyleItems items;
    for (const ItemDefault& item : defaults) {
        items[item.name].visible = item.visible;
    }
    return items;
}

}  // namespace

TreeShape::TreeShape()
    : styles_{{kCategoryStyle, ItemsOf(kCategoryItems)},
              {kVoyageStyle, ItemsOf(kVoyageItems)},
              {kDeletedCategoryStyle, ItemsOf(kDeletedCategoryItems)},
              {kDeletedVoyageStyle, ItemsOf(kDeletedVoyageItems)}} {}

StyleItems& TreeShape::ItemsOfStyle(const std::string& style) {
    const auto known = styles_.find(style);
    return known == styles_.end() ? styles_.at(kDeletedVoyageStyle) : known->second;
}

TreeRowState* TreeShape::Find(TreeRow row) {
    const auto it = rows_.find(row);
    return it == rows_.end() ? nullptr : &it->second;
}

const TreeRowState* TreeShape::Row(TreeRow row) const {
    const auto it = rows_.find(row);
    return it == rows_.end() ? nullptr : &it->second;
}

TreeRow TreeShape::InsertItem(const std::string& text, const char* style, TreeRow parent) {
    if (parent != kNoRow && Row(parent) == nullptr) {
        return kNoRow;
    }
    const TreeRow row = next_++;
    TreeRowState& state = rows_[row];
    state.text = text;
    state.style = style;
    state.parent = parent;
    state.items = TreeItems(ItemsOfStyle(state.style));
    std::vector<TreeRow>& siblings = parent == kNoRow ? roots_ : Find(parent)->children;
    if (!siblings.empty()) {
        Find(siblings.back())->next = row;
    }
    siblings.push_back(row);
    RowInserted(row);
    return row;
}

void TreeShape::DeleteItem(TreeRow row) {
    if (Row(row) == nullptr) {
        return;
    }
    DeleteChildItems(row);
    if (selected_ == row) {
        SelectItem(kNoRow);
    }
    RowRemoving(row);
    TreeRowState* parent = Find(Row(row)->parent);
    std::vector<TreeRow>& siblings = parent == nullptr ? roots_ : parent->children;
    const auto place =
        siblings.back() == row ? siblings.end() - 1 : std::find(siblings.begin(), siblings.end(), row);
    if (place != siblings.begin()) {
        Find(*(place - 1))->next = Row(row)->next;
    }
    siblings.erase(place);
    rows_.erase(row);
}

void TreeShape::DeleteChildItems(TreeRow row) {
    // From the end, as nothing moves up then.
    while (Row(row) != nullptr && !Row(row)->children.empty()) {
        DeleteItem(Row(row)->children.back());
    }
}

void TreeShape::DeleteAllItems() {
    rows_.clear();
    roots_.clear();
    selected_ = kNoRow;
    RowsCleared();
}

void TreeShape::SetItemData(TreeRow row, void* record) {
    if (TreeRowState* state = Find(row)) {
        state->record = record;
    }
}

void* TreeShape::GetItemData(TreeRow row) const {
    const TreeRowState* state = Row(row);
    return state == nullptr ? nullptr : state->record;
}

TreeRow TreeShape::GetRootItem() const {
    return roots_.empty() ? kNoRow : roots_.front();
}

TreeRow TreeShape::GetChildItem(TreeRow row) const {
    const TreeRowState* state = Row(row);
    return state == nullptr || state->children.empty() ? kNoRow : state->children.front();
}

TreeRow TreeShape::GetNextSiblingItem(TreeRow row) const {
    const TreeRowState* state = Row(row);
    return state == nullptr ? kNoRow : state->next;
}

TreeRow TreeShape::GetParentItem(TreeRow row) const {
    const TreeRowState* state = Row(row);
    return state == nullptr ? kNoRow : state->parent;
}

std::string TreeShape::GetItemStyle(TreeRow row) const {
    const TreeRowState* state = Row(row);
    return state == nullptr ? std::string() : state->style;
}

void TreeShape::SelectItem(TreeRow row) {
    selected_ = Row(row) == nullptr ? kNoRow : row;
    RowSelected(selected_);
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeRows.h"

#include "seaplan/panels/tree/ItemNames.h"

namespace Tarvik::Seaplan {

namespace {

struct StyleHeight {
    const char* style;
    int plain;
    int selected;
};

constexpr StyleHeight kHeights[] = {{kCategoryStyle, 31, 61},
                                    {kVoyageStyle, 30, 123},
                                    {kDeletedCategoryStyle, 31, 31},
                                    {kDeletedVoyageStyle, 30, 30}};

}  // namespace

int RowHeight(const TreeRowState& row, bool selected) {
    for (const StyleHeight& known : kHeights) {
        if (row.style == known.style) {
            return selected ? known.selected : known.plain;
        }
    }
    return kHeights[0].plain;
}

void TreeRows::Expand(TreeRow row, bool open) {
    TreeRowState* state = Find(row);
    if (state == nullptr || state->expanded == open) {
        return;
    }
    state->expanded = open;
    RowExpanded(row, open);
}

bool TreeRows::IsItemExpanded(TreeRow row) const {
    const TreeRowState* state = Row(row);
    return state != nullptr && state->expanded;
}

void TreeRows::SetRowFinding(TreeRow row, RowFinding finding) {
    TreeRowState* state = Find(row);
    if (state == nullptr || state->finding == finding) {
        return;
    }
    state->finding = finding;
    RowFindingSet(row, finding);
}

RowFinding TreeRows::GetRowFinding(TreeRow row) const {
    const TreeRowState* state = Row(row);
    return state == nullptr ? RowFinding::None : state->finding;
}

std::string TreeRows::GetItemText(TreeRow row) const {
    const TreeRowState* state = Row(row);
    return state == nullptr ? std::string() : state->text;
}

void TreeRows::SetItemText(TreeRow row, const std::string& text) {
    TreeRowState* state = Find(row);
    if (state == nullptr) {
        return;
    }
    state->text = text;
    RowChanged(row);
}

void TreeRows::SetDrawItemValue(TreeRow row, const std::string& item, const std::string& text) {
    TreeRowState* state = Find(row);
    if (state == nullptr) {
        return;
    }
    if (state->items.SetText(item, text)) {
        RowChanged(row);
    }
}

void TreeRows::SetDrawItemValueOfEventItem(TreeRow row, const std::string& item, const std::string& value,
                                           const std::string& text) {
    TreeRowState* state = Find(row);
    if (state == nullptr) {
        return;
    }
    if (state->items.SetValue(item, value, text)) {
        RowChanged(row);
    }
}

void TreeRows::SetDrawItemVisibleEx(TreeRow row, const std::string& item, bool visible) {
    TreeRowState* state = Find(row);
    if (state == nullptr) {
        return;
    }
    if (state->items.SetVisible(item, visible)) {
        RowChanged(row);
    }
}

void TreeRows::SetToolTipsOfEventItem(TreeRow row, const std::string& item, const std::string& text) {
    if (TreeRowState* state = Find(row)) {
        state->items.SetToolTip(item, text);
    }
}

void TreeRows::SetToolTipsOfStyle(const std::string& style, const std::string& item,
                                  const std::string& text) {
    ItemsOfStyle(style)[item].toolTip = text;
}

void TreeRows::SetDrawItemValueOfStyle(const std::string& style, const std::string& item,
                                       const std::string& value, const std::string& text) {
    ItemsOfStyle(style)[item].values[value] = text;
}

bool TreeRows::IsItemVisible(TreeRow row, const std::string& item) const {
    const TreeRowState* state = Row(row);
    if (state == nullptr) {
        return false;
    }
    const TreeItem* shown = state->items.Find(item);
    return shown != nullptr && shown->visible;
}

}  // namespace Tarvik::Seaplan

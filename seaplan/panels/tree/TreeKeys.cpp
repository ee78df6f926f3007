// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeKeys.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "seaplan/panels/tree/ItemNames.h"

namespace Tarvik::Seaplan {

std::vector<TreeRow> RowsOnScreen(const TreeWidget& tree) {
    std::vector<TreeRow> rows;
    const auto add = [&](TreeRow row) {
        if (tree.GetRowFinding(row) != RowFinding::Aside) {
            rows.push_back(row);
        }
    };
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        add(row);
        if (!tree.IsItemExpanded(row)) {
            continue;
        }
        for (TreeRow child = tree.GetChildItem(row); child != kNoRow;
             child = tree.GetNextSiblingItem(child)) {
            add(child);
        }
    }
    return rows;
}

bool TreeKeys::ClickFirst(TreeRow row, std::initializer_list<const char*> items) {
    for (const char* item : items) {
        if (tree_.IsItemVisible(row, item)) {
            ways_.click(row, item);
            return true;
        }
    }
    return false;
}

void TreeKeys::Step(TreeRow from, bool down) {
    const std::vector<TreeRow> rows = RowsOnScreen(tree_);
    if (rows.empty()) {
        return;
    }
    auto at = std::find(rows.begin(), rows.end(), from);
    if (at == rows.end()) {
        // A voyage that is folded away stands for its category.
        at = std::find(rows.begin(), rows.end(), tree_.GetParentItem(from));
    }
    TreeRow next = rows.front();
    if (at != rows.end()) {
        const auto place = at - rows.begin() + (down ? 1 : -1);
        if (place < 0 || place >= std::ssize(rows)) {
            return;
        }
        next = rows[static_cast<std::size_t>(place)];
    }
    tree_.SetCursor(next);
    ways_.select(next);
}

/// A voyage has nothing to fold: Left leads from it to its category.
void TreeKeys::Fold(TreeRow row, bool open) {
    const TreeRow parent = tree_.GetParentItem(row);
    if (parent == kNoRow) {
        if (tree_.IsItemExpanded(row) != open) {
            ways_.press(row);
        }
    } else if (!open) {
        tree_.SetCursor(parent);
        ways_.select(parent);
    }
}

void TreeKeys::Press(TreeRow row, const std::string& focused) {
    if (!focused.empty()) {
        ways_.click(tree_.Selected(), focused);
    } else if (!ClickFirst(row, {Item::kPortCalls})) {
        ways_.press(row);
    }
}

void TreeKeys::Insert(TreeRow row) {
    const TreeRow parent = tree_.GetParentItem(row);
    if (!ClickFirst(parent == kNoRow ? row : parent, {Item::kAddVoyage})) {
        ways_.addCategory();
    }
}

int TreeKeys::Duplicate() {
    const TreeRow row = tree_.Selected();
    return row != kNoRow && tree_.GetItemStyle(row) == kVoyageStyle ? ways_.click(row, Item::kDuplicate) : 1;
}

TreeRow TreeKeys::RowOfKey(TreeRow current) const {
    return tree_.Selected() != kNoRow ? tree_.Selected() : current;
}

TreeRow TreeKeys::OnMenuKey(TreeRow current) {
    const TreeRow row = RowOfKey(current);
    if (row != kNoRow && row != tree_.Selected()) {
        ways_.select(row);
    }
    return row;
}

bool TreeKeys::OnKey(Key key, TreeRow current, const std::string& focused) {
    const TreeRow row = RowOfKey(current);
    switch (key) {
        case Key::Down:
        case Key::Up:
            Step(row, key == Key::Down);
            return true;
        case Key::Right:
        case Key::Left:
            Fold(row, key == Key::Right);
            return true;
        case Key::Space:
        case Key::Enter:
            Press(row, focused);
            return true;
        case Key::F2:
            return ClickFirst(row, {Item::kRenameCategory, Item::kRenameVoyage});
        case Key::Delete:
            return ClickFirst(
                row, {Item::kDeleteCategory, Item::kDeleteVoyage, Item::kClearCategory, Item::kClearVoyage});
        case Key::Insert:
            Insert(row);
            return true;
        default:
            return false;
    }
}

}  // namespace Tarvik::Seaplan

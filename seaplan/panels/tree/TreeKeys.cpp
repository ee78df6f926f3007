// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeKeys.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <vector>

#include "seaplan/panels/tree/ItemNames.h"

namespace Tarvik::Seaplan {

namespace {

/// Rows of a leap, about as many as the panel shows.
constexpr std::ptrdiff_t kPage = 10;
/// More rows than any tree has.
constexpr std::ptrdiff_t kAllTheWay = std::numeric_limits<std::int32_t>::max();

}  // namespace

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

bool IsOnScreen(const TreeWidget& tree, TreeRow row) {
    if (tree.GetItemStyle(row).empty() || tree.GetRowFinding(row) == RowFinding::Aside) {
        return false;
    }
    const TreeRow parent = tree.GetParentItem(row);
    return parent == kNoRow || (tree.IsItemExpanded(parent) && IsOnScreen(tree, parent));
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

/// `by` rows down or, below 0, up, and no further than to the first or the last.
void TreeKeys::Step(TreeRow from, std::ptrdiff_t by) {
    const std::vector<TreeRow> rows = RowsOnScreen(tree_);
    if (rows.empty()) {
        return;
    }
    const auto at = std::find(rows.begin(), rows.end(), from);
    if (at == rows.end()) {
        return GoTo(by == kAllTheWay ? rows.back() : rows.front());
    }
    const std::ptrdiff_t now = at - rows.begin();
    const std::ptrdiff_t next = std::clamp<std::ptrdiff_t>(now + by, 0, std::ssize(rows) - 1);
    if (next != now) {
        GoTo(rows[static_cast<std::size_t>(next)]);
    }
}

void TreeKeys::GoTo(TreeRow row) {
    tree_.SetCursor(row);
    ways_.select(row);
}

/// A voyage has nothing to fold: Left leads from it to its category.
void TreeKeys::Fold(TreeRow row, bool open) {
    if (row == kNoRow) {
        return;
    }
    const TreeRow parent = tree_.GetParentItem(row);
    if (parent == kNoRow) {
        if (tree_.IsItemExpanded(row) != open) {
            ways_.press(row);
        }
    } else if (!open) {
        GoTo(parent);
    }
}

void TreeKeys::Press(TreeRow row, const std::string& focused) {
    if (!focused.empty() && row == tree_.Selected()) {
        ways_.click(row, focused);
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
    return IsOnScreen(tree_, row) && tree_.GetItemStyle(row) == kVoyageStyle
               ? ways_.click(row, Item::kDuplicate)
               : 1;
}

TreeRow TreeKeys::RowOfKey(TreeRow current) const {
    for (const TreeRow row : {tree_.Selected(), current}) {
        if (IsOnScreen(tree_, row)) {
            return row;
        }
    }
    return kNoRow;
}

/// A voyage that is folded away stands for its category here.
TreeRow TreeKeys::RowOfStep(TreeRow current) const {
    const TreeRow row = RowOfKey(current);
    return row != kNoRow ? row : tree_.GetParentItem(tree_.Selected() != kNoRow ? tree_.Selected() : current);
}

TreeRow TreeKeys::OnMenuKey(TreeRow current) {
    const TreeRow row = RowOfKey(current);
    if (row != kNoRow && row != tree_.Selected()) {
        ways_.select(row);
    }
    return row;
}

/// Keys that would do it to one row after the other while they are held.
bool TreeKeys::OnOnceKey(KeyPress press, TreeRow row) {
    switch (press.key) {
        case Key::Delete:
            return press.held || ClickFirst(row, {Item::kDeleteCategory, Item::kDeleteVoyage,
                                                  Item::kClearCategory, Item::kClearVoyage});
        case Key::Undo:
            if (!press.held) {
                Undo();
            }
            return true;
        case Key::D:
            if (press.ctrlShift && !press.held) {
                Duplicate();
            }
            return press.ctrlShift;
        default:
            return false;
    }
}

bool TreeKeys::OnKey(KeyPress press, TreeRow current, const std::string& focused) {
    const TreeRow row = RowOfKey(current);
    switch (const Key key = press.key) {
        case Key::Down:
        case Key::Up:
            Step(RowOfStep(current), key == Key::Down ? 1 : -1);
            return true;
        case Key::PageDown:
        case Key::PageUp:
            Step(RowOfStep(current), key == Key::PageDown ? kPage : -kPage);
            return true;
        case Key::Home:
        case Key::End:
            Step(RowOfStep(current), key == Key::End ? kAllTheWay : -kAllTheWay);
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
        case Key::Insert:
            Insert(row);
            return true;
        default:
            return OnOnceKey(press, row);
    }
}

}  // namespace Tarvik::Seaplan

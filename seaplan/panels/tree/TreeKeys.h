// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

/// Rows in the order on the screen, without those that are folded away or put aside by a search.
std::vector<TreeRow> RowsOnScreen(const TreeWidget& tree);
/// Whether a row is one of these; kNoRow is not.
bool IsOnScreen(const TreeWidget& tree, TreeRow row);

/// What the keys do in the tree: Up and Down walk the rows, PageUp and PageDown by leaps, Home and End lead
/// to the first and the last, Right and Left fold, Enter and Space press, F2 renames, Insert adds a voyage or
/// a category, Delete moves to the recycle bin, and out of it for good, Ctrl+Shift+D duplicates, and Undo
/// takes back. A row that cannot be seen is not meant by any of them; the last three act once, however long
/// they are held.
class TreeKeys {
  public:
    /// What the keys lead to.
    struct Ways {
        std::function<void(TreeRow)> select;  ///< what a press on a row does, but for folding
        std::function<void(TreeRow)> press;   ///< a press on a row beside its items
        std::function<int(TreeRow, const std::string&)> click;
        std::function<void()> addCategory;
        std::function<int()> undo;
    };
    TreeKeys(TreeWidget& tree, Ways ways) : tree_(tree), ways_(std::move(ways)) {}

    /// A key while the keyboard is on the row `current`, kNoRow for none, and on the item `focused` of the
    /// selected row, empty for none. False when it means nothing here.
    bool OnKey(KeyPress press, TreeRow current, const std::string& focused);

    /// TreeUndo::Undo.
    int Undo() { return ways_.undo(); }
    /// The selected voyage once more; without one nothing is done. Results as of a click.
    int Duplicate();

    /// The row whose menu opens by the key: the selected one, else the one with the keyboard. One that was
    /// not selected is pressed first, as by the mouse, so that the menu offers what the row has.
    TreeRow OnMenuKey(TreeRow current);

  private:
    TreeRow RowOfKey(TreeRow current) const;
    TreeRow RowOfStep(TreeRow current) const;
    bool ClickFirst(TreeRow row, std::initializer_list<const char*> items);
    void Step(TreeRow from, std::ptrdiff_t by);
    void GoTo(TreeRow row);
    void Fold(TreeRow row, bool open);
    void Press(TreeRow row, const std::string& focused);
    void Insert(TreeRow row);
    bool OnOnceKey(KeyPress press, TreeRow row);

    TreeWidget& tree_;
    Ways ways_;
};

}  // namespace Tarvik::Seaplan

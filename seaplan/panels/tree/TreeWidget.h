// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/window/BoxOwner.h"
#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

/// Handle of a row; 0 is no row. Handles are never used twice.
using TreeRow = int;
inline constexpr TreeRow kNoRow = 0;

/// Styles of rows; a style decides which items a row has.
inline constexpr const char* kCategoryStyle = "Voyage.tree.parent";
inline constexpr const char* kVoyageStyle = "Voyage.tree.child";
inline constexpr const char* kDeletedCategoryStyle = "Voyage.tree.parent.del";
inline constexpr const char* kDeletedVoyageStyle = "Voyage.tree.child.del";

/// How a row stands to what is looked for: nothing is looked for or it only leads there, it is what is looked
/// for, or it is put aside and not shown.
enum class RowFinding { None, Found, Aside };

/// The named items of the tree's rows: their texts, tips and whether they are shown. A row's own text is its
/// name.
class ItemsOfRows {
  public:
    virtual ~ItemsOfRows() = default;
    virtual std::string GetItemText(TreeRow row) const = 0;
    virtual void SetItemText(TreeRow row, const std::string& text) = 0;
    virtual void SetDrawItemValue(TreeRow row, const std::string& item, const std::string& text) = 0;
    virtual void SetDrawItemValueOfEventItem(TreeRow row, const std::string& item, const std::string& value,
                                             const std::string& text) = 0;
    virtual void SetDrawItemVisibleEx(TreeRow row, const std::string& item, bool visible) = 0;
    /// Whether a row shows an item; an item that the row does not have counts as hidden.
    virtual bool IsItemVisible(TreeRow row, const std::string& item) const = 0;
    virtual void SetToolTipsOfEventItem(TreeRow row, const std::string& item, const std::string& text) = 0;
    // What the rows of a style show where they were given nothing of their own. Rows on show are not painted
    // for it.
    virtual void SetToolTipsOfStyle(const std::string& style, const std::string& item,
                                    const std::string& text) = 0;
    virtual void SetDrawItemValueOfStyle(const std::string& style, const std::string& item,
                                         const std::string& value, const std::string& text) = 0;
};

/// The widget under the voyage tree: rows in two levels, each with its items. It reports presses and clicks
/// on items to SeaplanTreeCtrl and decides nothing.
class TreeWidget : public BoxOwner, public BusySign, public ItemsOfRows {
  public:
    /// Appends a row below `parent`; kNoRow makes a category row.
    virtual TreeRow InsertItem(const std::string& text, const char* style, TreeRow parent) = 0;
    virtual void DeleteItem(TreeRow row) = 0;
    virtual void DeleteChildItems(TreeRow row) = 0;
    virtual void DeleteAllItems() = 0;
    /// The record that a row stands for; null when none was set.
    virtual void SetItemData(TreeRow row, void* record) = 0;
    virtual void* GetItemData(TreeRow row) const = 0;
    virtual TreeRow GetRootItem() const = 0;
    virtual TreeRow GetChildItem(TreeRow row) const = 0;
    virtual TreeRow GetNextSiblingItem(TreeRow row) const = 0;
    virtual TreeRow GetParentItem(TreeRow row) const = 0;
    virtual std::string GetItemStyle(TreeRow row) const = 0;
    virtual void SelectItem(TreeRow row) = 0;
    virtual TreeRow Selected() const = 0;
    /// Puts the keyboard on a row and brings it into view, selected or not.
    virtual void SetCursor(TreeRow row) = 0;
    virtual void Expand(TreeRow row, bool open) = 0;
    virtual bool IsItemExpanded(TreeRow row) const = 0;
    virtual void SetRowFinding(TreeRow row, RowFinding finding) = 0;
    virtual RowFinding GetRowFinding(TreeRow row) const = 0;
    /// Rectangle of a row in pixels of the tree's window.
    virtual Rect GetItemRect(TreeRow row) const = 0;

    /// Shows another plug-in's window, by its opaque handle, 18 left of and 5 above the pointer, in its own
    /// size.
    virtual void ShowAtPointer(void* window) = 0;
};

}  // namespace Tarvik::Seaplan

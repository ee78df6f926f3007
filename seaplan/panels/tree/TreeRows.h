// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "seaplan/panels/tree/TreeItems.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

/// State of one row.
struct TreeRowState {
    std::string text;
    std::string style;
    TreeRow parent = kNoRow;
    TreeRow next = kNoRow;  ///< next sibling
    void* record = nullptr;
    bool expanded = false;
    RowFinding finding = RowFinding::None;
    std::vector<TreeRow> children;
    TreeItems items;
};

/// Height of a row in pixels by its style; rows in use grow when they are selected.
int RowHeight(const TreeRowState& row, bool selected);

/// The rows of a tree without any window: which there are, below which others, and which one is selected. A
/// window follows the hooks; each is called after the change, RowRemoving before it.
class TreeShape : public TreeWidget {
  public:
    TreeShape();
    TreeRow InsertItem(const std::string& text, const char* style, TreeRow parent) override;
    void DeleteItem(TreeRow row) override;
    void DeleteChildItems(TreeRow row) override;
    void DeleteAllItems() override;
    void SetItemData(TreeRow row, void* record) override;
    void* GetItemData(TreeRow row) const override;
    TreeRow GetRootItem() const override;
    TreeRow GetChildItem(TreeRow row) const override;
    TreeRow GetNextSiblingItem(TreeRow row) const override;
    TreeRow GetParentItem(TreeRow row) const override;
    std::string GetItemStyle(TreeRow row) const override;
    void SelectItem(TreeRow row) override;
    TreeRow Selected() const override { return selected_; }
    /// State of a row, null for an unknown one.
    const TreeRowState* Row(TreeRow row) const;

  protected:
    virtual void RowInserted(TreeRow) {}
    virtual void RowRemoving(TreeRow) {}
    virtual void RowsCleared() {}
    virtual void RowSelected(TreeRow) {}
    TreeRowState* Find(TreeRow row);
    /// What the rows of a style begin with; of an unknown style what a voyage in the recycle bin has.
    StyleItems& ItemsOfStyle(const std::string& style);

  private:
    std::map<std::string, StyleItems> styles_;
    std::unordered_map<TreeRow, TreeRowState> rows_;
    std::vector<TreeRow> roots_;
    TreeRow next_ = 1;
    TreeRow selected_ = kNoRow;
};

/// The same with what the rows show.
class TreeRows : public TreeShape {
  public:
    void Expand(TreeRow row, bool open) override;
    bool IsItemExpanded(TreeRow row) const override;
    void SetRowFinding(TreeRow row, RowFinding finding) override;
    RowFinding GetRowFinding(TreeRow row) const override;
    std::string GetItemText(TreeRow row) const override;
    void SetItemText(TreeRow row, const std::string& text) override;
    void SetDrawItemValue(TreeRow row, const std::string& item, const std::string& text) override;
    void SetDrawItemValueOfEventItem(TreeRow row, const std::string& item, const std::string& value,
                                     const std::string& text) override;
    void SetDrawItemVisibleEx(TreeRow row, const std::string& item, bool visible) override;
    bool IsItemVisible(TreeRow row, const std::string& item) const override;
    void SetToolTipsOfEventItem(TreeRow row, const std::string& item, const std::string& text) override;
    void SetToolTipsOfStyle(const std::string& style, const std::string& item,
                            const std::string& text) override;
    void SetDrawItemValueOfStyle(const std::string& style, const std::string& item, const std::string& value,
                                 const std::string& text) override;

  protected:
    virtual void RowChanged(TreeRow) {}
    virtual void RowExpanded(TreeRow, bool) {}
    virtual void RowFindingSet(TreeRow, RowFinding) {}
};

}  // namespace Tarvik::Seaplan

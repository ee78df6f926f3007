// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "seaplan/panels/tree/TreeRows.h"
#include "seaplan/views/window/KeptFocus.h"

class QStandardItem;

namespace Tarvik::Seaplan {

class VoyageTreeView;

/// Rows with their places in the view's model.
class VoyageTreeWidget final : public TreeRows {
  public:
    explicit VoyageTreeWidget(VoyageTreeView& view) : view_(view) {}

    Rect GetItemRect(TreeRow row) const override;
    void SetCursor(TreeRow row) override;
    void SetBusy(bool busy) override;
    void ShowAtPointer(void* window) override;
    void SetEnabled(bool enabled) override;
    void* Handle() const override;

    QStandardItem* ItemOf(TreeRow row) const;
    /// Rows in the order on the screen, without those that are folded away or put aside.
    const std::vector<TreeRow>& ShownRows() const;

  protected:
    void RowInserted(TreeRow row) override;
    void RowRemoving(TreeRow row) override;
    void RowsCleared() override;
    void RowChanged(TreeRow row) override;
    void RowSelected(TreeRow row) override;
    void RowExpanded(TreeRow row, bool expanded) override;
    void RowFindingSet(TreeRow row, RowFinding finding) override;

  private:
    VoyageTreeView& view_;
    /// A row's item with the text that it shows, to be compared without asking the item.
    struct ShownItem {
        QStandardItem* item = nullptr;
        std::string text{};
    };
    std::unordered_map<TreeRow, ShownItem> items_;
    KeptFocus keyboard_;
    mutable std::vector<TreeRow> shown_;
    mutable bool shownKnown_ = false;
};

}  // namespace Tarvik::Seaplan

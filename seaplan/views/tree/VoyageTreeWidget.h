// SPDX-License-Identifier: MIT
#pragma once

#include <map>

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
    std::map<TreeRow, QStandardItem*> items_;
    KeptFocus keyboard_;
};

}  // namespace Tarvik::Seaplan

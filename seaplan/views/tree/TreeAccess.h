// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <QPointer>
#include <map>

#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

class VoyageTreeView;

/// The voyage tree as a screen reader walks it: rows in the order on the screen, and in each row its items,
/// which can be pressed as with the mouse. Behind the hidden header, which the window system counts as the
/// first child.
class TreeAccess final : public QAccessibleWidget {
  public:
    explicit TreeAccess(VoyageTreeView& view);
    ~TreeAccess() override;
    TreeAccess(const TreeAccess&) = delete;
    TreeAccess& operator=(const TreeAccess&) = delete;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    /// A row, made when it is first asked for.
    QAccessibleInterface* RowAt(TreeRow row) const;

  private:
    void DropGone() const;

    QPointer<VoyageTreeView> view_;
    mutable std::map<TreeRow, QAccessible::Id> rows_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace Tarvik::Seaplan {

class VoyageTreeView;

/// Draws the parts of a row in the colours in force, in the row's height.
class RowDelegate final : public QStyledItemDelegate {
  public:
    explicit RowDelegate(VoyageTreeView* view);
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    VoyageTreeView* view_;
};

}  // namespace Tarvik::Seaplan

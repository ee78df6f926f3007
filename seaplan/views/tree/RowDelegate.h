// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QStyledItemDelegate>

#include "seaplan/views/tree/RowLayout.h"

namespace Tarvik::Seaplan {

class VoyageTreeView;

/// Font of a part in a row with this font.
QFont PartFont(const QFont& base, SubItemKind kind);

/// Draws the parts of a row in the colours in force.
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

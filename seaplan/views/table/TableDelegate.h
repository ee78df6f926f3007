// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>
#include <string>

#include "seaplan/views/table/TableLines.h"

namespace Tarvik::Seaplan {

/// Draws the cells of a TableModel: ground, images, text and the frame of the cell in front.
class TableDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// Name of the image at a point of a cell that takes `place`, empty between them.
    static std::string ImageAt(const TableImages& images, const QRect& place, const QPoint& point);
};

}  // namespace Tarvik::Seaplan

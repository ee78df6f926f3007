// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>
#include <string>

#include "seaplan/panels/portcall/PortCallTable.h"

namespace Tarvik::Seaplan {

/// Draws cells by the class of their row, and the images at a row's end.
class PortCallDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// Name of the image at a point inside the image cell, empty between them.
    static std::string ImageAt(const QRect& cell, const QPoint& point);
    /// What an image does, and why it does nothing now where it is disabled.
    static QString ImageTip(const std::string& name, const RowActions& can);
};

}  // namespace Tarvik::Seaplan

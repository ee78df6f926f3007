// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

#include "seaplan/views/editors/PanelTable.h"

namespace Tarvik::Seaplan {

/// Draws the cells of the position book: passed rows dim, ports bold, waypoints set in behind the image that
/// shows and hides them.
class BookDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// Whether a point of a name's cell lies on its expand image.
    static bool IsOnExpander(const QRect& cell, const QPoint& point);
};

/// The table of waypoints, with fixed columns and rows.
class BookTableView final : public PanelTable {
  public:
    explicit BookTableView(QWidget* parent);
    /// Widths need the model's columns.
    void ApplyWidths();
    void ApplySkin();
    /// Puts a row in front, none for -1, without a report.
    void PutFront(int row);

  protected:
    std::string ImageAt(const QModelIndex& index, const QPoint& point) const override;
    void PutPressed(const QModelIndex& index) override;
    bool IsSetting() const override { return setting_; }

  private:
    bool setting_ = false;  ///< the program puts a row in front
};

}  // namespace Tarvik::Seaplan

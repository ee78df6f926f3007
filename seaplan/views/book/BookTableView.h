// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>
#include <QTableView>
#include <functional>

#include "seaplan/panels/editors/Keys.h"

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
class BookTableView final : public QTableView {
  public:
    explicit BookTableView(QWidget* parent);
    struct Reports {
        std::function<void(int, int)> cellClicked;
        std::function<void(int)> rowSelected;
        std::function<void(int)> expand;
        /// A key on the cell in front; false when it means nothing there.
        std::function<bool(KeyPress, int, int)> key;
        std::function<void()> left;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    /// Widths need the model's columns.
    void ApplyWidths();
    void ApplySkin();
    /// Rectangle of a cell in the viewport; a cell below the bottom edge moves up by one row.
    QRect EditorRect(int row, int column) const;
    /// Puts a row in front, none for -1, without a report.
    void PutFront(int row);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void TellLeft();

    Reports reports_;
    bool setting_ = false;  ///< the program puts a row in front
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <QString>
#include <QStyledItemDelegate>
#include <memory>
#include <string>
#include <vector>

#include "seaplan/views/table/TableLines.h"

namespace Tarvik::Seaplan {

/// Hands columns and lines of a panel to the table view.
class TableModel final : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;
    void ShowColumns(std::vector<TableColumn> columns);
    /// Other lines; what is in front stays so where as many lines stand as before.
    void ShowLines(std::shared_ptr<const TableLines> lines);
    const std::vector<TableColumn>& Columns() const { return columns_; }
    /// The cell at a valid index of this model.
    TableCell CellAt(const QModelIndex& index) const;
    QString ImageTipAt(const QModelIndex& index, const std::string& image) const;
    bool IsCopied(int row) const { return lines_->IsCopied(row); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QString AccessibleText(const QModelIndex& index) const;

    std::vector<TableColumn> columns_;
    std::shared_ptr<const TableLines> lines_;
};

/// The lines of a table that are copied as a spreadsheet takes them: a line of heads, each with the unit on
/// show, and a line for each, with a tab between two cells. Where several rows are chosen they alone are
/// copied. Empty without such a line.
QString RowsAsText(const TableModel& table, const std::vector<int>& chosen);

/// Draws the cells of a TableModel: ground, images, text and the frame of the cell in front.
class TableDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// Whether a cell that takes `place` shows only the beginning of its text, where the table has this font.
    static bool IsCut(const TableCell& cell, const QFont& font, const QRect& place);
    /// Name of the image at a point of a cell that takes `place`, empty between them.
    static std::string ImageAt(const TableImages& images, const QRect& place, const QPoint& point);
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/views/table/TableModel.h"

namespace Tarvik::Seaplan {

void TableModel::ShowColumns(std::vector<TableColumn> columns) {
    const bool sameShape = columns.size() == columns_.size();
    if (!sameShape) {
        beginResetModel();
    }
    columns_ = std::move(columns);
    if (!sameShape) {
        return endResetModel();
    }
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void TableModel::ShowLines(std::shared_ptr<const TableLines> lines) {
    const bool sameShape = lines->Count() == rowCount();
    if (!sameShape) {
        beginResetModel();
    }
    lines_ = std::move(lines);
    if (!sameShape) {
        return endResetModel();
    }
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

TableCell TableModel::CellAt(const QModelIndex& index) const {
    return lines_->CellAt(index.row(), index.column());
}

QString TableModel::ImageTipAt(const QModelIndex& index, const std::string& image) const {
    return lines_->ImageTipAt(index.row(), image);
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || lines_ == nullptr ? 0 : lines_->Count();
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QString TableModel::AccessibleText(const QModelIndex& index) const {
    const QString title = headerData(index.column(), Qt::Horizontal, Qt::ToolTipRole).toString();
    const QString words = lines_->WordsAt(index.row(), index.column());
    const QString text = title + u' ' + CellAt(index).text;
    return words.isEmpty() ? text : text + u' ' + words;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const TableColumn& column = columns_[static_cast<std::size_t>(index.column())];
    switch (role) {
        case Qt::DisplayRole:
            return CellAt(index).text;
        case Qt::ToolTipRole:
            return lines_->TipAt(index.row(), index.column());
        case Qt::AccessibleTextRole:
            return AccessibleText(index);
        case Qt::TextAlignmentRole:
            return static_cast<int>(column.alignment | Qt::AlignVCenter);
        default:
            return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount() ||
        (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const TableColumn& column = columns_[static_cast<std::size_t>(section)];
    if (column.unit.isEmpty()) {
        return column.title;
    }
    return QString(column.title + (role == Qt::DisplayRole ? u'\n' : u' ') + column.unit);
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallModel.h"

namespace Tarvik::Seaplan {

void PortCallModel::Show(const PortCallTable& table) {
    const bool sameShape = rows_.size() == table.Rows().size();
    if (!sameShape) beginResetModel();
    rows_ = table.Rows();
    numbered_ = table.RowCount();
    if (!sameShape) return endResetModel();
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void PortCallModel::SetTitles(const QStringList& titles) {
    titles_ = titles;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int PortCallModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int PortCallModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : PortCallColumnCount + 1;
}

QVariant PortCallModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const TableRow& row = rows_[index.row()];
    const int column = index.column();
    if (role == kLookRole) return static_cast<int>(row.look);
    if (role == kImagesRole) return index.row() < numbered_ && !IsBlankCell(row.cells[ColPort]);
    if (column >= PortCallColumnCount) return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        const QString text = QString::fromStdString(row.cells[column]);
        return role == Qt::ToolTipRole && text == QLatin1String(" ") ? QVariant() : QVariant(text);
    }
    if (role == Qt::TextAlignmentRole) {
        const bool left = column == ColPort || column == ColEta || column == ColEtd;
        const bool centre = column == ColPurpose || column == ColOrder;
        return static_cast<int>(Qt::AlignVCenter | (left     ? Qt::AlignLeft
                                                    : centre ? Qt::AlignHCenter
                                                             : Qt::AlignRight));
    }
    return {};
}

QVariant PortCallModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= titles_.size()) return {};
    if (role == Qt::DisplayRole) return titles_.at(section);
    if (role == Qt::ToolTipRole) return QString(titles_.at(section)).replace(u'\n', u' ');
    return {};
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallModel.h"

#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

namespace {

QVariant AlignmentOf(int column) {
    const PortCallColumnEntry& entry = kPortCallColumns[column];
    const Qt::Alignment side = entry.centred                    ? Qt::AlignHCenter
                               : entry.kind == CellKind::Number ? Qt::AlignRight
                                                                : Qt::AlignLeft;
    return static_cast<int>(side | Qt::AlignVCenter);
}

/// The unit on show of a quantity, null for none.
const std::string* UnitOf(const PortCallState& state, UnitKind kind) {
    return kind == UnitKind::Speed      ? &state.speedUnit
           : kind == UnitKind::Distance ? &state.distanceUnit
           : kind == UnitKind::Time     ? &state.timeUnit
                                        : nullptr;
}

}  // namespace

void PortCallModel::Show(const PortCallTable& table) {
    const bool sameShape = table_.Rows().size() == table.Rows().size();
    if (!sameShape) {
        beginResetModel();
    }
    table_ = table;
    if (!sameShape) {
        return endResetModel();
    }
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void PortCallModel::ShowTitles(const PortCallState& state) {
    titles_.clear();
    for (const PortCallColumnEntry& column : kPortCallColumns) {
        QString title = QString::fromStdString(TextOfKey(column.title));
        if (const std::string* unit = UnitOf(state, column.unit); unit != nullptr) {
            title += u'\n' + QString::fromStdString(*unit);
        }
        titles_.append(title);
    }
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int PortCallModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.Rows().size());
}

int PortCallModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kPortCallColumnCount + 1;
}

QString PortCallModel::TextOf(int row, int column) const {
    return QString::fromStdString(table_.Cell(row, column)).trimmed();
}

QVariant PortCallModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const int row = index.row();
    const int column = index.column();
    switch (role) {
        case kLookRole:
            return static_cast<int>(table_.Rows()[row].look);
        case kImagesRole:
            return table_.IsNumbered(row) && !table_.IsBlank(row);
        case kTotalsRole:
            return row == table_.RowCount();
        case kUnknownRole:
            return column == ColPort && table_.Rows()[row].unknownPort;
        default:
            break;
    }
    if (column >= kPortCallColumnCount) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return TextOf(row, column);
        case Qt::ToolTipRole:
            return index.data(kUnknownRole).toBool() ? unknownTip_ : TextOf(row, column);
        case Qt::AccessibleTextRole:
            return headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString() + u' ' +
                   TextOf(row, column);
        case Qt::TextAlignmentRole:
            return AlignmentOf(column);
        default:
            return {};
    }
}

QVariant PortCallModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= titles_.size()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return titles_.at(section);
    }
    if (role == Qt::ToolTipRole) {
        return QString(titles_.at(section)).replace(u'\n', u' ');
    }
    return {};
}

}  // namespace Tarvik::Seaplan

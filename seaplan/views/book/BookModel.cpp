// SPDX-License-Identifier: MIT
#include "seaplan/views/book/BookModel.h"

#include "seaplan/data/TypedPosition.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

int AlignmentOf(int column) {
    const bool text = column == BookName || column == BookEta || column == BookEtd;
    const bool centred = column == BookTrack || column == BookInterval;
    const Qt::Alignment side = text ? Qt::AlignLeft : centred ? Qt::AlignHCenter : Qt::AlignRight;
    return static_cast<int>(side | Qt::AlignVCenter);
}

}  // namespace

void BookModel::Show(const BookSheet& sheet) {
    const bool sameShape = sheet.LineCount() == rowCount();
    const bool otherUnit = sheet.units.speed != sheet_.units.speed;
    if (!sameShape) {
        beginResetModel();
    }
    sheet_ = sheet;
    if (sameShape) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    } else {
        endResetModel();
    }
    if (otherUnit) {
        emit headerDataChanged(Qt::Horizontal, BookSpeed, BookSpeed);
    }
}

void BookModel::ApplyTexts() {
    titles_.clear();
    for (const BookColumnEntry& column : kBookColumns) {
        titles_.append(QString::fromStdString(TextOfKey(column.title)));
    }
    passedTip_ = ViewText(TextIds::IDS_VIEW_PASSED);
    expandTip_ = ViewText(TextIds::IDS_VIEW_BOOKEXPAND);
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int BookModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : sheet_.LineCount();
}

int BookModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kBookColumns.size());
}

QVariant BookModel::RowData(int row, int role) const {
    const bool isRow = sheet_.IsRow(row);
    switch (role) {
        case kIsRowRole:
            return isRow;
        case kPassedRole:
            return isRow && sheet_.IsLocked(row);
        case kExpanderRole:
            return static_cast<int>(sheet_.ExpanderAt(row));
        case kPortRole:
            return isRow && sheet_.RefOf(row).sub == PosBookRowRef::kPort;
        default:
            return isRow && sheet_.IsPlain(row);
    }
}

/// A position is told as people read it from a chart too.
QString BookModel::Tip(int row, int column) const {
    QString tip = QString::fromStdString(sheet_.Cell(row, column));
    const PosBookPlace& place = sheet_.PlaceAt(row);
    if (column == BookLatitude) {
        tip = QString::fromStdString(DegreesText(place.y, Axis::Latitude));
    } else if (column == BookLongitude) {
        tip = QString::fromStdString(DegreesText(place.x, Axis::Longitude));
    } else if (column == BookName && sheet_.ExpanderAt(row) != BookExpander::None) {
        tip += u'\n' + expandTip_;
    }
    return sheet_.IsLocked(row) ? tip + u'\n' + passedTip_ : tip;
}

QVariant BookModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const int row = index.row();
    const int column = index.column();
    switch (role) {
        case Qt::DisplayRole:
            return QString::fromStdString(sheet_.Cell(row, column));
        case Qt::ToolTipRole:
            return sheet_.IsRow(row) ? Tip(row, column) : QVariant();
        case Qt::AccessibleTextRole:
            return titles_.value(column) + u' ' + QString::fromStdString(sheet_.Cell(row, column));
        case Qt::TextAlignmentRole:
            return AlignmentOf(column);
        case kIsRowRole:
        case kPassedRole:
        case kExpanderRole:
        case kPortRole:
        case kPlainRole:
            return RowData(row, role);
        default:
            return {};
    }
}

QVariant BookModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= titles_.size()) {
        return {};
    }
    QString unit;
    if (section == BookSpeed) {
        unit = QString::fromStdString(sheet_.UnitText(UnitKind::Speed));
    } else if (section == BookLatitude || section == BookLongitude || section == BookCourse ||
               section == BookInterval) {
        unit = QStringLiteral("°");
    }
    if (role == Qt::DisplayRole) {
        return unit.isEmpty() ? titles_.at(section) : titles_.at(section) + u'\n' + unit;
    }
    if (role == Qt::ToolTipRole) {
        return unit.isEmpty() ? titles_.at(section) : titles_.at(section) + u' ' + unit;
    }
    return {};
}

}  // namespace Tarvik::Seaplan

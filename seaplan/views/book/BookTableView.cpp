// SPDX-License-Identifier: MIT
#include "seaplan/views/book/BookTableView.h"

#include <QPainter>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/views/book/BookModel.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Colour;
using Skin::Role;

constexpr int kImageSize = 12;
constexpr int kNameIndent = 16;
constexpr int kWaypointIndent = 24;

QColor GroundOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (!index.data(BookModel::kIsRowRole).toBool()) {
        return Colour(Role::Book);
    }
    if ((option.state & QStyle::State_Selected) != 0) {
        return Colour(Role::Selection);
    }
    return index.data(BookModel::kPassedRole).toBool() ? Colour(Role::History) : Colour(Role::Panel);
}

QRect ExpanderRect(const QRect& cell) {
    return {cell.left() + 2, cell.center().y() - kImageSize / 2, kImageSize, kImageSize};
}

QRect TextRect(const QRect& cell, const QModelIndex& index) {
    if (index.column() != BookName) {
        // A time and a course of three digits fill their columns.
        return cell.adjusted(1, 0, index.column() < BookSpeed ? -3 : -1, 0);
    }
    const bool plain = index.data(BookModel::kPlainRole).toBool();
    return cell.adjusted(plain ? kWaypointIndent : kNameIndent, 0, -3, 0);
}

void PaintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    QFont font = option.font;
    font.setPixelSize(Skin::kTablePixels);
    font.setBold(index.column() == BookName && index.data(BookModel::kPortRole).toBool());
    painter.setFont(font);
    painter.setPen(index.data(BookModel::kPassedRole).toBool() ? Colour(Role::Secondary)
                                                               : Colour(Role::Text));
    const QRect inner = TextRect(option.rect, index);
    const QString text =
        QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, inner.width());
    painter.drawText(inner, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine, text);
}

}  // namespace

void BookDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    painter->save();
    painter->fillRect(option.rect, GroundOf(option, index));
    const auto expander = static_cast<BookExpander>(index.data(BookModel::kExpanderRole).toInt());
    if (index.column() == BookName && expander != BookExpander::None) {
        Skin::PaintIcon(*painter, ExpanderRect(option.rect),
                        expander == BookExpander::Open ? "chevron-down" : "chevron-right",
                        Colour(Role::Text));
    }
    PaintText(*painter, option, index);
    if ((option.state & QStyle::State_HasFocus) != 0) {
        painter->setPen(Colour(Role::Accent));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

bool BookDelegate::IsOnExpander(const QRect& cell, const QPoint& point) {
    return ExpanderRect(cell).adjusted(-2, -4, 3, 4).contains(point);
}

BookTableView::BookTableView(QWidget* parent) : PanelTable(parent, "positionBookTable") {
    setItemDelegate(new BookDelegate(this));
    setMinimumHeight(kTableHeader + BookSheet::kLeastLines * kTableRow + 4);
    ApplySkin();
}

void BookTableView::ApplyWidths() {
    std::vector<int> widths;
    widths.reserve(kBookColumns.size());
    for (const auto& column : kBookColumns) {
        widths.push_back(column.width);
    }
    FixWidths(widths);
}

void BookTableView::ApplySkin() {
    setStyleSheet(QStringLiteral("#positionBookTable { background: %1; } "
                                 "QHeaderView::section { padding: 0; font-size: 11px; }")
                      .arg(Colour(Role::Book).name()));
}

void BookTableView::PutFront(int row) {
    setting_ = true;
    if (row < 0) {
        setCurrentIndex({});
        clearSelection();
    } else if (currentIndex().row() != row) {
        setCurrentIndex(model()->index(row, currentIndex().isValid() ? currentIndex().column() : BookName));
    } else {
        // QTableView::selectRow would take the front to the first column.
        selectionModel()->select(currentIndex(),
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    setting_ = false;
}

void BookTableView::PutPressed(const QModelIndex& index) {
    setting_ = true;
    setCurrentIndex(index);
    setting_ = false;
}

std::string BookTableView::ImageAt(const QModelIndex& index, const QPoint& point) const {
    const bool hit = index.column() == BookName && BookDelegate::IsOnExpander(visualRect(index), point);
    return hit ? static_cast<const BookModel*>(index.model())->Sheet().ImageAt(index.row()) : std::string();
}

}  // namespace Tarvik::Seaplan

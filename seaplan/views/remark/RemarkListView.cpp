// SPDX-License-Identifier: MIT
#include "seaplan/views/remark/RemarkListView.h"

#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTimer>
#include <QToolTip>
#include <QtMath>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>

#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/panels/texts/NoteTexts.h"
#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/table/PanelTable.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Colour;
using Skin::Role;

constexpr int kColumnWidth = 150;
constexpr int kRowHeight = 50;
constexpr int kMargin = 8;
constexpr int kLine = 22;
constexpr int kMarkWidth = 10;

/// Rounded up: a text in a place that is a fraction too narrow loses its end.
int WidthIn(const QFont& font, const QString& text, SubItemKind kind) {
    return qCeil(QFontMetricsF(PartFont(font, kind)).horizontalAdvance(text));
}

}  // namespace

RemarkDelegate::RemarkDelegate(RemarkListView* view) : QStyledItemDelegate(view), view_(view) {}

void RemarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    painter->save();
    painter->fillRect(option.rect, Colour(selected ? Role::Accent : Role::Caption));
    RowLook look{.font = option.font};
    look.ink = selected ? Role::AccentText : Role::CaptionText;
    for (const SubItem& part : view_->PartsOf(index)) {
        PaintPart(*painter, part, look);
    }
    painter->setPen(Colour(Role::Border));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->restore();
}

QSize RemarkDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {kColumnWidth, kRowHeight};
}

std::vector<SubItem> LayOutRemark(const RemarkRow& row, const QRect& place, const TextWidth& width,
                                  const RemarkTips& tips) {
    RowParts parts(width);
    const int image = place.right() + 1 - RowParts::kImage - RowParts::kGap;
    const int mark = image - kMarkWidth;
    const int top = place.top() + RowParts::kGap;
    const QString name = QString::fromStdString(row.name);
    parts.Write({RemarkItem::kName, SubItemKind::Name, {}, name, {}, name},
                {place.left() + kMargin, top, kLine, mark});
    if (row.unsaved) {
        parts.Write({RemarkItem::kUnsaved, SubItemKind::Name, {}, QStringLiteral("*"), {}, tips.unsaved},
                    {mark, top, kLine, image});
    }
    parts.Image({RemarkItem::kDelete, "delete", tips.remove},
                {image, top, RowParts::kImage, RowParts::kImage});
    parts.Write({RemarkItem::kTime, SubItemKind::Text, {}, QString::fromStdString(row.time)},
                {place.left() + kMargin, top + kLine, kLine, place.right() - RowParts::kGap});
    return parts.Take();
}

RemarkListView::RemarkListView(QWidget* parent) : QListView(parent), model_(new QStandardItemModel(this)) {
    setObjectName(QStringLiteral("remarkList"));
    Skin::SkinWindow(*this, Skin::ControlClass::ListView, "flt.list.remark");
    setModel(model_);
    setItemDelegate(new RemarkDelegate(this));
    setUniformItemSizes(true);
    SetUpRows(*this);
    setMouseTracking(true);
    ensurePolished();
    setFixedWidth(kColumnWidth + verticalScrollBar()->sizeHint().width() + 2);
}

void RemarkListView::ShowRows(const std::vector<RemarkRow>& rows, int current) {
    showing_ = true;
    rows_ = rows;
    const auto count = static_cast<int>(rows_.size());
    model_->setRowCount(count);
    if (model_->columnCount() == 0) {
        model_->setColumnCount(1);
    }
    for (int row = 0; row < count; ++row) {
        const RemarkRow& shown = rows_[static_cast<std::size_t>(row)];
        const QString text = QString::fromStdString(shown.name + ", " + shown.time);
        const QModelIndex index = model_->index(row, 0);
        if (index.data().toString() != text) {
            model_->setData(index, text);
        }
    }
    setCurrentIndex(current < 0 ? QModelIndex() : model_->index(current, 0));
    viewport()->update();
    showing_ = false;
}

void RemarkListView::ApplyTexts() {
    setAccessibleName(ViewText(TextIds::IDS_VIEW_REMARKLIST));
    tips_ = {ViewText(TextIds::IDS_VIEW_CHANGED), ViewText(TextIds::IDS_VIEW_REMARKDELETE)};
}

std::vector<SubItem> RemarkListView::PartsOf(const QModelIndex& index) const {
    if (!index.isValid() || index.row() >= static_cast<int>(rows_.size())) {
        return {};
    }
    const auto width = [this](const QString& text, SubItemKind kind) { return WidthIn(font(), text, kind); };
    return LayOutRemark(rows_[static_cast<std::size_t>(index.row())], visualRect(index), width, tips_);
}

void RemarkListView::TellEvent(int row, const std::string& item) {
    QTimer::singleShot(0, this, [this, row, item] {
        if (reports_.event) {
            reports_.event(ClistCtrlViewEx::FirstEvent, ClistCtrlViewEx::PositionOf(row), item);
        }
    });
}

void RemarkListView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->pos());
    const auto parts = PartsOf(index);
    const SubItem* pressed = SubItemAt(parts, event->pos());
    if (pressed != nullptr && event->button() == Qt::LeftButton) {
        return TellEvent(index.row(), pressed->name);
    }
    // A press beside the rows leaves the selection, which is never empty while there are rows.
    if (index.isValid()) {
        QListView::mousePressEvent(event);
    }
}

void RemarkListView::contextMenuEvent(QContextMenuEvent* event) {
    const QModelIndex index =
        event->reason() == QContextMenuEvent::Mouse ? indexAt(event->pos()) : currentIndex();
    if (index.isValid()) {
        MakeRowMenu(this, PartsOf(index), [this, row = index.row()](const std::string& item) {
            TellEvent(row, item);
        })->popup(event->globalPos());
    }
}

void RemarkListView::keyPressEvent(QKeyEvent* event) {
    const char* item = ClistCtrlViewEx::ItemOfKey(PressOf(*event).key);
    if (item != nullptr && currentIndex().isValid()) {
        return TellEvent(currentIndex().row(), item);
    }
    QListView::keyPressEvent(event);
}

bool RemarkListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QListView::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto parts = PartsOf(indexAt(help->pos()));
    const SubItem* part = TipAt(parts, help->pos());
    if (part == nullptr) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(help->globalPos(), part->toolTip, viewport(), part->rect);
    }
    return true;
}

void RemarkListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (showing_ || !current.isValid()) {
        return;
    }
    QTimer::singleShot(0, this, [this, row = current.row()] {
        if (reports_.selected) {
            reports_.selected(row);
        }
    });
}

}  // namespace Tarvik::Seaplan

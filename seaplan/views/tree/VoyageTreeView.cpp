// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/VoyageTreeView.h"

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/views/skin/Palette.h"
#include "seaplan/views/skin/ToolWindow.h"
#include "seaplan/views/tree/RowDelegate.h"
#include "seaplan/views/tree/VoyageTreeWidget.h"

#include <QCursor>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QToolTip>
#include <QVBoxLayout>

namespace Tarvik::Seaplan {

VoyageTreeView::VoyageTreeView(QWidget* parent)
    : QTreeView(parent),
      model_(new QStandardItemModel(this)),
      rows_(std::make_unique<VoyageTreeWidget>(*this)) {
    setObjectName(QStringLiteral("voyageTree"));
    setModel(model_);
    setItemDelegate(new RowDelegate(this));
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(0);
    setItemsExpandable(false);
    setUniformRowHeights(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    rename_ = new QLineEdit(viewport());
    rename_->setObjectName(QStringLiteral("renameEditor"));
    rename_->hide();
    rename_->installEventFilter(this);
}

VoyageTreeView::~VoyageTreeView() = default;

TreeRows& VoyageTreeView::Rows() {
    return *rows_;
}

TreeWidget& VoyageTreeView::Widget() {
    return *rows_;
}

TreeRow VoyageTreeView::rowAt(const QPoint& point) const {
    const QModelIndex index = indexAt(point);
    return index.isValid() ? index.data(Qt::UserRole).toInt() : kNoRow;
}

std::vector<SubItem> VoyageTreeView::PartsOf(TreeRow row) const {
    const TreeRowState* state = rows_->Row(row);
    if (state == nullptr) return {};
    const Rect place = rows_->GetItemRect(row);
    QFont plain = font();
    plain.setPixelSize(kTextPixels);
    plain.setBold(state->parent == kNoRow);
    const QFontMetrics metrics(plain);
    const QRect rect(place.left, place.top, place.right - place.left, place.bottom - place.top);
    return LayoutRow(*state, rect, rows_->Selected() == row,
                     [&](const QString& text) { return metrics.horizontalAdvance(text) + 2; });
}

std::vector<SubItem> VoyageTreeView::clickableOf(TreeRow row) const {
    std::vector<SubItem> parts = PartsOf(row);
    std::erase_if(parts, [](const SubItem& part) { return !part.clickable; });
    return parts;
}

std::string VoyageTreeView::FocusedPart() const {
    const auto parts = clickableOf(rows_->Selected());
    return focusPart_ < 0 || focusPart_ >= static_cast<int>(parts.size()) ? std::string()
                                                                          : parts[focusPart_].name;
}

void VoyageTreeView::press(TreeRow row, bool onItem) {
    const bool category = row != kNoRow && rows_->GetParentItem(row) == kNoRow;
    if (category && !onItem) rows_->SetExpanded(row, !rows_->IsItemExpanded(row));
    if (reports_.pressed) reports_.pressed(row);
}

void VoyageTreeView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    setFocus(Qt::MouseFocusReason);
    pressedRow_ = rowAt(event->pos());
    const auto parts = PartsOf(pressedRow_);
    const SubItem* part = SubItemAt(parts, event->pos());
    pressedItem_ = part == nullptr ? std::string() : part->name;
    press(pressedRow_, part != nullptr);
}

void VoyageTreeView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || pressedItem_.empty()) return;
    const TreeRow row = pressedRow_;
    const std::string item = std::exchange(pressedItem_, {});
    if (rows_->Row(row) != nullptr && rowAt(event->pos()) == row && reports_.clicked)
        reports_.clicked(row, item);
}

void VoyageTreeView::stepRow(int by) {
    QModelIndex index;
    if (QStandardItem* item = rows_->ItemOf(rows_->Selected())) index = item->index();
    if (!index.isValid() && currentIndex().isValid()) index = currentIndex();
    const QModelIndex next = !index.isValid() ? model_->index(0, 0)
                             : by > 0         ? indexBelow(index)
                                              : indexAbove(index);
    if (!next.isValid()) return;
    setCurrentIndex(next);
    if (reports_.pressed) reports_.pressed(next.data(Qt::UserRole).toInt());
}

void VoyageTreeView::keyPressEvent(QKeyEvent* event) {
    const TreeRow row = currentIndex().data(Qt::UserRole).toInt();
    switch (event->key()) {
        case Qt::Key_Down:
            return stepRow(1);
        case Qt::Key_Up:
            return stepRow(-1);
        case Qt::Key_Right:
        case Qt::Key_Left:
            if (rows_->GetParentItem(row) == kNoRow &&
                rows_->IsItemExpanded(row) != (event->key() == Qt::Key_Right)) {
                press(row, false);
            }
            return;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter: {
            const std::string part = FocusedPart();
            if (part.empty()) {
                press(row, false);
            } else if (reports_.clicked) {
                reports_.clicked(rows_->Selected(), part);
            }
            return;
        }
        default:
            event->ignore();
    }
}

bool VoyageTreeView::focusNextPrevChild(bool next) {
    const int count = static_cast<int>(clickableOf(rows_->Selected()).size());
    const int target = focusPart_ + (next ? 1 : -1);
    if (!hasFocus() || target < -1 || target >= count) {
        focusPart_ = -1;
        viewport()->update();
        return QTreeView::focusNextPrevChild(next);
    }
    focusPart_ = target;
    viewport()->update();
    return true;
}

void VoyageTreeView::relayout() {
    scheduleDelayedItemsLayout();
    viewport()->update();
}

void VoyageTreeView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model_->rowCount() > 0) return;
    QPainter painter(viewport());
    painter.setPen(Skin().secondary);
    painter.drawText(viewport()->rect().adjusted(16, 24, -16, -16),
                     Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, emptyHint_);
}

bool VoyageTreeView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QTreeView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (const SubItem& part : PartsOf(rowAt(help->pos()))) {
        if (!part.rect.contains(help->pos()) || part.toolTip.isEmpty()) continue;
        QToolTip::showText(help->globalPos(), part.toolTip, viewport(), part.rect);
        return true;
    }
    QToolTip::hideText();
    return true;
}

bool VoyageTreeView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == rename_ && reports_.renameDone) {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                reports_.renameDone();
                setFocus();
                return true;
            }
        } else if (event->type() == QEvent::FocusOut &&
                   static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
            reports_.renameDone();
        }
    }
    return QTreeView::eventFilter(watched, event);
}

void VoyageTreeView::showSortPanel(const std::string& ci, int sortKey) {
    if (sortPanel_ != nullptr && sortPanel_->isVisible()) return;
    delete sortPanel_;
    sortPanel_ = new QFrame(this, Qt::Popup);
    sortPanel_->setObjectName(QStringLiteral("popup"));
    sortPanel_->setStyleSheet(SkinStyleSheet());
    auto* rows = new QVBoxLayout(sortPanel_);
    rows->setContentsMargins(8, 6, 8, 6);
    const std::pair<TextId, int> choices[] = {{TextId::IDS_VOY_SORTBYNAME, SortByName},
                                              {TextId::IDS_VOY_SORTBYDATE, SortByDate}};
    for (const auto& [id, key] : choices) {
        auto* radio = new QRadioButton(QString::fromStdString(Text(id)), sortPanel_);
        radio->setObjectName(key == SortByName ? QStringLiteral("sortByName") : QStringLiteral("sortByDate"));
        Describe(radio, radio->text());
        radio->setChecked(key == sortKey);
        QObject::connect(radio, &QRadioButton::clicked, this,
                         [this, ci, chosen = key] { reports_.sortChosen(ci, chosen); });
        rows->addWidget(radio);
    }
    sortPanel_->resize(180, 60);
    sortPanel_->move(QCursor::pos());
    sortPanel_->show();
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/VoyageTreeWidget.h"

#include <QCursor>

#include "seaplan/panels/tree/TreeKeys.h"
#include "seaplan/views/tree/TreeReach.h"
#include "seaplan/views/tree/VoyageTreeView.h"

namespace Tarvik::Seaplan {

QStandardItem* VoyageTreeWidget::ItemOf(TreeRow row) const {
    const auto it = items_.find(row);
    return it == items_.end() ? nullptr : it->second.item;
}

const std::vector<TreeRow>& VoyageTreeWidget::ShownRows() const {
    if (!shownKnown_) {
        shown_ = RowsOnScreen(*this);
        shownKnown_ = true;
    }
    return shown_;
}

Rect VoyageTreeWidget::GetItemRect(TreeRow row) const {
    QStandardItem* item = ItemOf(row);
    if (item == nullptr) {
        return {};
    }
    const QRect rect = view_.visualRect(item->index());
    return {0, rect.top(), view_.viewport()->width(), rect.bottom() + 1};
}

void VoyageTreeWidget::SetCursor(TreeRow row) {
    QStandardItem* item = ItemOf(row);
    if (item == nullptr) {
        return;
    }
    if (view_.currentIndex() != item->index()) {
        view_.focusPart_ = -1;
        view_.setCurrentIndex(item->index());
    }
    // Rows may have come back above the one that had the keyboard already.
    view_.scrollTo(item->index());
}

void VoyageTreeWidget::SetBusy(bool busy) {
    if (busy) {
        view_.viewport()->setCursor(Qt::BusyCursor);
    } else {
        view_.viewport()->unsetCursor();
    }
}

void VoyageTreeWidget::ShowAtPointer(void* window) {
    auto* shown = static_cast<QWidget*>(window);
    shown->move(QCursor::pos() - QPoint(18, 5));
    shown->show();
}

void VoyageTreeWidget::SetEnabled(bool enabled) {
    if (!keyboard_.SetEnabled(view_, enabled)) {
        view_.setFocus();
    }
}

void* VoyageTreeWidget::Handle() const {
    return view_.window();
}

void VoyageTreeWidget::RowInserted(TreeRow row) {
    shownKnown_ = false;
    auto* item = new QStandardItem(QString::fromStdString(GetItemText(row)));
    item->setData(row, Qt::UserRole);
    item->setEditable(false);
    QStandardItem* parent = ItemOf(GetParentItem(row));
    (parent == nullptr ? view_.model_->invisibleRootItem() : parent)->appendRow(item);
    items_[row] = {item, GetItemText(row)};
}

void VoyageTreeWidget::RowRemoving(TreeRow row) {
    shownKnown_ = false;
    QStandardItem* item = ItemOf(row);
    if (item == nullptr) {
        return;
    }
    items_.erase(row);
    QStandardItem* parent = item->parent();
    (parent == nullptr ? view_.model_->invisibleRootItem() : parent)->removeRow(item->row());
}

void VoyageTreeWidget::RowsCleared() {
    shownKnown_ = false;
    items_.clear();
    view_.model_->removeRows(0, view_.model_->rowCount());
    view_.focusPart_ = -1;
}

void VoyageTreeWidget::RowChanged(TreeRow row) {
    const auto shown = items_.find(row);
    const TreeRowState* state = Row(row);
    if (shown == items_.end() || state == nullptr) {
        return;
    }
    // Called many times a row while rows are made, seldom for its text.
    if (shown->second.text != state->text) {
        shown->second.text = state->text;
        shown->second.item->setText(QString::fromStdString(state->text));
    }
    view_.viewport()->update();
}

void VoyageTreeWidget::RowSelected(TreeRow row) {
    QStandardItem* item = ItemOf(row);
    // A command selects its row again; the keyboard stays on the item, or the next Enter would press another.
    const bool stays = item != nullptr && view_.currentIndex() == item->index();
    if (!stays) {
        view_.focusPart_ = -1;
    }
    if (item != nullptr && !stays) {
        view_.setCurrentIndex(item->index());
    }
    view_.Relayout();
}

void VoyageTreeWidget::RowFindingSet(TreeRow row, RowFinding finding) {
    shownKnown_ = false;
    if (QStandardItem* item = ItemOf(row)) {
        const QModelIndex index = item->index();
        view_.setRowHidden(index.row(), index.parent(), finding == RowFinding::Aside);
        view_.viewport()->update();
    }
}

void VoyageTreeWidget::RowExpanded(TreeRow row, bool expanded) {
    shownKnown_ = false;
    QStandardItem* item = ItemOf(row);
    if (item != nullptr) {
        view_.setExpanded(item->index(), expanded);
        TellFolding(view_, row);
    }
}

}  // namespace Tarvik::Seaplan

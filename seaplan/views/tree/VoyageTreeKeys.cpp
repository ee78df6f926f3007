// SPDX-License-Identifier: MIT
/// The keyboard's ways through the tree, and the menu of a row.
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/views/tree/VoyageTreeView.h"
#include "seaplan/views/tree/VoyageTreeWidget.h"

namespace Tarvik::Seaplan {

void VoyageTreeView::StepRow(int by) {
    QModelIndex index;
    if (QStandardItem* item = rows_->ItemOf(rows_->Selected())) {
        index = item->index();
    }
    if (!index.isValid() && currentIndex().isValid()) {
        index = currentIndex();
    }
    const QModelIndex next = !index.isValid() ? model_->index(0, 0)
                             : by > 0         ? indexBelow(index)
                                              : indexAbove(index);
    if (!next.isValid()) {
        return;
    }
    setCurrentIndex(next);
    if (reports_.pressed) {
        reports_.pressed(next.data(Qt::UserRole).toInt());
    }
}

TreeRow VoyageTreeView::KeyRow() const {
    if (rows_->Selected() != kNoRow) {
        return rows_->Selected();
    }
    return currentIndex().isValid() ? currentIndex().data(Qt::UserRole).toInt() : kNoRow;
}

bool VoyageTreeView::ClickItem(TreeRow row, std::initializer_list<const char*> items) {
    for (const char* item : items) {
        if (!rows_->IsItemVisible(row, item)) {
            continue;
        }
        if (reports_.clicked) {
            reports_.clicked(row, item);
        }
        return true;
    }
    return false;
}

void VoyageTreeView::PressKey() {
    const TreeRow row = KeyRow();
    const std::string part = FocusedPart();
    if (!part.empty()) {
        if (reports_.clicked) {
            reports_.clicked(rows_->Selected(), part);
        }
    } else if (!ClickItem(row, {Item::kPortCalls})) {
        Press(row, false);
    }
}

void VoyageTreeView::InsertKey() {
    const TreeRow row = KeyRow();
    const TreeRow parent = rows_->GetParentItem(row);
    if (!ClickItem(parent == kNoRow ? row : parent, {Item::kAddVoyage}) && reports_.addCategory) {
        reports_.addCategory();
    }
}

bool VoyageTreeView::FoldKey(int key) {
    const TreeRow row = KeyRow();
    const bool open = key == Qt::Key_Right;
    if (rows_->GetParentItem(row) == kNoRow) {
        if (rows_->IsItemExpanded(row) != open) {
            Press(row, false);
        }
    } else if (!open && reports_.pressed) {
        const TreeRow parent = rows_->GetParentItem(row);
        setCurrentIndex(rows_->ItemOf(parent)->index());
        reports_.pressed(parent);
    }
    return true;
}

bool VoyageTreeView::RowKey(int key) {
    const TreeRow row = KeyRow();
    switch (key) {
        case Qt::Key_Down:
        case Qt::Key_Up:
            StepRow(key == Qt::Key_Down ? 1 : -1);
            return true;
        case Qt::Key_Right:
        case Qt::Key_Left:
            return FoldKey(key);
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            PressKey();
            return true;
        case Qt::Key_F2:
            return ClickItem(row, {Item::kRenameCategory, Item::kRenameVoyage});
        case Qt::Key_Delete:
            return ClickItem(
                row, {Item::kDeleteCategory, Item::kDeleteVoyage, Item::kClearCategory, Item::kClearVoyage});
        case Qt::Key_Insert:
            InsertKey();
            return true;
        default:
            return false;
    }
}

void VoyageTreeView::keyPressEvent(QKeyEvent* event) {
    if (!RowKey(event->key())) {
        event->ignore();
    }
}

void VoyageTreeView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const TreeRow row = byKey ? KeyRow() : RowAt(event->pos());
    const TreeRowState* state = rows_->Row(row);
    if (state == nullptr) {
        return;
    }
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("rowMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(Skin::StyleSheet());
    for (const SubItem& part : LayOut(*state, {0, 0, viewport()->width(), 0}, true)) {
        if (!part.clickable || part.toolTip.isEmpty()) {
            continue;
        }
        QAction* action =
            menu->addAction(Skin::MakeIcon(part.icon), part.toolTip, this, [this, row, item = part.name] {
                if (reports_.clicked) {
                    reports_.clicked(row, item);
                }
            });
        action->setEnabled(part.enabled);
    }
    menu->popup(byKey ? viewport()->mapToGlobal(visualRect(rows_->ItemOf(row)->index()).center())
                      : event->globalPos());
}

}  // namespace Tarvik::Seaplan

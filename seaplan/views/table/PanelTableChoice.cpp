// SPDX-License-Identifier: MIT
/// The row in front, and those that are chosen with it.
#include <QKeyEvent>
#include <algorithm>

#include "seaplan/views/table/PanelTable.h"

namespace Tarvik::Seaplan {

void PanelTable::PutFront(int row, int column) {
    setting_ = true;
    if (row < 0) {
        setCurrentIndex({});
        clearSelection();
    } else if (currentIndex().row() != row) {
        setCurrentIndex(model_.index(row, currentIndex().isValid() ? currentIndex().column() : column));
    } else {
        // QTableView::selectRow would take the front to the first column.
        selectionModel()->select(currentIndex(),
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    setting_ = false;
}

std::vector<int> PanelTable::ChosenRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void PanelTable::PutCellInFront(const QModelIndex& cell) {
    if (selectionModel()->isRowSelected(cell.row())) {
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    } else {
        setCurrentIndex(cell);
    }
}

void PanelTable::ChooseUpTo(const QModelIndex& index) {
    const int from = anchor_;
    const QItemSelection rows(model_.index(from, 0), model_.index(index.row(), 0));
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    anchor_ = from;
    scrollTo(index);
}

/// A click with Shift or Ctrl chooses and edits nothing.
bool PanelTable::ChooseByMouse(const QModelIndex& index, Qt::KeyboardModifiers held) {
    const bool shift = held.testFlag(Qt::ShiftModifier) && anchor_ >= 0 && anchor_ < model_.rowCount();
    if (!CanChooseSeveral() || (!shift && !held.testFlag(Qt::ControlModifier))) {
        return false;
    }
    TellLeft();
    if (shift) {
        ChooseUpTo(index);
    } else {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
    }
    return true;
}

bool PanelTable::ChooseByKey(KeyPress press) {
    const ChoosingStep step = CanChooseSeveral() ? StepOfChoosing(press) : ChoosingStep::None;
    if (step == ChoosingStep::None || anchor_ < 0 || anchor_ >= model_.rowCount()) {
        return false;
    }
    const int row = currentIndex().row() + (step == ChoosingStep::Above ? -1 : 1);
    if (const QModelIndex next = model_.index(row, currentIndex().column()); next.isValid()) {
        ChooseUpTo(next);
    }
    return true;
}

/// Going to another column of the row in front leaves the rows that are chosen.
QItemSelectionModel::SelectionFlags PanelTable::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
    const bool plainKey = event != nullptr && event->type() == QEvent::KeyPress &&
                          static_cast<const QKeyEvent*>(event)->modifiers() == Qt::NoModifier;
    if (CanChooseSeveral() && plainKey && index.isValid() && index.row() == currentIndex().row() &&
        index.column() != currentIndex().column()) {
        return QItemSelectionModel::Select | QItemSelectionModel::Rows;
    }
    return QTableView::selectionCommand(index, event);
}

}  // namespace Tarvik::Seaplan

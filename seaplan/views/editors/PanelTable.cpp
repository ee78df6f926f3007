// SPDX-License-Identifier: MIT
#include "seaplan/views/editors/PanelTable.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

#include "seaplan/views/editors/QtKeys.h"

namespace Tarvik::Seaplan {

void SetUpRows(QAbstractItemView& rows) {
    rows.setEditTriggers(QAbstractItemView::NoEditTriggers);
    rows.setSelectionMode(QAbstractItemView::SingleSelection);
    rows.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    rows.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

PanelTable::PanelTable(QWidget* parent, const char* name) : QTableView(parent) {
    setObjectName(QString::fromLatin1(name));
    SetUpRows(*this);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(kTableRow);
    verticalHeader()->setDefaultSectionSize(kTableRow);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(kTableHeader);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(20);
    horizontalHeader()->setStretchLastSection(true);
    QObject::connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { TellLeft(); });
    QObject::connect(horizontalHeader(), &QHeaderView::sectionPressed, this, [this] { TellLeft(); });
}

void PanelTable::TellLeft() {
    if (reports_.left && !IsSetting()) {
        reports_.left();
    }
}

void PanelTable::FixWidths(const std::vector<int>& widths) {
    int total = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (std::size_t column = 0; column < widths.size(); ++column) {
        setColumnWidth(static_cast<int>(column), widths[column]);
        total += widths[column];
    }
    setMinimumWidth(total + 4);
}

QRect PanelTable::EditorRect(int row, int column) const {
    QRect rect = visualRect(model()->index(row, column));
    if (rect.bottom() >= viewport()->height()) {
        rect.translate(0, -kTableRow);
    }
    return rect;
}

void PanelTable::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    setFocus(Qt::MouseFocusReason);
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid()) {
        return TellLeft();
    }
    PutPressed(index);
    const std::string image = ImageAt(index, event->pos());
    if (!image.empty()) {
        if (reports_.imageClicked) {
            reports_.imageClicked(index.row(), image);
        }
    } else if (IsCell(index) && reports_.cellClicked) {
        reports_.cellClicked(index.row(), index.column());
    }
}

void PanelTable::keyPressEvent(QKeyEvent* event) {
    const QModelIndex index = currentIndex();
    if (index.isValid() && reports_.key && reports_.key(PressOf(*event), index.row(), index.column())) {
        return;
    }
    QTableView::keyPressEvent(event);
}

void PanelTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!IsSetting() && current.isValid() && current.row() != previous.row() && reports_.rowSelected) {
        reports_.rowSelected(current.row());
    }
}

}  // namespace Tarvik::Seaplan

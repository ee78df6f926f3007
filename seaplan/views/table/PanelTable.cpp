// SPDX-License-Identifier: MIT
#include "seaplan/views/table/PanelTable.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/table/TableModel.h"

namespace Tarvik::Seaplan {

void SetUpRows(QAbstractItemView& rows) {
    rows.setEditTriggers(QAbstractItemView::NoEditTriggers);
    rows.setSelectionMode(QAbstractItemView::SingleSelection);
    rows.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    rows.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

PanelTable::PanelTable(QWidget* parent, const char* name, int leastLines) : QTableView(parent) {
    setModel(&model_);
    setItemDelegate(new TableDelegate(this));
    setMouseTracking(true);
    setMinimumHeight(kTableHeader + leastLines * kTableRow + 4);
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
    if (reports_.left && !setting_) {
        reports_.left();
    }
}

void PanelTable::ShowColumns(std::vector<TableColumn> columns) {
    model_.ShowColumns(std::move(columns));
    int total = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (std::size_t column = 0; column < model_.Columns().size(); ++column) {
        setColumnWidth(static_cast<int>(column), model_.Columns()[column].width);
        total += model_.Columns()[column].width;
    }
    setMinimumWidth(total + 4);
}

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

bool PanelTable::IsCell(const QModelIndex& index) const {
    return model_.Columns()[static_cast<std::size_t>(index.column())].cells;
}

std::string PanelTable::ImageAt(const QModelIndex& index, const QPoint& point) const {
    return TableDelegate::ImageAt(model_.CellAt(index).images, visualRect(index), point);
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
    setting_ = true;
    setCurrentIndex(index);
    setting_ = false;
    const std::string image = ImageAt(index, event->pos());
    if (!image.empty()) {
        if (reports_.imageClicked) {
            reports_.imageClicked(index.row(), image);
        }
    } else if (!IsCell(index)) {
        TellLeft();
    } else if (reports_.cellClicked) {
        reports_.cellClicked(index.row(), index.column());
    }
}

void PanelTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        const QString rows = RowsAsText(model_);
        if (!rows.isEmpty()) {
            QApplication::clipboard()->setText(rows);
        }
        return;
    }
    const QModelIndex index = currentIndex();
    if (index.isValid() && reports_.key && reports_.key(PressOf(*event), index.row(), index.column())) {
        return;
    }
    QTableView::keyPressEvent(event);
}

void PanelTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!setting_ && current.isValid() && current.row() != previous.row() && reports_.rowSelected) {
        reports_.rowSelected(current.row());
    }
}

bool PanelTable::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        const std::string image = index.isValid() ? ImageAt(index, help->pos()) : std::string();
        const QString tip = image.empty() ? QString() : model_.ImageTipAt(index, image);
        if (!tip.isEmpty()) {
            QToolTip::showText(help->globalPos(), tip, viewport());
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

}  // namespace Tarvik::Seaplan

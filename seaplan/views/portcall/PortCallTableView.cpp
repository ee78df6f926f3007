// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallTableView.h"

#include "seaplan/views/portcall/PortCallDelegate.h"
#include "seaplan/views/portcall/PortCallModel.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

namespace Tarvik::Seaplan {

namespace {

constexpr int kRowHeight = 20;
constexpr int kHeaderHeight = 34;
constexpr int kWidths[] = {35, 120, 40, 45, 55, 55, 55, 125, 125, 60, 66};

}  // namespace

PortCallTableView::PortCallTableView(QWidget* parent) : QTableView(parent) {
    setObjectName(QStringLiteral("portCallTable"));
    setItemDelegate(new PortCallDelegate(this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setTabKeyNavigation(false);
    setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(kHeaderHeight);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(20);
    QObject::connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (reports_.left) reports_.left();
    });
    QObject::connect(horizontalHeader(), &QHeaderView::sectionPressed, this, [this] {
        if (reports_.left) reports_.left();
    });
}

void PortCallTableView::ApplyWidths() {
    int total = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < static_cast<int>(std::size(kWidths)); ++column) {
        setColumnWidth(column, kWidths[column]);
        total += kWidths[column];
    }
    setMinimumWidth(total + 4);
}

QRect PortCallTableView::EditorRect(int row, int column) const {
    QRect rect = visualRect(model()->index(row, column));
    if (rect.bottom() >= viewport()->height()) rect.translate(0, -kRowHeight);
    return rect;
}

void PortCallTableView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    setFocus(Qt::MouseFocusReason);
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid()) {
        if (reports_.left) reports_.left();
        return;
    }
    selectRow(index.row());
    if (index.column() != PortCallModel::kImageColumn) {
        if (reports_.cellClicked) reports_.cellClicked(index.row(), index.column());
        return;
    }
    const std::string image = PortCallDelegate::ImageAt(visualRect(index), event->pos());
    if (!image.empty() && reports_.imageClicked) reports_.imageClicked(index.row(), image);
}

void PortCallTableView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex index = currentIndex();
    const bool open =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F2;
    if (!open || !index.isValid()) return QTableView::keyPressEvent(event);
    if (reports_.cellClicked) reports_.cellClicked(index.row(), index.column());
}

bool PortCallTableView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        if (index.isValid() && index.column() == PortCallModel::kImageColumn) {
            const std::string image = PortCallDelegate::ImageAt(visualRect(index), help->pos());
            if (index.data(PortCallModel::kImagesRole).toBool()) {
                QToolTip::showText(help->globalPos(), PortCallDelegate::ImageTip(image), viewport());
            }
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

}  // namespace Tarvik::Seaplan

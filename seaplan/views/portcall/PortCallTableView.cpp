// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallTableView.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/editors/TableMeasures.h"
#include "seaplan/views/portcall/PortCallDelegate.h"
#include "seaplan/views/portcall/PortCallModel.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kImagesWidth = 86;

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
    verticalHeader()->setMinimumSectionSize(kTableRow);
    verticalHeader()->setDefaultSectionSize(kTableRow);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(kTableHeader);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(20);
    horizontalHeader()->setStretchLastSection(true);
    QObject::connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (reports_.left) {
            reports_.left();
        }
    });
    QObject::connect(horizontalHeader(), &QHeaderView::sectionPressed, this, [this] {
        if (reports_.left) {
            reports_.left();
        }
    });
}

void PortCallTableView::ApplyWidths() {
    int total = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int column = 0; column <= kPortCallColumnCount; ++column) {
        const int width = column < kPortCallColumnCount ? kPortCallColumns[column].width : kImagesWidth;
        setColumnWidth(column, width);
        total += width;
    }
    setMinimumWidth(total + 4);
}

QRect PortCallTableView::EditorRect(int row, int column) const {
    QRect rect = visualRect(model()->index(row, column));
    if (rect.bottom() >= viewport()->height()) {
        rect.translate(0, -kTableRow);
    }
    return rect;
}

void PortCallTableView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    setFocus(Qt::MouseFocusReason);
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid()) {
        if (reports_.left) {
            reports_.left();
        }
        return;
    }
    setCurrentIndex(index);
    if (index.column() != PortCallModel::kImageColumn) {
        if (reports_.cellClicked) {
            reports_.cellClicked(index.row(), index.column());
        }
        return;
    }
    const std::string image = PortCallDelegate::ImageAt(visualRect(index), event->pos());
    if (!image.empty()) {
        PressImage(index.row(), image);
    }
}

void PortCallTableView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex index = currentIndex();
    if (index.isValid() && reports_.key && reports_.key(PressOf(*event), index.row(), index.column())) {
        return;
    }
    QTableView::keyPressEvent(event);
}

void PortCallTableView::PressImage(int row, const std::string& image) {
    if (reports_.imageClicked) {
        reports_.imageClicked(row, image);
    }
}

bool PortCallTableView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        if (index.isValid() && index.column() == PortCallModel::kImageColumn) {
            const std::string image = PortCallDelegate::ImageAt(visualRect(index), help->pos());
            if (index.data(PortCallModel::kImagesRole).toBool()) {
                const auto* rows = static_cast<const PortCallModel*>(index.model());
                QToolTip::showText(help->globalPos(),
                                   PortCallDelegate::ImageTip(image, rows->ActionsAt(index.row())),
                                   viewport());
            }
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

}  // namespace Tarvik::Seaplan

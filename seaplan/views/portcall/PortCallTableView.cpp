// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallTableView.h"

#include <QHelpEvent>
#include <QToolTip>

#include "seaplan/views/portcall/PortCallDelegate.h"
#include "seaplan/views/portcall/PortCallModel.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kImagesWidth = 86;

}  // namespace

PortCallTableView::PortCallTableView(QWidget* parent) : PanelTable(parent, "portCallTable") {
    setItemDelegate(new PortCallDelegate(this));
    setMouseTracking(true);
}

void PortCallTableView::ApplyWidths() {
    std::vector<int> widths;
    widths.reserve(kPortCallColumns.size() + 1);
    for (const auto& column : kPortCallColumns) {
        widths.push_back(column.width);
    }
    widths.push_back(kImagesWidth);
    FixWidths(widths);
}

bool PortCallTableView::IsCell(const QModelIndex& index) const {
    return index.column() != PortCallModel::kImageColumn;
}

std::string PortCallTableView::ImageAt(const QModelIndex& index, const QPoint& point) const {
    return IsCell(index) ? std::string() : PortCallDelegate::ImageAt(visualRect(index), point);
}

bool PortCallTableView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        if (index.isValid() && !IsCell(index)) {
            const std::string image = ImageAt(index, help->pos());
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

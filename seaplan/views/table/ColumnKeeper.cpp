// SPDX-License-Identifier: MIT
#include "seaplan/views/table/ColumnKeeper.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <utility>

#include <tarvik/skin/Palette.h>

#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

ColumnKeeper::ColumnKeeper(PanelTable& table, KeptColumns kept, std::function<void()> show)
    : QObject(&table),
      table_(table),
      headsArea_(table.horizontalHeader()->viewport()),
      kept_(std::move(kept)),
      show_(std::move(show)) {
    QHeaderView* heads = table.horizontalHeader();
    heads->setSectionResizeMode(QHeaderView::Interactive);
    connect(heads, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        // The program sets widths too, but only a person drags.
        if (QApplication::mouseButtons().testFlag(Qt::LeftButton)) {
            kept_.SetWidth(static_cast<std::size_t>(column), width);
        }
    });
    connect(heads, &QHeaderView::sectionHandleDoubleClicked, this, [this](int column) { Fit(column); });
    headsArea_->installEventFilter(this);
    table.installEventFilter(this);
}

std::vector<TableColumn> ColumnKeeper::AsWanted(std::vector<TableColumn> columns) const {
    const std::vector<KeptColumn>& kept = kept_.Columns();
    for (std::size_t i = 0; i < kept.size() && i < columns.size(); ++i) {
        columns[i].width = kept[i].width.value_or(columns[i].width);
        columns[i].hidden = kept[i].hidden;
    }
    return columns;
}

QMenu* ColumnKeeper::MakeMenu(QWidget* parent) {
    auto* menu = new QMenu(ViewText(TextIds::IDS_VIEW_COLUMNS), parent);
    menu->setObjectName(QStringLiteral("columnsMenu"));
    menu->setStyleSheet(Skin::StyleSheet());
    const std::vector<KeptColumn>& kept = kept_.Columns();
    for (std::size_t i = 0; i < kept.size(); ++i) {
        const QString title =
            table_.model()->headerData(static_cast<int>(i), Qt::Horizontal, Qt::DisplayRole).toString();
        QAction* action = menu->addAction(title.simplified());
        action->setCheckable(true);
        action->setChecked(!kept[i].hidden);
        action->setEnabled(kept[i].canHide);
        connect(action, &QAction::toggled, this, [this, i](bool shown) {
            kept_.SetHidden(i, !shown);
            Changed();
        });
    }
    menu->addSeparator();
    QAction* usual = menu->addAction(ViewText(TextIds::IDS_VIEW_COLUMNSUSUAL));
    usual->setObjectName(QStringLiteral("usualColumns"));
    connect(usual, &QAction::triggered, this, [this] {
        kept_.Reset();
        Changed();
    });
    return menu;
}

bool ColumnKeeper::eventFilter(QObject* watched, QEvent* event) {
    // Events reach this while the table is taken down too, so that it is asked about a menu alone.
    const bool heads = watched == headsArea_;
    // A table with a menu of its own shows this one in it.
    const bool menu = event->type() == QEvent::ContextMenu &&
                      (heads || table_.contextMenuPolicy() == Qt::DefaultContextMenu);
    if (menu) {
        QMenu* columns = MakeMenu(&table_);
        columns->setAttribute(Qt::WA_DeleteOnClose);
        columns->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (heads && event->type() == QEvent::MouseButtonRelease) {
        kept_.Save();
        // The window gives a wider column room once the heads are done with the drag.
        QMetaObject::invokeMethod(this, show_, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void ColumnKeeper::Fit(int column) {
    table_.resizeColumnToContents(column);
    kept_.SetWidth(static_cast<std::size_t>(column), table_.columnWidth(column));
    Changed();
}

void ColumnKeeper::Changed() {
    kept_.Save();
    show_();
}

}  // namespace Tarvik::Seaplan

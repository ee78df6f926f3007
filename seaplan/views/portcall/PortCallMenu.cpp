// SPDX-License-Identifier: MIT
#include <QMenu>

#include <tarvik/skin/Palette.h>

#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/texts/WhatIfTexts.h"
#include "seaplan/views/portcall/PortCallButtons.h"
#include "seaplan/views/table/ColumnKeeper.h"
#include "seaplan/views/table/PanelTable.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

void OpenPortCallMenu(PanelTable& table, CPortCallPanelDlg& panel, ColumnKeeper& columns, const QPoint& at) {
    auto* menu = new QMenu(&table);
    menu->setObjectName(QStringLiteral("portCallMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(Skin::StyleSheet());
    menu->setToolTipsVisible(true);
    const int row = table.currentIndex().row();
    const int column = table.currentIndex().column();
    const auto add = [menu](TextId text, const char* key, const std::function<void()>& report) {
        QAction* action = menu->addAction(ViewText(text) + QStringLiteral("\t") + QString::fromLatin1(key));
        QObject::connect(action, &QAction::triggered, menu, report);
        return action;
    };
    QAction* anew = add(TextIds::IDS_VIEW_ANEW, "Ctrl+R", [&panel] { panel.Commands().OnRouteAnew(); });
    anew->setObjectName(QStringLiteral("anewAction"));
    anew->setToolTip(ViewText(TextIds::IDS_VIEW_ANEWHINT));
    anew->setEnabled(panel.Sheet().state.canCalculate);
    QAction* ways =
        add(TextIds::IDS_VIEW_WAYS, "Ctrl+Shift+R", [&panel] { panel.Commands().OnCompareWays(); });
    ways->setObjectName(QStringLiteral("waysAction"));
    ways->setToolTip(ViewText(TextIds::IDS_VIEW_WAYSHINT));
    ways->setEnabled(panel.Sheet().state.canCalculate);
    menu->addSeparator();
    RowCommands& rows = panel.Rows();
    const std::vector<QAction*> ofRows = {
        add(TextIds::IDS_VIEW_MENUDELETE, "Delete", [&rows, row] { rows.DeleteChosen(row); }),
        add(TextIds::IDS_VIEW_MENUFILL, "Ctrl+D", [&rows, row, column] { rows.FillDown(row, column); }),
        add(TextIds::IDS_VIEW_MENUPASTE, "Ctrl+V", [&rows, row] { rows.Paste(row); })};
    for (QAction* action : ofRows) {
        action->setEnabled(row >= 0);
    }
    menu->addSeparator();
    menu->addMenu(columns.MakeMenu(menu));
    menu->popup(at);
}

}  // namespace Tarvik::Seaplan

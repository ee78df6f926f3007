// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>

namespace Tarvik::Seaplan {

class CPortCallPanelDlg;
class PanelTable;

/// Opens the commands that the port calls have beside their buttons, on the cell in front, at a point of the
/// screen. Each tells its key.
void OpenPortCallMenu(PanelTable& table, CPortCallPanelDlg& panel, const QPoint& at);

}  // namespace Tarvik::Seaplan

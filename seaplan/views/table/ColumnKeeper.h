// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QObject>
#include <functional>
#include <vector>

#include "seaplan/panels/window/KeptColumns.h"
#include "seaplan/views/table/PanelTable.h"

namespace Tarvik::Seaplan {

/// Lets a person make the columns of a table wider by their heads' borders, fit one by a double click there,
/// and hide them by the menu of the heads, which the table's own menu can show as well.
class ColumnKeeper final : public QObject {
  public:
    /// `show` shows the table's columns anew. Belongs to the table from then on.
    ColumnKeeper(PanelTable& table, KeptColumns kept, std::function<void()> show);

    /// Columns as the person wants them; those behind the kept ones stay as they are.
    std::vector<TableColumn> AsWanted(std::vector<TableColumn> columns) const;
    /// The columns with a mark for what is in sight, and the way back to the usual ones.
    QMenu* MakeMenu(QWidget* parent);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Fit(int column);
    void Changed();

    PanelTable& table_;
    QObject* headsArea_;
    KeptColumns kept_;
    std::function<void()> show_;
};

}  // namespace Tarvik::Seaplan

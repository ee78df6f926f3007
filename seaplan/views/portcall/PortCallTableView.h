// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/views/editors/PanelTable.h"

namespace Tarvik::Seaplan {

/// The table with fixed columns and rows, and the images of each row behind them.
class PortCallTableView final : public PanelTable {
  public:
    explicit PortCallTableView(QWidget* parent);
    /// Widths need the model's columns.
    void ApplyWidths();

  protected:
    std::string ImageAt(const QModelIndex& index, const QPoint& point) const override;
    bool IsCell(const QModelIndex& index) const override;
    bool viewportEvent(QEvent* event) override;
};

}  // namespace Tarvik::Seaplan

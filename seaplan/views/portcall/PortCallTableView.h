// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>
#include <functional>
#include <string>

#include "seaplan/panels/editors/Keys.h"

namespace Tarvik::Seaplan {

/// The table with fixed columns and rows; reports clicks on cells and on row images.
class PortCallTableView final : public QTableView {
  public:
    explicit PortCallTableView(QWidget* parent);
    struct Reports {
        std::function<void(int, int)> cellClicked;
        std::function<void(int, const std::string&)> imageClicked;
        /// A key on the cell in front; false when it means nothing there.
        std::function<bool(KeyPress, int, int)> key;
        std::function<void()> left;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    /// Widths need the model's columns.
    void ApplyWidths();
    /// Rectangle of a cell in the viewport; a cell below the bottom edge moves up by one row.
    QRect EditorRect(int row, int column) const;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    void PressImage(int row, const std::string& image);

    Reports reports_;
};

}  // namespace Tarvik::Seaplan

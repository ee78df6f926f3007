// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>
#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/editors/Keys.h"

namespace Tarvik::Seaplan {

inline constexpr int kTableRow = 20;     ///< height of a row of every table, in pixels
inline constexpr int kTableHeader = 34;  ///< height of its titles

/// How rows are shown in all panels: one of them at a time in front, scrolled by pixels beside a bar that is
/// always there, and edited only by what the panel opens over them.
void SetUpRows(QAbstractItemView& rows);

/// A table with fixed columns and rows over whose cells its panel opens editors. It reports clicks on cells
/// and on the images of rows.
class PanelTable : public QTableView {
  public:
    PanelTable(QWidget* parent, const char* name);
    struct Reports {
        std::function<void(int, int)> cellClicked;
        std::function<void(int, const std::string&)> imageClicked;
        /// A key on the cell in front; false when it means nothing there.
        std::function<bool(KeyPress, int, int)> key;
        std::function<void()> left;
        /// Another row came to the front, by the keyboard.
        std::function<void(int)> rowSelected;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    /// Rectangle of a cell in the viewport; a cell below the bottom edge moves up by one row.
    QRect EditorRect(int row, int column) const;

  protected:
    /// One width a column of the model; the table never gets narrower than all of them.
    void FixWidths(const std::vector<int>& widths);
    /// Name of the row's image under a point of a cell, empty for none.
    virtual std::string ImageAt(const QModelIndex& index, const QPoint& point) const = 0;
    /// Whether a click on this place is one on a cell.
    virtual bool IsCell(const QModelIndex& /*index*/) const { return true; }
    virtual void PutPressed(const QModelIndex& index) { setCurrentIndex(index); }
    /// Whether the program moves the rows or the front, which is reported to nobody.
    virtual bool IsSetting() const { return false; }
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void TellLeft();

    Reports reports_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>
#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/views/table/TableModel.h"

namespace Tarvik::Seaplan {

inline constexpr int kTableRow = 20;     ///< height of a row of every table, in pixels
inline constexpr int kTableHeader = 34;  ///< height of its titles

/// How rows are shown in all panels: one of them at a time in front, scrolled by pixels beside a bar that is
/// always there, and edited only by what the panel opens over them.
void SetUpRows(QAbstractItemView& rows);

/// A table with fixed columns and rows over whose cells its panel opens editors. It shows columns and lines
/// that its panel makes, and reports clicks on cells and on the images of rows. Ctrl+C copies its lines.
class PanelTable final : public QTableView {
  public:
    enum class Choice { OneRow, SeveralRows };

    /// A table of this object name that is so many lines high unless a person makes its window smaller.
    /// Several rows are chosen with Shift, Ctrl and Ctrl+A.
    PanelTable(QWidget* parent, const char* name, int leastLines, Choice choice = Choice::OneRow);
    struct Reports {
        std::function<void(int, int)> cellClicked;
        std::function<void(int, const std::string&)> imageClicked;
        /// A key on the cell in front; false when it means nothing there.
        std::function<bool(KeyPress, int, int)> key;
        std::function<void()> left;
        /// Another row came to the front, by the keyboard.
        std::function<void(int)> rowSelected;
        /// A text was typed on the cell in front, or an input method begins one, which is empty then; false
        /// when it means nothing there.
        std::function<bool(const std::string&, int, int)> typed{};
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    void ShowColumns(std::vector<TableColumn> columns);
    void ShowLines(std::shared_ptr<const TableLines> lines) { model_.ShowLines(std::move(lines)); }
    /// Puts a row in front, none for -1, without a report; the column in front stays, or else becomes
    /// `column`.
    void PutFront(int row, int column);
    /// The rows that are chosen, in order.
    std::vector<int> ChosenRows() const;
    /// Puts a cell in front; where its row is among those chosen they stay so.
    void PutCellInFront(const QModelIndex& cell);
    /// What is told where the pointer rests on a cell: what its line says of it, and its whole text where the
    /// cell shows only the beginning. Empty where that is nothing more than can be read in the cell.
    QString TipOf(const QModelIndex& cell) const;
    /// Rectangle of a cell in the viewport; a cell below the bottom edge moves up by one row.
    QRect EditorRect(int row, int column) const;

  protected:
    /// All columns, as far as a screen has room, and the lines that are always there.
    QSize sizeHint() const override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

  private:
    bool CanChooseSeveral() const { return selectionMode() == QAbstractItemView::ExtendedSelection; }
    bool ChooseByMouse(const QModelIndex& index, Qt::KeyboardModifiers held);
    bool ChooseByKey(KeyPress press);
    void ChooseUpTo(const QModelIndex& index);
    void TellLeft();
    bool TellTyped(const QString& text);
    /// Name of the row's image under a point of a cell, empty for none.
    std::string ImageAt(const QModelIndex& index, const QPoint& point) const;
    /// Whether a click on this place is one on a cell.
    bool IsCell(const QModelIndex& index) const;

    TableModel model_;
    Reports reports_;
    int anchor_ = -1;       ///< row from which Shift chooses on
    int lines_;             ///< for which it wants room
    bool setting_ = false;  ///< the program puts a row in front, which is reported to nobody
};

}  // namespace Tarvik::Seaplan

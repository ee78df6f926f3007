// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/calculation/Schedule.h"

namespace Tarvik::Seaplan {

/// How a row is drawn.
enum class RowClass { Normal, Disabled, Highlighted };

/// One row of cells.
struct TableRow {
    CellTexts cells;
    RowClass look = RowClass::Normal;
    bool unknownPort = false;  ///< no port has the name in the row
};

/// What the images at a row's end can do now.
struct RowActions {
    bool moveUp = false;
    bool moveDown = false;
    bool remove = false;
};

/// The cells of the port call table: numbered rows, the totals row, and after a reset one closing row.
/// Numbers stand in the units on show.
class PortCallTable {
  public:
    static constexpr int kFirstRows = 6;

    PortCallTable() { Reset(); }
    /// Six empty rows, totals row, closing row.
    void Reset();
    int RowCount() const { return rowCount_; }
    const std::vector<TableRow>& Rows() const { return rows_; }
    const std::string& Cell(int row, int column) const { return rows_[row].cells[column]; }
    void SetCell(int row, int column, const std::string& text) { rows_[row].cells[column] = text; }
    bool IsNumbered(int row) const { return row >= 0 && row < rowCount_; }
    /// A row without a port.
    bool IsBlank(int row) const { return IsBlankCell(Cell(row, ColPort)); }

    VoyPortCall ReadRow(int row) const { return CellsToRow(rows_[row].cells); }
    /// The rows with a port; none when row 0 has none.
    PortCallRows ReadRows() const;
    PortCallRows ReadAllRows() const;
    /// Place of a table row among the rows with a port.
    int CompactIndex(int row) const;
    void WriteRow(int row, const VoyPortCall& value) { rows_[row].cells = RowToCells(row, value); }
    /// The last row that stands for a position of the ship and has a distance, -1 without one.
    int FindLastAisRow() const;
    /// Rows up to the last position row, and those behind it. False without a position row.
    bool ReadRowsSplit(PortCallRows& before, PortCallRows& after) const;
    /// All rows anew; more than five rows of a plain voyage rebuild the table with one free row and no
    /// closing row.
    void WriteRows(const PortCallRows& rows, bool corrected = false);
    /// After a row operation: only port, purpose, speed, weather factor and port time. In a corrected voyage
    /// the rows up to the last position keep all cells.
    void WritePartial(const PortCallRows& rows, bool corrected = false);
    /// Rebuilds the table of a corrected voyage; the first `history` rows cannot be edited.
    void ShowHistoryAndPlan(const PortCallRows& rows, std::size_t history);
    /// Figures of the totals row; nothing for fewer than two rows.
    void WriteTotals(const PortCallRows& rows);
    void ClearTotals();
    /// What a row operation on a table row would change.
    RowActions ActionsOf(int row) const;
    /// Marks the rows whose port nobody knows.
    void MarkUnknownPorts(const std::function<bool(const std::string&)>& known);
    /// Blanks columns 1 to 9 of every row.
    void ClearCells();
    /// A free row below the last numbered one, when `row` is that one.
    void GrowIfLast(int row);

  private:
    void Rebuild(int numbered, bool closing);
    void WriteEntered(int row, const VoyPortCall& value);

    int rowCount_ = 0;
    std::vector<TableRow> rows_;
};

}  // namespace Tarvik::Seaplan

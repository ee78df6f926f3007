// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/calculation/NumberForms.h"
#include "seaplan/calculation/Schedule.h"

#include <string>
#include <vector>

namespace Tarvik::Seaplan {

/// How a row is drawn.
enum class RowClass { Normal, Disabled, Highlighted };

/// One row of cells.
struct TableRow {
    CellTexts cells;
    RowClass look = RowClass::Normal;
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
    /// All rows anew; more than five rows rebuild the table with one free row and no closing row.
    void WriteRows(const PortCallRows& rows);
    /// After a row operation: only port, purpose, speed, weather factor and port time.
    void WritePartial(const PortCallRows& rows);
    /// Figures of the totals row; nothing for fewer than two rows.
    void WriteTotals(const PortCallRows& rows);
    void ClearTotals();
    /// Blanks columns 1 to 9 of every row.
    void ClearCells();
    /// A free row below the last numbered one, when `row` is that one.
    void GrowIfLast(int row);

  private:
    void rebuild(int numbered, bool closing);

    int rowCount_ = 0;
    std::vector<TableRow> rows_;
};

}  // namespace Tarvik::Seaplan

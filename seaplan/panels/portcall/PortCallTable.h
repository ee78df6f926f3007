// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "seaplan/calculation/PortCallColumns.h"

namespace Tarvik::Seaplan {

/// A leg up to this many nautical miles has no distance.
inline constexpr double kNoDistance = 0.0001;

/// How a row is drawn.
enum class RowClass { Normal, Disabled, Highlighted };

/// One row: what its cells show, and the record that they tell, with the port's id.
struct TableRow {
    CellTexts cells;
    VoyPortCall record;  ///< no more than the cells show; of a blank time see PortCallTable::ReadRow
    RowClass look = RowClass::Normal;
    bool unknownPort = false;  ///< no port has the name in the row
    bool stale = false;        ///< its computed figures are those of other ports

    /// Takes texts for cells, and what they tell for the record, a figure rounded to what is shown. The id is
    /// that of the port named there.
    void Commit(const CellTexts& texts, std::string portId);
    /// Whether both look alike.
    friend bool operator==(const TableRow& a, const TableRow& b) {
        return a.cells == b.cells && a.record.ppi == b.record.ppi && a.look == b.look &&
               a.unknownPort == b.unknownPort && a.stale == b.stale;
    }
};

/// Names of the images at a row's end, as presses on them are reported.
namespace PortCallImage {

inline constexpr const char* kMoveUp = "itemMoveUp";
inline constexpr const char* kMoveDown = "itemMovedown";
inline constexpr const char* kDelete = "itemdel";
inline constexpr const char* kRemark = "itemRemark";

}  // namespace PortCallImage

/// The port call table: numbered rows, the totals row, and after a reset one closing row. Numbers stand in
/// the units on show. A value: copies are independent of each other.
class PortCallTable {
  public:
    static constexpr int kFirstRows = 6;

    PortCallTable() { Reset(); }
    /// Six empty rows, totals row, closing row.
    void Reset();
    int RowCount() const { return rowCount_; }
    const std::vector<TableRow>& Rows() const { return rows_; }
    const std::string& Cell(int row, int column) const { return rows_[row].cells[column]; }
    /// Another text in a cell; a port is set by SetPort.
    void SetCell(int row, int column, const std::string& text);
    /// A port by name and id; the id is empty for a name that nobody knows.
    void SetPort(int row, const std::string& name, const std::string& id);
    bool IsNumbered(int row) const { return row >= 0 && row < rowCount_; }
    /// A row without a port.
    bool IsBlank(int row) const { return IsBlankCell(Cell(row, ColPort)); }

    /// The row's record; a time whose cell is blank is the present moment, and the first row's ETA the start
    /// that stood there before the last row operation.
    VoyPortCall ReadRow(int row) const;
    /// The rows with a port; none when row 0 has none.
    PortCallRows ReadRows() const;
    PortCallRows ReadAllRows() const;
    /// Place of a table row among the rows with a port.
    int CompactIndex(int row) const;
    void WriteRow(int row, const VoyPortCall& value) { rows_[row].Commit(RowToCells(row, value), value.ppi); }
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
    /// Marks the rows whose port nobody knows, and those behind the first `routed` ports, whose figures are
    /// none of theirs.
    void MarkPorts(const std::function<bool(const std::string&)>& known, int routed);
    /// Blanks columns 1 to 9 of every row, and forgets the start.
    void ClearCells();
    /// A free row below the last numbered one, when `row` is that one.
    void GrowIfLast(int row);
    friend bool operator==(const PortCallTable&, const PortCallTable&) = default;

  private:
    void Rebuild(int numbered, bool closing);
    void WriteEntered(int row, const VoyPortCall& value);

    int rowCount_ = 0;
    std::vector<TableRow> rows_;
    std::string start_;  ///< ETA of the first row before a row operation blanked it
};

/// The row with a port at such a place among them; the last numbered row where there are not as many.
int RowOfPlace(const PortCallTable& table, int place);
/// The first numbered row without a port; their count where each has one.
int FirstBlankRow(const PortCallTable& table);

/// What the images at a row's end can do now.
struct RowActions {
    bool moveUp = false;
    bool moveDown = false;
    bool remove = false;
    bool remark = false;
};
/// What a row operation on a table row would change.
RowActions ActionsOf(const PortCallTable& table, int row);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PortCallTable.h"

#include <algorithm>
#include <utility>

namespace Tarvik::Seaplan {

namespace {

TableRow MakeRow(const std::string& label, RowClass look) {
    CellTexts cells;
    cells.fill(kBlankCell);
    cells[ColOrder] = label;
    TableRow row;
    row.Commit(cells, {});
    row.look = look;
    return row;
}

void BlankCells(std::vector<TableRow>& table) {
    for (TableRow& row : table) {
        CellTexts cells;
        cells.fill(kBlankCell);
        cells[ColOrder] = row.cells[ColOrder];
        row.Commit(cells, {});
    }
}

/// Gives the numbered rows of a corrected voyage's table their looks; the first `history` are sailed.
void LookSailed(std::vector<TableRow>& table, int numbered, const PortCallRows& rows, std::size_t history) {
    for (int i = 0; i < numbered; ++i) {
        const bool sailed = i < static_cast<int>(std::min(history, rows.size()));
        table[i].look = !sailed                    ? RowClass::Normal
                        : rows[i].pp == kBlankCell ? RowClass::Highlighted
                                                   : RowClass::Disabled;
    }
}

}  // namespace

void TableRow::Commit(const CellTexts& texts, std::string portId) {
    cells = texts;
    record = CellsToRow(texts);
    record.ppi = std::move(portId);
}

void PortCallTable::SetCell(int row, int column, const std::string& text) {
    CellTexts texts = rows_[row].cells;
    texts[column] = text;
    rows_[row].Commit(texts, rows_[row].record.ppi);
}

void PortCallTable::SetPort(int row, const std::string& name, const std::string& id) {
    CellTexts texts = rows_[row].cells;
    texts[ColPort] = name;
    rows_[row].Commit(texts, id);
}

void PortCallTable::Rebuild(int numbered, bool closing) {
    rows_.clear();
    rowCount_ = numbered;
    for (int i = 0; i < numbered; ++i) {
        rows_.push_back(MakeRow(std::to_string(i + 1), RowClass::Normal));
    }
    rows_.push_back(MakeRow(kTotalsLabel, RowClass::Normal));
    if (closing) {
        rows_.push_back(MakeRow(kBlankCell, RowClass::Disabled));
    }
}

void PortCallTable::Reset() {
    Rebuild(kFirstRows, true);
    start_.clear();
}

void PortCallTable::ClearCells() {
    BlankCells(rows_);
    start_.clear();
}

void PortCallTable::WriteRows(const PortCallRows& rows, bool corrected) {
    constexpr std::size_t kMostWithoutRebuild = 5;
    if (!corrected && rows.size() > kMostWithoutRebuild) {
        Rebuild(static_cast<int>(rows.size()) + 1, false);
    }
    BlankCells(rows_);
    for (int i = 0; i < static_cast<int>(rows.size()) && i < rowCount_; ++i) {
        WriteRow(i, rows[i]);
    }
}

void PortCallTable::WriteEntered(int row, const VoyPortCall& value) {
    CellTexts cells = RowToCells(row, value);
    for (int column = ColPort; column < kPortCallColumnCount; ++column) {
        if (!kPortCallColumns[column].entered) {
            cells[column] = kBlankCell;
        }
    }
    rows_[row].Commit(cells, value.ppi);
}

void PortCallTable::WritePartial(const PortCallRows& rows, bool corrected) {
    if (!IsBlankCell(Cell(0, ColEta))) {
        start_ = Cell(0, ColEta);
    }
    BlankCells(rows_);
    int pivot = -1;
    for (int i = 0; corrected && i < static_cast<int>(rows.size()); ++i) {
        if (rows[i].pp == kBlankCell && static_cast<double>(rows[i].distance) > kNoDistance) {
            pivot = i;
        }
    }
    for (int i = 0; i < static_cast<int>(rows.size()) && i < rowCount_; ++i) {
        if (i <= pivot) {
            WriteRow(i, rows[i]);
        } else {
            WriteEntered(i, rows[i]);
        }
    }
    if (corrected) {
        LookSailed(rows_, rowCount_, rows, static_cast<std::size_t>(pivot) + 1);
    }
}

void PortCallTable::ShowHistoryAndPlan(const PortCallRows& rows, std::size_t history) {
    const int filled = static_cast<int>(rows.size());
    Rebuild(filled < kFirstRows ? kFirstRows : filled + 1, true);
    for (int i = 0; i < filled; ++i) {
        WriteRow(i, rows[i]);
    }
    LookSailed(rows_, rowCount_, rows, history);
}

void PortCallTable::WriteTotals(const PortCallRows& rows) {
    CellTexts cells = rows_[rowCount_].cells;
    if (TotalsToCells(rows, cells)) {
        rows_[rowCount_].Commit(cells, {});
    }
}

void PortCallTable::ClearTotals() {
    CellTexts cells = rows_[rowCount_].cells;
    for (int column = ColPort; column < kPortCallColumnCount; ++column) {
        if (kPortCallColumns[column].total != nullptr) {
            cells[column] = kBlankCell;
        }
    }
    rows_[rowCount_].Commit(cells, {});
}

void PortCallTable::MarkPorts(const std::function<bool(const std::string&)>& known, int routed) {
    for (int row = 0; row < rowCount_; ++row) {
        rows_[row].stale = !IsBlank(row) && CompactIndex(row) >= routed;
        rows_[row].unknownPort =
            !IsBlank(row) && rows_[row].look != RowClass::Highlighted && !known(Cell(row, ColPort));
    }
}

void PortCallTable::GrowIfLast(int row) {
    if (row != rowCount_ - 1) {
        return;
    }
    rows_.insert(rows_.begin() + rowCount_, MakeRow(std::to_string(rowCount_ + 1), RowClass::Normal));
    ++rowCount_;
}

}  // namespace Tarvik::Seaplan

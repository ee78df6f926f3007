// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PortCallTable.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kTotalsLabel = "RES";

TableRow makeRow(const std::string& label, RowClass look) {
    TableRow row;
    row.cells.fill(kBlankCell);
    row.cells[ColOrder] = label;
    row.look = look;
    return row;
}

}  // namespace

void PortCallTable::rebuild(int numbered, bool closing) {
    rows_.clear();
    rowCount_ = numbered;
    for (int i = 0; i < numbered; ++i) rows_.push_back(makeRow(std::to_string(i + 1), RowClass::Normal));
    rows_.push_back(makeRow(kTotalsLabel, RowClass::Normal));
    if (closing) rows_.push_back(makeRow(kBlankCell, RowClass::Disabled));
}

void PortCallTable::Reset() {
    rebuild(kFirstRows, true);
}

PortCallRows PortCallTable::ReadRows() const {
    return IsBlank(0) ? PortCallRows() : ReadAllRows();
}

PortCallRows PortCallTable::ReadAllRows() const {
    PortCallRows out;
    for (int row = 0; row < rowCount_; ++row) {
        if (!IsBlank(row)) out.push_back(ReadRow(row));
    }
    return out;
}

int PortCallTable::CompactIndex(int row) const {
    int index = 0;
    for (int i = 0; i < row; ++i) index += IsBlank(i) ? 0 : 1;
    return index;
}

void PortCallTable::ClearCells() {
    for (TableRow& row : rows_) {
        for (int column = ColPort; column < PortCallColumnCount; ++column) row.cells[column] = kBlankCell;
    }
}

void PortCallTable::WriteRows(const PortCallRows& rows) {
    constexpr std::size_t kMostWithoutRebuild = 5;
    if (rows.size() > kMostWithoutRebuild) rebuild(static_cast<int>(rows.size()) + 1, false);
    ClearCells();
    for (std::size_t i = 0; i < rows.size(); ++i) WriteRow(static_cast<int>(i), rows[i]);
}

void PortCallTable::WritePartial(const PortCallRows& rows) {
    ClearCells();
    for (int i = 0; i < static_cast<int>(rows.size()) && i < rowCount_; ++i) {
        const CellTexts cells = RowToCells(i, rows[i]);
        for (const int column : {ColPort, ColPurpose, ColWeather, ColPortTime})
            SetCell(i, column, cells[column]);
        SetCell(i, ColSpeed, SpeedText(rows[i].psp));
    }
}

void PortCallTable::WriteTotals(const PortCallRows& rows) {
    ScheduleTotals totals;
    if (!TotalsOf(rows, totals)) return;
    SetCell(rowCount_, ColSteamTime, OneDecimal(totals.steamTime));
    SetCell(rowCount_, ColPortTime, TwoDecimals(totals.portTime));
    SetCell(rowCount_, ColEta, totals.eta.fmt(kTimeFormat));
    SetCell(rowCount_, ColEtd, totals.etd.fmt(kTimeFormat));
    SetCell(rowCount_, ColDistance, TwoDecimals(totals.distance));
}

void PortCallTable::ClearTotals() {
    for (int column = ColSteamTime; column < PortCallColumnCount; ++column)
        SetCell(rowCount_, column, kBlankCell);
}

void PortCallTable::GrowIfLast(int row) {
    if (row != rowCount_ - 1) return;
    rows_.insert(rows_.begin() + rowCount_, makeRow(std::to_string(rowCount_ + 1), RowClass::Normal));
    ++rowCount_;
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
/// What the table holds: its rows as records, their places among those with a port, and what can be done with
/// one.
#include "seaplan/panels/portcall/PortCallTable.h"

namespace Tarvik::Seaplan {

VoyPortCall PortCallTable::ReadRow(int row) const {
    VoyPortCall value = rows_[row].record;
    if (IsBlankCell(Cell(row, ColEta))) {
        value.eta = Util::_datetime_t();
        ReadTimeCell(row == 0 ? start_ : kBlankCell, value.eta);
    }
    if (IsBlankCell(Cell(row, ColEtd))) {
        value.etd = Util::_datetime_t();
    }
    return value;
}

PortCallRows PortCallTable::ReadRows() const {
    return IsBlank(0) ? PortCallRows() : ReadAllRows();
}

PortCallRows PortCallTable::ReadAllRows() const {
    PortCallRows out;
    for (int row = 0; row < rowCount_; ++row) {
        if (!IsBlank(row)) {
            out.push_back(ReadRow(row));
        }
    }
    return out;
}

int PortCallTable::CompactIndex(int row) const {
    int index = 0;
    for (int i = 0; i < row; ++i) {
        index += IsBlank(i) ? 0 : 1;
    }
    return index;
}

int PortCallTable::FindLastAisRow() const {
    for (int row = rowCount_ - 1; row >= 0; --row) {
        const std::string& distance = Cell(row, ColDistance);
        const bool moved = !IsBlankCell(distance) && distance != "0.00";
        if (!IsBlank(row) && IsBlankCell(Cell(row, ColPurpose)) && moved) {
            return row;
        }
    }
    return -1;
}

bool PortCallTable::ReadRowsSplit(PortCallRows& before, PortCallRows& after) const {
    const int last = FindLastAisRow();
    if (last < 0) {
        return false;
    }
    for (int row = 0; row < rowCount_; ++row) {
        if (!IsBlank(row)) {
            (row <= last ? before : after).push_back(ReadRow(row));
        }
    }
    return true;
}

int RowOfPlace(const PortCallTable& table, int place) {
    int row = 0;
    while (row < table.RowCount() - 1 && (table.IsBlank(row) || table.CompactIndex(row) != place)) {
        ++row;
    }
    return row;
}

int FirstBlankRow(const PortCallTable& table) {
    int row = 0;
    while (row < table.RowCount() && !table.IsBlank(row)) {
        ++row;
    }
    return row;
}

RowActions ActionsOf(const PortCallTable& table, int row) {
    if (!table.IsNumbered(row) || table.IsBlank(row)) {
        return {};
    }
    // A row operation takes the row's place in the table as a place among the rows with a port: below a blank
    // row it would mean another row.
    const bool meant = table.CompactIndex(row) == row;
    const int filled = table.CompactIndex(table.RowCount());
    // No port moves above the ship's position.
    const bool belowShip =
        row > 0 && table.Rows()[row - 1].look == RowClass::Highlighted && row - 1 == table.FindLastAisRow();
    return {meant && row > 0 && !belowShip, meant && row + 1 < filled, meant, true};
}

}  // namespace Tarvik::Seaplan

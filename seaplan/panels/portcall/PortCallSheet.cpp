// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PortCallSheet.h"

#include <algorithm>
#include <cstddef>

#include "seaplan/data/PortDirectory.h"

namespace Tarvik::Seaplan {

namespace {

/// Whether a person entered the same into both rows; the start is that of the first one.
bool SameEntered(const CellTexts& a, const CellTexts& b, bool first) {
    for (int column = 0; column < kPortCallColumnCount; ++column) {
        const bool counts = kPortCallColumns[column].entered || (first && column == ColEta);
        if (counts && a[column] != b[column]) {
            return false;
        }
    }
    return true;
}

}  // namespace

void PortCallSheet::Reset() {
    table.Reset();
    state = PortCallState();
    aisCorrectionPending = false;
    unread = false;
    note = {};
    stored.clear();
    ResetUnits();
}

void PortCallSheet::ResetUnits() {
    units_ = UnitSet();
    ShowUnits();
}

void PortCallSheet::ShowUnits() {
    state.speedUnit = UnitLabel(units_, UnitKind::Speed);
    state.distanceUnit = UnitLabel(units_, UnitKind::Distance);
    state.timeUnit = UnitLabel(units_, UnitKind::Time);
}

void PortCallSheet::Clear() {
    table.ClearCells();
    state.summary = SummaryTexts();
    ResetUnits();
    MarkUnchanged();
    state.canOpenBook = false;
    state.canCalculate = false;
}

int PortCallSheet::ReadStandard(PortCallRows& out) const {
    return ToStandardUnits(table.ReadRows(), units_, out) == 0 ? 0 : -1;
}

int PortCallSheet::ShowRows(const PortCallRows& standard, bool corrected) {
    PortCallRows shown;
    if (standard.size() < 2 || FromStandardUnits(standard, units_, shown) != 0) {
        return -1;
    }
    table.WriteRows(shown, corrected);
    table.WriteTotals(shown);
    ShowSummary(standard);
    return 0;
}

void PortCallSheet::ShowEntered(const PortCallRows& standard) {
    PortCallRows shown;
    if (FromStandardUnits(standard, units_, shown) == 0) {
        table.WriteRows(shown);
        table.WritePartial(shown);
        table.SetCell(0, ColEta, shown.front().eta.fmt(kTimeFormat));
    }
}

int PortCallSheet::ShowHistoryAndPlan(const PortCallRows& standard, std::size_t history) {
    ResetUnits();
    PortCallRows shown;
    if (FromStandardUnits(standard, units_, shown) != 0) {
        return -1;
    }
    table.ShowHistoryAndPlan(shown, history);
    table.WriteTotals(shown);
    ShowSummary(standard);
    return 0;
}

void PortCallSheet::ShowSummary(const PortCallRows& standard) {
    ScheduleSummary figures;
    if (SummaryOf(standard, figures)) {
        SummaryToTexts(figures, units_, state.summary);
    }
}

int PortCallSheet::ChangeUnit(UnitKind kind, const std::string& unit, bool corrected) {
    const PortCallRows rows = table.ReadAllRows();
    const std::string from = std::exchange(UnitOf(units_, kind), unit);
    ShowUnits();
    if (state.summary.averageSpeed.empty() || state.summary.totalDistance.empty() ||
        state.summary.totalTime.empty()) {
        return -1;
    }
    PortCallRows converted;
    if (ConvertUnitValue(rows, from, unit, converted) != 0) {
        return -2;
    }
    table.WriteRows(converted, corrected);
    table.WriteTotals(converted);
    ConvertStored(from, unit);
    // The figures follow the cells, with the digits that those have.
    PortCallRows standard;
    if (ToStandardUnits(converted, units_, standard) == 0) {
        ShowSummary(standard);
    }
    return 0;
}

int PortCallSheet::PlaceCount(PortDirectory& ports) const {
    const PortCallRows rows = table.ReadAllRows();
    if (rows.empty()) {
        return 0;
    }
    int count = 1;
    const VoyPortCall* last = &rows.front();
    for (const VoyPortCall& row : rows) {
        if (row.ppn == last->ppn || ports.IsSamePlace(last->ppi, row.ppi)) {
            continue;
        }
        ++count;
        last = &row;
    }
    return count;
}

std::vector<CellTexts> PortCallSheet::FilledRows() const {
    std::vector<CellTexts> rows;
    for (int row = 0; row < table.RowCount(); ++row) {
        if (!table.IsBlank(row)) {
            rows.push_back(table.Rows()[row].cells);
        }
    }
    return rows;
}

/// The stored rows go the way of the table's cells, so that rounding makes no change of them.
void PortCallSheet::ConvertStored(const std::string& from, const std::string& to) {
    PortCallRows rows;
    for (const CellTexts& cells : stored) {
        rows.push_back(CellsToRow(cells));
    }
    PortCallRows converted;
    if (ConvertUnitValue(rows, from, to, converted) != 0) {
        return;
    }
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const std::string eta = stored[i][ColEta];
        stored[i] = RowToCells(static_cast<int>(i), converted[i]);
        stored[i][ColEta] = eta;
    }
}

/// Rows that are the same at both ends are left out, so that one that was taken away counts as one.
int PortCallSheet::ChangedRows() const {
    const std::vector<CellTexts> now = FilledRows();
    const std::size_t common = std::min(now.size(), stored.size());
    std::size_t head = 0;
    while (head < common && SameEntered(now[head], stored[head], head == 0)) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < common - head &&
           SameEntered(now[now.size() - 1 - tail], stored[stored.size() - 1 - tail], false)) {
        ++tail;
    }
    return static_cast<int>(std::max(now.size(), stored.size()) - head - tail);
}

void PortCallSheet::MarkUnchanged() {
    state.changed = false;
    state.canSave = false;
    stored = FilledRows();
}

void PortCallSheet::MarkChanged(PortDirectory& ports) {
    state.canCalculate = PlaceCount(ports) >= 2;
    if (!state.canCalculate) {
        return;
    }
    editedVoyageId = voyageId;
    state.changed = true;
    state.canSave = true;
}

}  // namespace Tarvik::Seaplan

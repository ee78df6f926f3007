// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PortCallSheet.h"

#include <algorithm>
#include <cstddef>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/VoyageRecords.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

/// Blanks what was blank before the rows were written anew from what their cells told.
void KeepBlanks(const PortCallTable& before, PortCallTable& table) {
    const auto keep = [&](int from, int to) {
        for (int column = ColPort; column < kPortCallColumnCount; ++column) {
            if (IsBlankCell(before.Cell(from, column))) {
                table.SetCell(to, column, kBlankCell);
            }
        }
    };
    for (int row = 0; row < before.RowCount(); ++row) {
        if (!before.IsBlank(row)) {
            keep(row, before.CompactIndex(row));
        }
    }
    keep(before.RowCount(), table.RowCount());
}

}  // namespace

void PortCallSheet::Reset() {
    table.Reset();
    state = PortCallState();
    aisCorrectionPending = false;
    unread = false;
    note = {};
    stored.Clear();
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
    stored.Clear();
    note = {};
    state.note.clear();
    ResetUnits();
    MarkUnchanged();
    state.canOpenBook = false;
    state.canCalculate = false;
}

int PortCallSheet::ReadStandard(PortCallRows& out) const {
    return ToStandardUnits(table.ReadRows(), units_, out) == 0 ? 0 : -1;
}

int PortCallSheet::ReadUnrounded(PortCallRows& out) const {
    if (ReadStandard(out) != 0) {
        return -1;
    }
    stored.RestoreSpeeds(table, out);
    return 0;
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
    stored.NoteRoute(table);
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
    const PortCallTable before = table;
    table.WriteRows(converted, corrected);
    table.WriteTotals(converted);
    KeepBlanks(before, table);
    stored.Convert(from, unit);
    // The figures follow the cells, with the digits that those have; over blank cells they can only follow
    // themselves.
    PortCallRows standard;
    if (IsBlankCell(table.Cell(table.RowCount(), ColDistance))) {
        ConvertSummary(from, unit, state.summary);
    } else if (ToStandardUnits(converted, units_, standard) == 0) {
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
        if (IsSamePlace(*last, row, ports.SamePorts())) {
            continue;
        }
        ++count;
        last = &row;
    }
    return count;
}

void PortCallSheet::MarkUnchanged() {
    state.changed = false;
    state.canSave = false;
    PortCallRows standard;
    if (ToStandardUnits(table.ReadAllRows(), units_, standard) == 0) {
        stored.RestoreSpeeds(table, standard);
    }
    stored.Store(table, standard);
}

void PortCallSheet::MarkLoaded(const PortCallRows& standard) {
    MarkUnchanged();
    stored.Store(table, standard);
    stored.NoteRoute(table);
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

bool PortCallSheet::IsUnkeptTable() const {
    return voyageId == kDistanceTableId;
}

}  // namespace Tarvik::Seaplan

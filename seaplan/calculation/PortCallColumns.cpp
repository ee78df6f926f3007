// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PortCallColumns.h"

namespace Tarvik::Seaplan {

CellTexts RowToCells(int index, const VoyPortCall& row) {
    CellTexts cells;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        cells[column] = kPortCallColumns[column].text(index, row);
    }
    return cells;
}

VoyPortCall CellsToRow(const CellTexts& cells) {
    VoyPortCall row;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        if (kPortCallColumns[column].read != nullptr) {
            kPortCallColumns[column].read(cells[column], row);
        }
    }
    return row;
}

bool TotalsToCells(const PortCallRows& rows, CellTexts& cells) {
    ScheduleTotals totals;
    if (!TotalsOf(rows, totals)) {
        return false;
    }
    for (std::size_t column = 0; column < cells.size(); ++column) {
        if (kPortCallColumns[column].total != nullptr) {
            cells[column] = kPortCallColumns[column].total(totals);
        }
    }
    return true;
}

bool SummaryToTexts(const ScheduleSummary& summary, const UnitSet& units, SummaryTexts& out) {
    VoyPortCall figures;
    figures.psp = summary.averageSpeed;
    figures.steamTime = summary.totalTime;
    figures.distance = summary.totalDistance;
    PortCallRows shown;
    if (FromStandardUnits({figures}, units, shown) != 0) {
        return false;
    }
    out.averageSpeed = OneDecimal(static_cast<double>(shown[0].psp));
    out.totalDistance = OneDecimal(static_cast<double>(shown[0].distance));
    out.totalTime = TwoDecimals(static_cast<double>(shown[0].steamTime));
    return true;
}

}  // namespace Tarvik::Seaplan

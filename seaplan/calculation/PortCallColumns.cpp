// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PortCallColumns.h"

#include "seaplan/calculation/Schedule.h"

namespace Tarvik::Seaplan {

namespace {

/// The figures of the summary, held as those of a row.
SummaryTexts FigureTexts(const VoyPortCall& figures) {
    return {OneDecimal(static_cast<double>(figures.psp)), OneDecimal(static_cast<double>(figures.distance)),
            TwoDecimals(static_cast<double>(figures.steamTime))};
}

}  // namespace

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
    out = FigureTexts(shown[0]);
    return true;
}

void ConvertSummary(const std::string& from, const std::string& to, SummaryTexts& texts) {
    VoyPortCall figures;
    ReadNumberCell(texts.averageSpeed, figures.psp);
    ReadNumberCell(texts.totalTime, figures.steamTime);
    ReadNumberCell(texts.totalDistance, figures.distance);
    PortCallRows converted;
    if (ConvertRows({figures}, from, to, converted) == 0) {
        texts = FigureTexts(converted[0]);
    }
}

}  // namespace Tarvik::Seaplan

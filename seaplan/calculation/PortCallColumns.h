// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "seaplan/calculation/ScheduleFigures.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/data/VoyPortCall.h"

/// The columns of the port call table, by which the panel, its window and the plan that is printed go. A
/// further column is one more entry of the table and its texts.
namespace Tarvik::Seaplan {

/// Places of the columns that a rule names.
enum PortCallColumn : int {
    ColOrder = 0,
    ColPort,
    ColPurpose,
    ColSpeed,
    ColWeather,
    ColSteamTime,
    ColPortTime,
    ColEta,
    ColEtd,
    ColDistance
};

/// What a column's cells hold; numbers stand at the right where nothing else is told.
enum class CellKind { Number, Text };
/// What opens over a column's cell.
enum class CellEditor { Port, Speed, Weather, Purpose, Time, None };

/// Everything about one column.
struct PortCallColumnEntry {
    const char* title;  ///< key of its text
    CellKind kind = CellKind::Number;
    UnitKind unit = UnitKind::None;
    bool centred = false;
    bool entered = false;  ///< the person's own, kept when a row moves; the others are computed
    int width = 0;         ///< pixels
    CellEditor editor = CellEditor::None;
    /// Cell text of the row at place `index`, counted from 0.
    std::string (*text)(int index, const VoyPortCall& row) = nullptr;
    /// Takes a cell's text into the row; null when no text of the column is read.
    void (*read)(const std::string& cell, VoyPortCall& row) = nullptr;
    /// Text of the totals row; null when nothing is told there.
    std::string (*total)(const ScheduleTotals& totals) = nullptr;
};

inline constexpr auto kPortCallColumns = std::to_array<PortCallColumnEntry>({
    {.title = "IDS_PORTCALL_ORDER",
     .centred = true,
     .width = 35,
     .text = [](int index, const VoyPortCall&) { return std::to_string(index + 1); }},
    {.title = "IDS_PORTCALL_PORT",
     .kind = CellKind::Text,
     .entered = true,
     .width = 120,
     .editor = CellEditor::Port,
     .text = [](int, const VoyPortCall& row) { return row.ppn; },
     .read = [](const std::string& cell, VoyPortCall& row) { ReadTextCell(cell, row.ppn); }},
    // One blank marks a position of the ship, so the text stands as it is.
    {.title = "IDS_PORTCALL_PURPOSE",
     .kind = CellKind::Text,
     .centred = true,
     .entered = true,
     .width = 40,
     .editor = CellEditor::Purpose,
     .text = [](int, const VoyPortCall& row) { return row.pp; },
     .read = [](const std::string& cell, VoyPortCall& row) { row.pp = cell; }},
    {.title = "IDS_PORTCALL_SPEED",
     .unit = UnitKind::Speed,
     .entered = true,
     .width = 45,
     .editor = CellEditor::Speed,
     .text = [](int, const VoyPortCall& row) { return SpeedText(static_cast<double>(row.psp)); },
     .read = [](const std::string& cell, VoyPortCall& row) { ReadNumberCell(cell, row.psp); }},
    {.title = "IDS_PORTCALL_WEATHER",
     .entered = true,
     .width = 55,
     .editor = CellEditor::Weather,
     .text = [](int, const VoyPortCall& row) { return WeatherText(static_cast<double>(row.pw)); },
     .read = [](const std::string& cell, VoyPortCall& row) { ReadPercentCell(cell, row.pw); }},
    {.title = "IDS_PORTCALL_STEAMTIME",
     .unit = UnitKind::Time,
     .width = 55,
     .text = [](int, const VoyPortCall& row) { return TwoDecimals(static_cast<double>(row.steamTime)); },
     .read = [](const std::string& cell, VoyPortCall& row) { ReadNumberCell(cell, row.steamTime); },
     .total = [](const ScheduleTotals& sum) { return OneDecimal(static_cast<double>(sum.steamTime)); }},
    {.title = "IDS_PORTCALL_ATPORTTIME",
     .unit = UnitKind::Time,
     .entered = true,
     .width = 55,
     .text = [](int, const VoyPortCall& row) { return TwoDecimals(static_cast<double>(row.apt)); },
     .read = [](const std::string& cell, VoyPortCall& row) { ReadNumberCell(cell, row.apt); },
     .total = [](const ScheduleTotals& sum) { return TwoDecimals(static_cast<double>(sum.portTime)); }},
    {.title = "IDS_PORTCALL_ETA",
     .kind = CellKind::Text,
     .width = 125,
     .editor = CellEditor::Time,
     .text = [](int, const VoyPortCall& row) { return TimeCell(row.eta); },
     .read = [](const std::string& cell, VoyPortCall& row) { ReadTimeCell(cell, row.eta); },
     .total = [](const ScheduleTotals& sum) { return TimeCell(sum.eta); }},
    {.title = "IDS_PORTCALL_ETD",
     .kind = CellKind::Text,
     .width = 125,
     .editor = CellEditor::Time,
     .text = [](int, const VoyPortCall& row) { return TimeCell(row.etd); },
     .read = [](const std::string& cell, VoyPortCall& row) { ReadTimeCell(cell, row.etd); },
     .total = [](const ScheduleTotals& sum) { return TimeCell(sum.etd); }},
    {.title = "IDS_PORTCALL_DISTANCE",
     .unit = UnitKind::Distance,
     .width = 60,
     .text = [](int, const VoyPortCall& row) { return TwoDecimals(static_cast<double>(row.distance)); },
     .read = [](const std::string& cell, VoyPortCall& row) { ReadNumberCell(cell, row.distance); },
     .total = [](const ScheduleTotals& sum) { return TwoDecimals(static_cast<double>(sum.distance)); }},
});

inline constexpr int kPortCallColumnCount = static_cast<int>(kPortCallColumns.size());
/// Order cell of the totals row.
inline constexpr const char* kTotalsLabel = "RES";

using CellTexts = std::array<std::string, kPortCallColumns.size()>;

/// All cells of the row at place `index`, counted from 0; numbers in the units of `row`.
CellTexts RowToCells(int index, const VoyPortCall& row);
/// The row that the cells tell; a cell without value leaves the field's default, and so does a time that is
/// none. The purpose is taken as it stands.
VoyPortCall CellsToRow(const CellTexts& cells);
/// Writes the figures of the totals row over `rows` into its cells and leaves the other cells. False, with
/// nothing written, for fewer than two rows.
bool TotalsToCells(const PortCallRows& rows, CellTexts& cells);

/// The summary figures as they are shown.
struct SummaryTexts {
    std::string averageSpeed;
    std::string totalDistance;
    std::string totalTime;

    friend bool operator==(const SummaryTexts&, const SummaryTexts&) = default;
};
/// The figures in the units on show. False, with `out` as it was, for a unit that does not exist.
bool SummaryToTexts(const ScheduleSummary& summary, const UnitSet& units, SummaryTexts& out);
/// The figures in another unit of one quantity; a pair of units without a factor leaves them.
void ConvertSummary(const std::string& from, const std::string& to, SummaryTexts& texts);

}  // namespace Tarvik::Seaplan

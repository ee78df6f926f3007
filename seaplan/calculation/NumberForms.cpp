// SPDX-License-Identifier: MIT
#include "seaplan/calculation/NumberForms.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

void ReadNumber(const std::string& cell, float& field) {
    if (!IsBlankCell(cell)) {
        field = static_cast<float>(StringUtl::ToDouble(cell));
    }
}

/// "12%": the sign at the end goes, whatever it is.
void ReadPercent(const std::string& cell, float& field) {
    if (!IsBlankCell(cell)) {
        field = static_cast<float>(StringUtl::ToDouble(cell.substr(0, cell.size() - 1)) / 100);
    }
}

void ReadTime(const std::string& cell, Util::_datetime_t& field) {
    if (const auto time = ReadTimeText(cell)) {
        field = *time;
    }
}

void ReadText(const std::string& cell, std::string& field) {
    if (!IsBlankCell(cell)) {
        field = cell;
    }
}

}  // namespace

bool IsBlankCell(const std::string& text) {
    return text.empty() || text == kBlankCell;
}

CellTexts RowToCells(int index, const VoyPortCall& row) {
    CellTexts cells;
    cells[ColOrder] = StringUtl::IntToString(static_cast<long long>(index) + 1);
    cells[ColPort] = row.ppn;
    cells[ColPurpose] = row.pp;
    cells[ColSpeed] = SpeedText(row.psp);
    cells[ColWeather] = WeatherText(row.pw);
    cells[ColSteamTime] = TwoDecimals(row.steamTime);
    cells[ColPortTime] = TwoDecimals(row.apt);
    cells[ColEta] = row.eta.fmt(kTimeFormat);
    cells[ColEtd] = row.etd.fmt(kTimeFormat);
    cells[ColDistance] = TwoDecimals(row.distance);
    return cells;
}

VoyPortCall CellsToRow(const CellTexts& cells) {
    VoyPortCall row;
    ReadText(cells[ColPort], row.ppn);
    row.pp = cells[ColPurpose];  // one blank marks a position of the ship, so the text stands as it is
    ReadNumber(cells[ColSpeed], row.psp);
    ReadPercent(cells[ColWeather], row.pw);
    ReadNumber(cells[ColSteamTime], row.steamTime);
    ReadNumber(cells[ColPortTime], row.apt);
    ReadTime(cells[ColEta], row.eta);
    ReadTime(cells[ColEtd], row.etd);
    ReadNumber(cells[ColDistance], row.distance);
    return row;
}

std::string SpeedText(double speed) {
    return TwoDecimals(speed);
}

std::string WeatherText(double fraction) {
    return StringUtl::Format("%.0f%%", fraction * 100);
}

std::string TwoDecimals(double value) {
    return StringUtl::Format("%.2f", value);
}

std::string OneDecimal(double value) {
    return StringUtl::Format("%.1f", value);
}

}  // namespace Tarvik::Seaplan

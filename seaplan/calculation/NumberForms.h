// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "seaplan/data/TimeText.h"
#include "seaplan/data/VoyPortCall.h"

/// The exact texts in which numbers go into the port call table and come back out of it.
namespace Tarvik::Seaplan {

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
    ColDistance,
    PortCallColumnCount
};

using CellTexts = std::array<std::string, PortCallColumnCount>;

inline constexpr const char* kBlankCell = " ";

/// Empty or one blank: no value.
bool IsBlankCell(const std::string& text);
/// All ten cells of row `index`, numbers in the units of `row`.
CellTexts RowToCells(int index, const VoyPortCall& row);
/// The row that the cells tell; a cell without value leaves the field's default, and so does a time that is
/// none. The purpose is taken as it stands, since one blank has a meaning there.
VoyPortCall CellsToRow(const CellTexts& cells);
std::string SpeedText(double speed);       ///< "%.2f"
std::string WeatherText(double fraction);  ///< "%.0f%%" of the fraction times 100
std::string TwoDecimals(double value);     ///< "%.2f"
std::string OneDecimal(double value);      ///< "%.1f"

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/util/DateTime.h>

#include "seaplan/data/TimeText.h"

/// The exact texts in which numbers go into the port call table and come back out of it.
namespace Tarvik::Seaplan {

inline constexpr const char* kBlankCell = " ";

/// Empty or one blank: no value.
bool IsBlankCell(const std::string& text);
/// These leave the field as it is when the cell has no value, and the last one also when it holds no time.
void ReadTextCell(const std::string& cell, std::string& field);
void ReadNumberCell(const std::string& cell, float& field);
/// "12%" as 0.12: the sign at the end goes, whatever it is.
void ReadPercentCell(const std::string& cell, float& field);
void ReadTimeCell(const std::string& cell, Util::_datetime_t& field);
std::string SpeedText(double speed);       ///< "%.2f"
std::string WeatherText(double fraction);  ///< "%.0f%%" of the fraction times 100
std::string PercentText(double percent);   ///< "%.0f%%"
std::string TwoDecimals(double value);     ///< "%.2f"
std::string OneDecimal(double value);      ///< "%.1f"

}  // namespace Tarvik::Seaplan

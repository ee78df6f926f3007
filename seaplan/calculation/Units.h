// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include <tarvik/util/DateTime.h>

#include "seaplan/data/VoyPortCall.h"

/// Units of the port call table, and the exact texts in which numbers go into it and come back out.
namespace Tarvik::Seaplan {

/// The unit names of a table: speed "kts", "KPH" or "MPH", distance "NM" or "KM", time "hour" or "day".
struct UnitSet {
    std::string speed = "kts";
    std::string distance = "NM";
    std::string time = "day";
};

/// What a figure measures, where it has a unit at all.
enum class UnitKind { None, Speed, Distance, Time };

/// The set's name for a quantity, which is not None.
std::string& UnitOf(UnitSet& units, UnitKind kind);
const std::string& UnitOf(const UnitSet& units, UnitKind kind);
/// What stands beside a figure: the unit's name, of a time its plural; empty for None.
std::string UnitLabel(const UnitSet& units, UnitKind kind);
/// The names that a person can choose from for a quantity, which is not None.
std::span<const char* const> OfferedUnits(UnitKind kind);
/// What texts call a unit of speed that a person can choose, in small letters; empty for any other.
std::span<const std::string_view> WordsOfSpeedUnit(std::string_view unit);

/// Changes one quantity of every row as value * multiplier / divisor. 0; -1 for a pair of units without a
/// factor (out cleared); -2 for no rows. The empty input is tested first.
int ConvertRows(const PortCallRows& rows, const std::string& from, const std::string& to, PortCallRows& out);
/// ConvertRows behind two guards: -1 no rows, -2 equal units (out stays empty), -3 failed conversion.
int ConvertUnitValue(const PortCallRows& rows, const std::string& from, const std::string& to,
                     PortCallRows& out);
/// To knots, nautical miles, hours. -1 no rows; -2, -3, -4 for a bad speed, distance, time unit.
int ToStandardUnits(const PortCallRows& rows, const UnitSet& units, PortCallRows& out);
/// From knots, nautical miles, hours to the given units; results as ToStandardUnits.
int FromStandardUnits(const PortCallRows& rows, const UnitSet& units, PortCallRows& out);

inline constexpr const char* kBlankCell = " ";

/// Empty or one blank: no value.
bool IsBlankCell(const std::string& text);
/// These leave the field as it is when the cell has no value, and the last one also when it holds no time.
void ReadTextCell(const std::string& cell, std::string& field);
void ReadNumberCell(const std::string& cell, float& field);
/// "12%" as 0.12: the sign at the end goes, whatever it is.
void ReadPercentCell(const std::string& cell, float& field);
void ReadTimeCell(const std::string& cell, Util::_datetime_t& field);
std::string SpeedText(double speed);                  ///< "%.2f"
std::string WeatherText(double fraction);             ///< "%.0f%%" of the fraction times 100
std::string PercentText(double percent);              ///< "%.0f%%"
std::string TwoDecimals(double value);                ///< "%.2f"
std::string OneDecimal(double value);                 ///< "%.1f"
std::string TimeCell(const Util::_datetime_t& time);  ///< kTimeFormat

}  // namespace Tarvik::Seaplan

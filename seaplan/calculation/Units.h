// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "seaplan/data/VoyPortCall.h"

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
std::array<const char*, 2> OfferedUnits(UnitKind kind);

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

}  // namespace Tarvik::Seaplan

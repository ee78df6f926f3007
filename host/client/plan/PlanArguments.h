// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

namespace Tarvik::Client {

/// A time as people and programs write it.
struct DepartTime {
    Util::_datetime_t time;          ///< what stands there
    std::optional<int> eastMinutes;  ///< how far its clock is ahead of UTC; empty: the plan's zone

    /// The time in a zone's reading.
    Util::_datetime_t In(const std::string& zone) const;
};

/// Reads a date, alone (then it is midnight) or with hour, minute and perhaps second behind "T" or a blank,
/// and behind a time perhaps "Z" or an offset as "+08:00"; hyphens and colons may be left out, as ISO 8601
/// has it. Empty for another form and for what does not exist.
std::optional<DepartTime> ReadDepart(const std::string& text);

enum class PlanFormat { Table, Json, Csv, GeoJson };

/// What the person asked `plan` for, checked as far as it can be without the ports.
struct PlanArguments {
    std::vector<std::string> ports;     ///< words as typed, at least two
    std::optional<DepartTime> depart;   ///< empty: now
    std::string zone;                   ///< empty: the person's preference
    double speed = 10.0;                ///< knots, 0.01 to 1000
    double weather = 0;                 ///< fraction, from 0 to below 1
    std::vector<double> stays;          ///< hours in port, one for each port
    std::vector<std::string> purposes;  ///< codes, one for each port
    std::string speedUnit = "kts";      ///< "kts" or "KPH"
    std::string distanceUnit = "NM";    ///< "NM" or "KM"
    std::string timeUnit = "day";       ///< "day" or "hour"
    PlanFormat format = PlanFormat::Table;
    std::string saveCategory;  ///< empty: nothing is saved
    std::string saveVoyage;
    std::string picture;  ///< file name, empty for none
};

/// Either arguments or one line that names the bad word and says what would be good.
struct ParsedPlan {
    PlanArguments arguments;
    std::string error;
};

/// Reads the words behind `plan`. A word that begins with "--" is an option; "--" ends the options.
ParsedPlan ParsePlanArguments(const std::vector<std::string>& words);

/// Reads a whole text as a finite decimal number, "." as decimal sign in any locale.
std::optional<double> ReadNumber(const std::string& text);

}  // namespace Tarvik::Client

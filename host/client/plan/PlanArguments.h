// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/client/plan/DepartText.h"

namespace Tarvik::Client {

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

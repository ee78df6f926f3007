// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/interface/PlanRecords.h>

#include "host/client/plan/PlanArguments.h"
#include "host/client/services/LanguageFiles.h"

namespace Tarvik::Client {

/// The result in the asked format.
std::string FormatPlan(const PlanArguments& arguments, const Interface::PlanResult& plan,
                       const std::string& zone, const LanguageFiles& texts);

/// One object in standard units (knots, NM, hours) with `rows`, `totals`, `summary` and `route`; times as
/// `kTimeFormat` in the plan's zone, numbers in full precision.
std::string PlanJson(const Interface::PlanResult& plan);
/// A FeatureCollection: the drawn line pieces, then ports and route points. Degrees, longitude first.
std::string PlanGeoJson(const Interface::PlanResult& plan);
/// The table of the plan with its totals row as comma-separated values, one line per row.
std::string PlanCsv(const Interface::PlanResult& plan);
/// The same as an aligned table, with the zone above and the summary figures below.
std::string PlanTable(const Interface::PlanResult& plan, const std::string& zone, const LanguageFiles& texts);

/// The plug-in's table: header with units, rows, totals row; as many texts in each as there are columns.
std::vector<std::vector<std::string>> PlanCells(const Interface::PlanResult& plan);

}  // namespace Tarvik::Client

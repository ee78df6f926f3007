// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/client/services/LanguageFiles.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/plugin/PlanService.h"

namespace Tarvik::Client {

/// One object in standard units (knots, NM, hours) with `rows`, `totals`, `summary` and `route`; times as
/// "%Y-%m-%d %H:%M:%S" in the plan's zone, numbers in full precision.
std::string PlanJson(const Seaplan::PlanResult& plan);
/// A FeatureCollection: the drawn line pieces, then ports and route points. Degrees, longitude first.
std::string PlanGeoJson(const Seaplan::PlanResult& plan);
/// The panel's columns and cell texts in the given units, closed by the totals row; one line per row.
std::string PlanCsv(const Seaplan::PlanResult& plan, const Seaplan::UnitSet& units,
                    const LanguageFiles& texts);
/// The same as an aligned table, with the zone above and the summary figures below.
std::string PlanTable(const Seaplan::PlanResult& plan, const Seaplan::UnitSet& units, const std::string& zone,
                      const LanguageFiles& texts);

/// The panel's table: header with units, rows, totals row; ten texts each.
std::vector<std::vector<std::string>> PlanCells(const Seaplan::PlanResult& plan,
                                                const Seaplan::UnitSet& units, const LanguageFiles& texts);

}  // namespace Tarvik::Client

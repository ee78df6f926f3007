// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/bus/PlanContract.h>
#include <tarvik/interface/ChartRecords.h>

#include "seaplan/data/VoyInfo.h"

namespace Tarvik::Seaplan {

/// The plan of a voyage with its book, as the chart is told it; `ship` names the voyage's image. Without
/// places when the book cannot be timed, so that the chart forgets it.
Interface::TrvMapPlan PlanOf(const VoyInfo& voyage, const Interface::TrvMapObjectRef& ship);

}  // namespace Tarvik::Seaplan

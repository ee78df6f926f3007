// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/bus/PlanContract.h>
#include <tarvik/interface/PlanRecords.h>

namespace Tarvik::Client {

/// What the chart takes to number a plan's ports with their names and arrivals, which it tells as the plan's
/// table does. Without places when one of the route's cannot be read.
Interface::TrvMapPlan PlanOnChart(const Interface::PlanResult& plan);

}  // namespace Tarvik::Client

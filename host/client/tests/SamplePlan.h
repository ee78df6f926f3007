// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/plugin/PlanService.h"

namespace Tarvik::Client {

/// A voyage over the date line with figures that are easy to check.
inline Seaplan::PlanResult SamplePlan() {
    using Util::_datetime_t;
    const _datetime_t start(0, 0, 8, 1, 12, 2026);
    const _datetime_t sailing(0, 0, 20, 1, 12, 2026);
    const _datetime_t arrival(0, 0, 20, 11, 12, 2026);
    Seaplan::PlanResult plan;
    plan.rows.resize(2);
    Seaplan::VoyPortCall& first = plan.rows[0];
    first = {"40001", "Port, \"A\"", "L", 14.0F, 0, 0, 12.0F, start, sailing, 0};
    plan.rows[1] = {"40002", "B", "D", 10.1F, 0.125F, 240.0F, 0, arrival, arrival, 2400.5F};
    plan.totals = {12.0F, 240.0F, 2400.5F, start, arrival};
    plan.summary = {10.0F, 240.0F, 2400.5F};
    plan.linePieces = {{"170,10", "179.99,12"}, {"-179.99,12", "-170.5,-14"}};
    plan.book.resize(3);
    plan.book[0] = {"40001", "Port, \"A\"", "170,10", "GC", 5, 14.0F, 0, start, sailing, Seaplan::PortPoint};
    plan.book[1] = {"", "", "180,12", "RL", 5, 10.1F, 0, arrival, arrival, Seaplan::PlainPoint};
    plan.book[2] = {"40002", "B", "-170.5,-14", "GC", 5, 10.1F, 0, arrival, arrival, Seaplan::PortPoint};
    return plan;
}

}  // namespace Tarvik::Client

// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/interface/PlanRecords.h>

namespace Tarvik::Client {

/// A voyage over the date line with figures that are easy to check.
inline Interface::PlanResult SamplePlan() {
    using Util::_datetime_t;
    const _datetime_t start(0, 0, 8, 1, 12, 2026);
    const _datetime_t sailing(0, 0, 20, 1, 12, 2026);
    const _datetime_t arrival(0, 0, 20, 11, 12, 2026);
    Interface::PlanResult plan;
    plan.rows = {{"40001", "Port, \"A\"", "L", 14.0F, 0, 0, 12.0F, start, sailing, 0},
                 {"40002", "B", "D", 10.1F, 0.125F, 240.0F, 0, arrival, arrival, 2400.5F}};
    plan.totals = {12.0F, 240.0F, 2400.5F, start, arrival};
    plan.summary = {10.0F, 240.0F, 2400.5F};
    plan.linePieces = {{"170,10", "179.99,12"}, {"-179.99,12", "-170.5,-14"}};
    using Interface::WaypointKind;
    plan.route = {{"40001", "Port, \"A\"", "170,10", "GC", 14.0F, start, sailing, WaypointKind::Port},
                  {"", "", "180,12", "RL", 10.1F, arrival, arrival, WaypointKind::Plain},
                  {"40002", "B", "-170.5,-14", "GC", 10.1F, arrival, arrival, WaypointKind::Port}};
    plan.table.columns = {{"IDS_PORTCALL_ORDER", "No.", "", true},
                          {"IDS_PORTCALL_PORT", "Port", "", false},
                          {"IDS_PORTCALL_PURPOSE", "IDS_PORTCALL_PURPOSE", "", false},
                          {"IDS_PORTCALL_SPEED", "Speed", "kts", true},
                          {"IDS_PORTCALL_WEATHER", "IDS_PORTCALL_WEATHER", "", true},
                          {"IDS_PORTCALL_STEAMTIME", "IDS_PORTCALL_STEAMTIME", "days", true},
                          {"IDS_PORTCALL_ATPORTTIME", "IDS_PORTCALL_ATPORTTIME", "days", true},
                          {"IDS_PORTCALL_ETA", "IDS_PORTCALL_ETA", "", false},
                          {"IDS_PORTCALL_ETD", "IDS_PORTCALL_ETD", "", false},
                          {"IDS_PORTCALL_DISTANCE", "IDS_PORTCALL_DISTANCE", "NM", true}};
    plan.table.rows = {{"1", "Port, \"A\"", "L", "14.00", "0%", "0.00", "0.50", "2026-12-01 08:00:00",
                        "2026-12-01 20:00:00", "0.00"},
                       {"2", "B", "D", "10.10", "12%", "10.00", "0.00", "2026-12-11 20:00:00",
                        "2026-12-11 20:00:00", "2400.50"}};
    plan.table.totals = {
        "RES", "", "", "", "", "10.0", "0.50", "2026-12-01 08:00:00", "2026-12-11 20:00:00", "2400.50"};
    plan.figures = {{"Average speed", "10.0", "kts"},
                    {"Total distance", "2400.5", "NM"},
                    {"Total time", "10.00", "days"}};
    return plan;
}

}  // namespace Tarvik::Client

// SPDX-License-Identifier: MIT
#include "seaplan/views/preview/SampleVoyages.h"

#include "seaplan/panels/tests/DeskRoutes.h"

namespace Tarvik::Seaplan {

namespace {

struct Call {
    const char* port;
    const char* purpose;
    float speed;
    float weather;
    float hoursInPort;
    float miles;
};

/// Port calls from a day of March 2024 on, with the lengths of their legs.
PortCallRows CallsOf(PanelDesk& desk, int day, std::initializer_list<Call> calls) {
    PortCallRows rows;
    for (const Call& call : calls) {
        if (!rows.empty()) {
            desk.routes->SetLeg(rows.back().ppn, call.port, static_cast<double>(call.miles));
        }
        VoyPortCall row;
        row.ppn = call.port;
        row.pp = call.purpose;
        row.psp = call.speed;
        row.pw = call.weather;
        row.apt = call.hoursInPort;
        rows.push_back(row);
    }
    rows.front().eta = Util::_datetime_t(0, 0, 8, day, 3, 2024);
    return rows;
}

}  // namespace

void AddSampleVoyages(PanelDesk& desk) {
    for (const char* name : {"Container 2024", "Bulk", "Charter, spring", "Old plans"}) {
        desk.AddCategory(name);
    }
    desk.MoveCategory("Old plans", InRecycleBin);
    desk.AddVoyage("Container 2024", {.name = "Far East 12",
                                      .vsi = "7",
                                      .vsn = "NORTHERN LIGHT",
                                      .pinned = true,
                                      .remark = true,
                                      .calls = CallsOf(desk, 20,
                                                       {{"ROTTERDAM", "L", 0, 0, 18, 0},
                                                        {"SUEZ CANAL", "C", 16.5F, 0.05F, 14, 3285},
                                                        {"COLOMBO", "Z", 16.5F, 0.05F, 9, 3415},
                                                        {"SINGAPORE", "D", 16, 0.1F, 30, 1567},
                                                        {"SHANGHAI", "D", 15.5F, 0.1F, 48, 2240}})});
    desk.AddVoyage(
        "Container 2024",
        {.name = "Baltic feeder",
         .vsn = "ANNA",
         .calls = CallsOf(desk, 1, {{"HAMBURG", "L", 0, 0, 12, 0}, {"GDANSK", "D", 14, 0, 24, 410}})});
    desk.AddVoyage("Container 2024", {.name = "North Sea"});
    desk.AddVoyage("Container 2024", {.name = "Cancelled", .state = InRecycleBin});
    desk.AddVoyage("Bulk", {.name = "Ore to Rotterdam"});
}

PortDirectory SamplePorts() {
    return {{"ROTTERDAM", "ROSTOCK", "ROUEN", "HAMBURG", "GDANSK", "SUEZ CANAL", "COLOMBO", "SINGAPORE",
             "SHANGHAI"},
            {{"鹿特丹", "ROTTERDAM"}, {"汉堡", "HAMBURG"}, {"新加坡", "SINGAPORE"}, {"上海", "SHANGHAI"}},
            {}};
}

}  // namespace Tarvik::Seaplan

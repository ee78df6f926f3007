// SPDX-License-Identifier: MIT
#include "seaplan/views/preview/SampleVoyages.h"

namespace Tarvik::Seaplan {

namespace {

struct Call {
    const char* port;
    const char* purpose;
    float speed;
    float weather;
    float hoursInPort;
    float distance;
};

PortCallRows scheduleOf(int day, std::initializer_list<Call> calls) {
    PortCallRows rows;
    for (const Call& call : calls) {
        VoyPortCall row;
        row.ppn = call.port;
        row.pp = call.purpose;
        row.psp = call.speed;
        row.pw = call.weather;
        row.apt = call.hoursInPort;
        row.distance = call.distance;
        rows.push_back(row);
    }
    PortCallRows out;
    BuildSchedule(Util::_datetime_t(0, 0, 8, day, 3, 2024), rows, out);
    for (std::size_t i = 0; i < out.size(); ++i) {
        out[i].pp = rows[i].pp;
    }
    return out;
}

VoyInfo& AddVoyage(FakeCatalog& catalog, const std::string& ci, const std::string& vi,
                   const std::string& name, int state = InUse) {
    catalog.onServer.categoryVoyages[ci][vi] = state;
    VoyInfo& voyage = catalog.onServer.voyages[vi];
    voyage.vi = vi;
    voyage.vn = name;
    return voyage;
}

void addCategory(FakeCatalog& catalog, const std::string& ci, const std::string& name, int state = InUse) {
    catalog.onServer.categories[ci] = {ci, name, 0};
    catalog.onServer.categoryStates[ci] = state;
}

}  // namespace

void AddSampleVoyages(FakeCatalog& catalog, FakeSchedule& schedule) {
    addCategory(catalog, "1", "Container 2024");
    addCategory(catalog, "2", "Bulk");
    addCategory(catalog, "3", "Charter, spring");
    addCategory(catalog, "4", "Old plans", InRecycleBin);
    VoyInfo& east = AddVoyage(catalog, "1", "10", "Far East 12");
    east.vsi = "7";
    east.vsn = "NORTHERN LIGHT";
    east.vr = 1;
    east.vrk = 1;
    AddVoyage(catalog, "1", "11", "Baltic feeder").vsn = "ANNA";
    AddVoyage(catalog, "1", "12", "North Sea");
    AddVoyage(catalog, "1", "13", "Cancelled", InRecycleBin);
    AddVoyage(catalog, "2", "20", "Ore to Rotterdam");
    schedule.onServer["10"] = scheduleOf(20, {{"ROTTERDAM", "L", 0, 0, 18, 0},
                                              {"SUEZ CANAL", "C", 16.5F, 0.05F, 14, 3285},
                                              {"COLOMBO", "Z", 16.5F, 0.05F, 9, 3415},
                                              {"SINGAPORE", "D", 16, 0.1F, 30, 1567},
                                              {"SHANGHAI", "D", 15.5F, 0.1F, 48, 2240}});
    schedule.onServer["11"] = scheduleOf(1, {{"HAMBURG", "L", 0, 0, 12, 0}, {"GDANSK", "D", 14, 0, 24, 410}});
    for (const auto& [vi, rows] : schedule.onServer) {
        catalog.onServer.voyages[vi].positionBook.points.resize(2);
    }
}

PortDirectory SamplePorts() {
    return {{"ROTTERDAM", "ROSTOCK", "ROUEN", "HAMBURG", "GDANSK", "SUEZ CANAL", "COLOMBO", "SINGAPORE",
             "SHANGHAI"},
            {{"鹿特丹", "ROTTERDAM"}, {"汉堡", "HAMBURG"}, {"新加坡", "SINGAPORE"}, {"上海", "SHANGHAI"}},
            {}};
}

}  // namespace Tarvik::Seaplan

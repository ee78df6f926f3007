// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/window/FleetWindow.h"

#include "host/plugins/fleet/core/VesselDraft.h"
#include "host/plugins/fleet/window/Words.h"

namespace Tarvik::Fleet {

namespace {

struct VesselColumn {
    Skin::ListWindow::Column look;
    std::string VesselDraft::*text;
};

const VesselColumn kColumns[] = {
    {{"NAME"}, &VesselDraft::name},
    {{"MMSI", 86}, &VesselDraft::mmsi},
    {{"IMO", 72}, &VesselDraft::imo},
    {{"CALLSIGN", 82}, &VesselDraft::callSign},
    {{"TYPE", 120}, &VesselDraft::type},
    {{"LENGTH", 78, true}, &VesselDraft::length},
    {{"SPEED", 120, true}, &VesselDraft::speed},
};

Skin::ListWindow::Plan PlanOfList() {
    constexpr QSize kSize(720, 360);
    Skin::ListWindow::Plan plan{"fleetPanel", "fleetClose", "fleetTable", "fleetNote", "VESSELS",
                                kSize,        {},           &Word,        "fleet"};
    for (const VesselColumn& column : kColumns) {
        plan.columns.push_back(column.look);
    }
    return plan;
}

}  // namespace

FleetWindow::FleetWindow(QWidget* mainWindow, const Reports& reports)
    : ListWindow(
          mainWindow, PlanOfList(),
          {{"fleetAdd", "ADD", Qt::CTRL | Qt::Key_N, Scope::List, [reports](const auto&) { reports.add(); }},
           {"fleetChange", "CHANGE", Qt::Key_F2, Scope::Row, reports.change},
           {"fleetRemove", "REMOVE", Qt::Key_Delete, Scope::Row, reports.remove},
           {"fleetImport", "IMPORT", Qt::CTRL | Qt::Key_O, Scope::Apart,
            [reports](const auto&) { reports.import(); }}}) {}

void FleetWindow::ShowVessels(const std::vector<Interface::FleetVessel>& vessels) {
    std::vector<Row> rows;
    for (const Interface::FleetVessel& vessel : vessels) {
        const VesselDraft texts = VesselDraft::Of(vessel);
        Row& row = rows.emplace_back(Row{vessel.id, {}});
        for (const VesselColumn& column : kColumns) {
            row.texts.push_back(texts.*column.text);
        }
    }
    ShowRows(rows);
}

}  // namespace Tarvik::Fleet

// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/DistanceTable.h"

#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/VoyageFilling.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

int DistanceTable::Open() {
    if (filling_.OpenDistanceTable() != 0) {
        return -1;
    }
    ShowBesideTree(desk_);
    return 0;
}

int DistanceTable::AddPort(const std::string& name) {
    if (name.empty()) {
        return -1;
    }
    if (!IsOpen() && Open() != 0) {
        return -2;
    }
    const PortCallDesk::Report report(desk_);
    // A name that is being typed takes its row first.
    editing_.CommitEditors();
    PortCallTable& table = desk_.Sheet().table;
    table.GrowIfLast(FirstBlankRow(table) - 1);
    const int row = FirstBlankRow(table);
    const std::string spelled = desk_.Ports().NameOf(name);
    PortCallRows port(1);
    port[0].ppn = spelled.empty() ? name : spelled;
    desk_.Voyages().ResolvePortIds(port);
    table.SetPort(row, port[0].ppn, port[0].ppi);
    table.GrowIfLast(row);
    desk_.Sheet().MarkChanged(desk_.Ports());
    desk_.History().Take({TextIds::IDS_VIEW_EDITPORT, row});
    desk_.Show();
    desk_.View().BringRowIntoView(row);
    return 0;
}

int DistanceTable::CountPlaces() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    // A voyage is made of the rows from the first one on, up to a blank one.
    const PortCallSheet& sheet = desk_.Sheet();
    return sheet.table.ReadRows().size() < 2 ? 0 : sheet.PlaceCount(desk_.Ports());
}

void DistanceTable::KeepAs(const std::string& vi) {
    const PortCallDesk::Report report(desk_);
    filling_.Adopt(vi);
    commands_.SavePlain();
}

bool DistanceTable::IsUnkept() const {
    return desk_.Sheet().IsUnkeptTable();
}

bool DistanceTable::IsOpen() const {
    return desk_.View().IsVisible() && desk_.Sheet().state.distanceTable;
}

}  // namespace Tarvik::Seaplan

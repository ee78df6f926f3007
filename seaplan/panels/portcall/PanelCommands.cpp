// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PanelCommands.h"

#include <algorithm>

#include "seaplan/calculation/Schedule.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kHelpTopic = "func034";

}  // namespace

int PanelCommands::Prepare(PortCallRows& rows) const {
    PortCallRows read = desk_.Sheet().table.ReadRows();
    PrepareFirstPurpose(read);
    PortCallRows kept;
    if (DropSamePortRows(read, desk_.Ports().SamePorts(), kept) != 0) {
        return -1;
    }
    return ToStandardUnits(kept, desk_.Sheet().Units(), rows) == 0 ? 0 : -2;
}

int PanelCommands::Calculate() {
    PortCallSheet& sheet = desk_.Sheet();
    PortCallRows rows;
    if (Prepare(rows) != 0) {
        return -1;
    }
    PortCallRows result;
    int hadPortCalls = 0;
    const bool failed = [&] {
        const PortCallDesk::Busy busy(desk_);
        return desk_.Voyages().CalculateForVoyage(sheet.voyageId, rows, result, hadPortCalls) != 0;
    }();
    if (failed) {
        return -2;
    }
    if (hadPortCalls == 0) {
        KeepPortIds(rows, result);
        return desk_.ShowChangedRows(result) == 0 ? 0 : -3;
    }
    // The result stands in the voyage already, with all that was changed here: nothing is left to ask about.
    sheet.MarkUnchanged();
    desk_.Voyages().RemoveVoyageObjects(sheet.voyageId);
    desk_.View().Hide();
    const int filled = filling_.Fill(1);
    desk_.View().Show();
    if (filled != 0) {
        return -4;
    }
    if (filling_.SaveTable(sheet.voyageId, -1) == 0) {
        return 0;
    }
    sheet.MarkChanged(desk_.Ports());
    return -5;
}

void PanelCommands::OnCalculate() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    int corrected = 0;
    if (desk_.Voyages().GetModAis(desk_.Sheet().voyageId, corrected) != 0) {
        return;
    }
    if (corrected <= 0) {
        Calculate();
    } else if (corrected_.Calculate() != 0) {
        desk_.ToPerson().Notice(TextId::IDS_PORTCALL_AISCOMPUTWARN);
    }
}

int PanelCommands::OnRouteChosen() {
    // A closed panel has no table of its own to follow with.
    if (!desk_.View().IsVisible()) {
        return -4;
    }
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return -1;
    }
    PortCallRows result;
    if (desk_.Voyages().ScheduleCurrentRoute(rows, result) != 0) {
        return -2;
    }
    KeepPortIds(rows, result);
    return desk_.ShowChangedRows(result) == 0 ? 0 : -3;
}

void PanelCommands::OnSave() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    int corrected = 0;
    if (!desk_.Sheet().state.changed || desk_.Voyages().GetModAis(desk_.Sheet().voyageId, corrected) != 0) {
        return;
    }
    if (corrected > 0) {
        corrected_.Calculate();
    } else {
        SavePlain();
    }
}

int PanelCommands::SavePlain() {
    PortCallSheet& sheet = desk_.Sheet();
    const PortCallRows rows = sheet.table.ReadRows();
    if (rows.size() < 2) {
        return -1;
    }
    const bool missing = std::any_of(rows.begin() + 1, rows.end(), [](const VoyPortCall& row) {
        return static_cast<double>(row.distance) < kNoDistance;
    });
    const VoyInfo* voyage = desk_.Store().FindVoyage(sheet.voyageId);
    const bool hasBook = voyage != nullptr && !voyage->positionBook.points.empty();
    if (missing || (!hasBook && !desk_.Voyages().Module().Pending().IsThere())) {
        Calculate();
    }
    if (filling_.SaveTable(sheet.voyageId, 1) != 0) {
        desk_.ToPerson().Notice(TextId::IDS_PORTCALL_SAVEEXCEPTION);
        return -2;
    }
    sheet.MarkUnchanged();
    sheet.state.canOpenBook = true;
    return 0;
}

void PanelCommands::OnClear() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    PortCallView& view = desk_.View();
    view.Hide();
    if (desk_.ToPerson().Confirm(TextId::IDS_PORTCALL_CLEARFORBLANK)) {
        desk_.Sheet().Clear();
        desk_.Voyages().Module().Pending().NoteRowsChanged();
        desk_.Voyages().ClearChart();
        desk_.Show();
        view.BringRowIntoView(0);
    }
    view.Show();
}

void PanelCommands::OnClose() {
    const PortCallDesk::Report report(desk_);
    PortCallSheet& sheet = desk_.Sheet();
    editing_.CommitEditors();
    if (sheet.state.changed) {
        if (!desk_.ToPerson().Question(TextId::IDS_PORTCALL_CLOSESAVE)) {
            return;
        }
        desk_.Voyages().DiscardPortCalls(sheet.voyageId);
    }
    sheet.MarkUnchanged();
    desk_.View().Hide();
    desk_.Voyages().ClearChart();
}

void PanelCommands::OnHelp() {
    desk_.View().RequestHelp(kHelpTopic, kHelpWidth, kHelpHeight);
}

int PanelCommands::OnUnitChosen(UnitKind kind, const std::string& unit) {
    const PortCallDesk::Report report(desk_);
    return desk_.Sheet().ChangeUnit(kind, unit, desk_.IsCorrected());
}

}  // namespace Tarvik::Seaplan

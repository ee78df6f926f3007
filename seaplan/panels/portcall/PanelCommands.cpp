// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PanelCommands.h"

#include <algorithm>

#include "seaplan/calculation/PortPreparation.h"
#include "seaplan/panels/language/Messages.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kNoDistance = 0.0001;
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
        return desk_.Schedule().CalculateForVoyage(sheet.voyageId, rows, result, hadPortCalls) != 0;
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
    desk_.Schedule().RemoveVoyageObjects(sheet.voyageId);
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
    if (desk_.Schedule().GetModAis(desk_.Sheet().voyageId, corrected) != 0) {
        return;
    }
    if (corrected <= 0) {
        Calculate();
    } else if (corrected_.Calculate() != 0) {
        desk_.Tell(TextId::IDS_PORTCALL_AISCOMPUTWARN);
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
    if (desk_.Schedule().ScheduleCurrentRoute(rows, result) != 0) {
        return -2;
    }
    KeepPortIds(rows, result);
    return desk_.ShowChangedRows(result) == 0 ? 0 : -3;
}

void PanelCommands::OnSave() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    int corrected = 0;
    if (!desk_.Sheet().state.changed || desk_.Schedule().GetModAis(desk_.Sheet().voyageId, corrected) != 0) {
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
    if (missing || (!hasBook && !desk_.Schedule().HasPendingRoute())) {
        Calculate();
    }
    if (filling_.SaveTable(sheet.voyageId, 1) != 0) {
        desk_.Tell(TextId::IDS_PORTCALL_SAVEEXCEPTION);
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
    view.SetEnabled(false);
    const bool empty = OkOrCancel(TextId::IDS_PORTCALL_CLEARFORBLANK, view.Handle());
    view.SetEnabled(true);
    if (empty) {
        desk_.Sheet().Clear();
        desk_.Schedule().RouteChanged();
        desk_.Schedule().ClearChart();
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
        if (!desk_.Ask(TextId::IDS_PORTCALL_CLOSESAVE)) {
            return;
        }
        desk_.Schedule().DiscardPortCalls(sheet.voyageId);
    }
    sheet.MarkUnchanged();
    desk_.View().Hide();
    desk_.Schedule().ClearChart();
}

void PanelCommands::OnHelp() {
    desk_.View().RequestHelp(kHelpTopic);
}

int PanelCommands::OnUnitChosen(UnitKind kind, const std::string& unit) {
    const PortCallDesk::Report report(desk_);
    return desk_.Sheet().ChangeUnit(kind, unit, desk_.IsCorrected());
}

int PanelCommands::ShowMoved(int result, const PortCallRows& rows) {
    if (result == 0) {
        desk_.Sheet().table.WritePartial(rows, desk_.IsCorrected());
        desk_.Sheet().MarkChanged(desk_.Ports());
        desk_.Show();
    }
    return result;
}

int PanelCommands::Move(int row, const std::string& name) {
    const PortCallTable& table = desk_.Sheet().table;
    const PortCallRows rows = table.ReadAllRows();
    PortCallRows moved;
    if (name == "itemdel") {
        return ShowMoved(desk_.Schedule().DeleteRow(rows, row, moved), moved);
    }
    if (name != "itemMoveUp" && name != "itemMovedown") {
        return -3;
    }
    const bool up = name == "itemMoveUp";
    const int result = ShowMoved(
        up ? desk_.Schedule().MoveRowUp(rows, row, moved) : desk_.Schedule().MoveRowDown(rows, row, moved),
        moved);
    const int target = up ? row - 1 : row + 1;
    if (result == 0 && (up || !table.IsBlank(target))) {
        desk_.View().SelectRow(target);
    }
    return result;
}

int PanelCommands::OnItemImage(int row, const std::string& name) {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const PortCallTable& table = desk_.Sheet().table;
    if (!table.IsNumbered(row) || table.IsBlank(row)) {
        return -1;
    }
    int corrected = 0;
    if (desk_.Schedule().GetModAis(desk_.Sheet().voyageId, corrected) != 0) {
        return -2;
    }
    const int ship = table.FindLastAisRow();
    if (corrected > 0 && ship < 0) {
        return -2;
    }
    // No port moves above the ship's position.
    if (name == "itemMoveUp" && corrected > 0 && row - 1 == ship) {
        return 0;
    }
    const int result = Move(row, name);
    editing_.CommitEditors();
    return result;
}

bool PanelCommands::OnTableKey(KeyPress press, int row, int column) {
    switch (press.key) {
        case Key::Enter:
        case Key::F2:
            editing_.OnCellClicked(row, column);
            return true;
        case Key::Delete:
            OnItemImage(row, "itemdel");
            return true;
        case Key::Up:
        case Key::Down:
            if (press.alt) {
                OnItemImage(row, press.key == Key::Up ? "itemMoveUp" : "itemMovedown");
            }
            return press.alt;
        case Key::Escape:
            // Closes what is open over the cells.
            editing_.CommitEditors();
            return true;
        default:
            return false;
    }
}

}  // namespace Tarvik::Seaplan

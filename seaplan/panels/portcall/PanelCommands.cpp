// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PanelCommands.h"

#include <algorithm>
#include <utility>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/CorrectedSchedule.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/portcall/VoyageFilling.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kHelpTopic = "func034";
/// Result of Calculate for a saved voyage that has its new rows, which the server did not take.
constexpr int kCalculatedNotSaved = -5;

/// A notice with the cause of the last failure as its second line.
void TellFailure(PortCallDesk& desk, TextId id) {
    desk.ToPerson().Notice(id, desk.Sheet().cause);
}

}  // namespace

int PanelCommands::Prepare(PortCallRows& rows) const {
    PortCallRows read;
    if (desk_.Sheet().ReadUnrounded(read) != 0) {
        return -1;
    }
    PrepareFirstPurpose(read);
    return DropSamePortRows(read, desk_.Ports().SamePorts(), rows) == 0 ? 0 : -1;
}

/// The schedule of new rows. A distance table has no voyage whose legs could be kept; its route waits for the
/// one that it may become.
int PanelCommands::Schedule(const PortCallRows& rows, PortCallRows& result, int& hadPortCalls) {
    VoyController& voyages = desk_.Voyages();
    const PortCallSheet& sheet = desk_.Sheet();
    if (!sheet.state.distanceTable) {
        return voyages.CalculateForVoyage(sheet.voyageId, rows, result, hadPortCalls);
    }
    const int code = voyages.CalculatePortCalls(rows, result);
    if (code == 0) {
        voyages.Module().Pending().Assign(sheet.voyageId);
    }
    return code;
}

int PanelCommands::Calculate() {
    PortCallRows rows;
    if (Prepare(rows) != 0) {
        desk_.Sheet().cause = Text(TextIds::IDS_VIEW_NEEDTWOPORTS);
        return -1;
    }
    PortCallRows result;
    int hadPortCalls = 0;
    const bool failed = [&] {
        const PortCallDesk::Busy busy(desk_);
        return Schedule(rows, result, hadPortCalls) != 0;
    }();
    if (failed) {
        desk_.SetCauseOfFault();
        return -2;
    }
    const PortCallNote note = NoteOfRoute();
    const int shown = hadPortCalls == 0 ? ShowCalculated(rows, std::move(result)) : ShowAndSave();
    desk_.SetNote(note);
    return shown;
}

/// Known legs are told with the day of the oldest, in the zone of the rows, for as long as these stand there.
PortCallNote PanelCommands::NoteOfRoute() const {
    return NoteOfKnownLegs(desk_.Voyages().Module().Pending().KnownSince(), desk_.Sheet().state.zone);
}

int PanelCommands::ShowCalculated(const PortCallRows& rows, PortCallRows result) {
    KeepPortIds(rows, result);
    if (desk_.ShowChangedRows(result) != 0) {
        return -3;
    }
    desk_.Sheet().stored.NoteRoute(desk_.Sheet().table);
    return 0;
}

/// The result stands in the voyage already, with all that was changed here: nothing is left to ask about.
int PanelCommands::ShowAndSave() {
    PortCallSheet& sheet = desk_.Sheet();
    const auto stored = sheet.stored;
    const bool unread = sheet.unread;
    sheet.state.changed = false;
    desk_.Voyages().RemoveVoyageObjects(sheet.voyageId);
    desk_.View().Hide();
    const int filled = filling_.Fill(1);
    desk_.View().Show();
    if (filled != 0) {
        return -4;
    }
    // What stands there now was calculated, and tells nothing of the port calls that the server has.
    sheet.unread = unread;
    if (filling_.SaveTable(sheet.voyageId, -1) == 0) {
        return 0;
    }
    sheet.stored = stored;
    sheet.stored.NoteRoute(sheet.table);
    sheet.MarkChanged(desk_.Ports());
    return kCalculatedNotSaved;
}

void PanelCommands::OnCalculate() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    int corrected = 0;
    if (desk_.Voyages().GetModAis(desk_.Sheet().voyageId, corrected) != 0) {
        return;
    }
    if (corrected <= 0) {
        if (Calculate() == kCalculatedNotSaved) {
            TellFailure(desk_, TextIds::IDS_PORTCALL_SAVEEXCEPTION);
        }
    } else if (corrected_.Calculate() != 0) {
        TellFailure(desk_, TextIds::IDS_PORTCALL_AISCOMPUTWARN);
    }
    desk_.History().Take({TextIds::IDS_VIEW_EDITCALCULATE});
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
    if (!desk_.Voyages().Module().Pending().IsFor(desk_.Sheet().voyageId) ||
        desk_.Voyages().ScheduleCurrentRoute(rows, result) != 0) {
        return -2;
    }
    desk_.SetNote(NoteOfRoute());
    const int shown = ShowCalculated(rows, std::move(result));
    desk_.History().Take({TextIds::IDS_VIEW_EDITROUTE});
    return shown;
}

void PanelCommands::OnSave() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const PortCallSheet& sheet = desk_.Sheet();
    if (sheet.state.changed && sheet.IsUnkeptTable()) {
        return desk_.AskToKeepTable();
    }
    int corrected = 0;
    if (!sheet.state.changed || desk_.Voyages().GetModAis(sheet.voyageId, corrected) != 0) {
        return;
    }
    if (corrected > 0) {
        // There is no box for it.
        const bool failed = corrected_.Calculate() != 0;
        TellInStatusLine(failed ? Text(TextIds::IDS_VIEW_CORRECTIONNOTSAVED, {desk_.Sheet().cause})
                                : std::string());
    } else {
        SavePlain();
    }
}

/// Saves the rows, calculated first where they have no distances, or the voyage no book or route of theirs.
/// 0; -1 fewer than two rows; -2 they cannot be calculated, and nothing was sent; -3 not saved.
int PanelCommands::SaveRows(int drawMode) {
    PortCallSheet& sheet = desk_.Sheet();
    const PortCallRows rows = sheet.table.ReadRows();
    if (rows.size() < 2) {
        desk_.Sheet().cause = Text(TextIds::IDS_VIEW_NEEDTWOPORTS);
        return -1;
    }
    const bool missing = std::any_of(rows.begin() + 1, rows.end(), [](const VoyPortCall& row) {
        return static_cast<double>(row.distance) < kNoDistance;
    });
    if (missing || !desk_.Voyages().HasRouteFor(sheet.voyageId, rows)) {
        if (Calculate() != 0) {
            return -2;
        }
        // The calculation of a saved voyage has saved it, and only a drawing is left to do.
        if (!sheet.state.changed && drawMode < 0) {
            return 0;
        }
    }
    return filling_.SaveTable(sheet.voyageId, drawMode) == 0 ? 0 : -3;
}

void PanelCommands::SavePlain() {
    const PortCallDesk::Report report(desk_);
    const int result = SaveRows(1);
    if (result < -1) {
        TellFailure(desk_, TextIds::IDS_PORTCALL_SAVEEXCEPTION);
    } else if (result == 0) {
        desk_.Sheet().MarkUnchanged();
        desk_.Sheet().state.canOpenBook = true;
    }
    // A save may have calculated first.
    desk_.History().Take({TextIds::IDS_VIEW_EDITCALCULATE});
}

int PanelCommands::SaveBeforeLeaving() {
    int corrected = 0;
    const bool known = desk_.Voyages().GetModAis(desk_.Sheet().voyageId, corrected) == 0;
    // Rows of a corrected voyage hold the ship's positions, which are no port calls.
    if (known && (corrected > 0 ? corrected_.Calculate() : SaveRows(-1)) == 0) {
        return 0;
    }
    TellFailure(desk_, TextIds::IDS_PORTCALL_SAVEEXCEPTION);
    return -1;
}

void PanelCommands::OnClear() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    PortCallView& view = desk_.View();
    view.Hide();
    if (desk_.ToPerson().Confirm(TextIds::IDS_PORTCALL_CLEARFORBLANK, desk_.LossWords())) {
        if (desk_.Sheet().state.changed) {
            filling_.GiveUp();
        }
        desk_.Sheet().Clear();
        desk_.History().Take({TextIds::IDS_VIEW_EDITCLEAR});
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
        if (!desk_.ToPerson().Question(TextIds::IDS_PORTCALL_CLOSESAVE, desk_.LossWords())) {
            return;
        }
        filling_.GiveUp();
    }
    // Nothing brings the rows of a distance table back, which begins anew when it opens.
    if (sheet.IsUnkeptTable()) {
        sheet.Clear();
    }
    sheet.MarkUnchanged();
    desk_.View().Hide();
    desk_.Voyages().ClearChart();
}

void PanelCommands::OnPositionBook() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const PortCallSheet& sheet = desk_.Sheet();
    CPosBookDlg* dialog = desk_.Given().book ? desk_.Given().book() : nullptr;
    if (dialog == nullptr || !sheet.state.canOpenBook) {
        return;
    }
    if (sheet.state.changed && !desk_.ToPerson().Confirm(TextIds::IDS_PORTCALL_WARNSAVEFORPSBK)) {
        return;
    }
    PosBookData book;
    if (desk_.Voyages().GetPosBookData(sheet.voyageId, book) == 0) {
        bookVoyage_ = sheet.voyageId;
        dialog->ShowBook(book);
    }
}

int PanelCommands::SavePositionBook(const PosBookData& book) {
    const PortCallDesk::Report report(desk_);
    const int code = [&] {
        const PortCallDesk::Busy busy(desk_);
        return desk_.Voyages().SavePositionBook(bookVoyage_, book);
    }();
    if (code != 0) {
        desk_.ToPerson().Notice(TextIds::IDS_PORTCALL_SAVEEXCEPTION,
                                BookCauseText(desk_.Voyages().LastFault(), book, desk_.Sheet().table));
        return code;
    }
    desk_.TellSaved(bookVoyage_);
    // The tree may have opened another voyage meanwhile, which stays on show.
    if (desk_.Sheet().voyageId == bookVoyage_) {
        filling_.Refill();
        desk_.View().Show();
    }
    desk_.Voyages().RemoveVoyageObjects(bookVoyage_);
    desk_.Voyages().ShowVoyage(bookVoyage_);
    return 0;
}

void PanelCommands::OnHelp() {
    desk_.View().RequestHelp(kHelpTopic, kHelpWidth, kHelpHeight);
}

std::vector<std::string> PanelCommands::OnUnitsAsked(UnitKind kind) {
    editing_.CommitEditors();
    const auto offered = OfferedUnits(kind);
    return {offered.begin(), offered.end()};
}

int PanelCommands::OnUnitChosen(UnitKind kind, const std::string& unit) {
    const PortCallDesk::Report report(desk_);
    const int changed = desk_.Sheet().ChangeUnit(kind, unit, desk_.IsCorrected());
    desk_.History().Take({TextIds::IDS_VIEW_EDITUNIT});
    return changed;
}

void PanelCommands::OnUndo() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    desk_.History().GoBack();
}

void PanelCommands::OnRedo() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    desk_.History().GoForward();
}

}  // namespace Tarvik::Seaplan

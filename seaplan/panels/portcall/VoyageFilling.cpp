// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/VoyageFilling.h"

#include <utility>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/ScheduleLoading.h"
#include "seaplan/controllers/ScheduleSaving.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/controllers/VoyageRecords.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/CorrectedSchedule.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/protocol/PortCallCommands.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kNoVoyageText = "数据状态异常，请确认是否已登陆或者掉线？";

}  // namespace

int VoyageFilling::SaveTable(const std::string& vi, int drawMode) {
    if (vi.empty()) {
        return -1;
    }
    PortCallRows rows;
    desk_.Sheet().cause.clear();
    if (desk_.Sheet().ReadUnrounded(rows) != 0) {
        return -2;
    }
    if (!MayReplace(vi)) {
        return -4;
    }
    const bool done = [&] {
        const PortCallDesk::Busy busy(desk_);
        return IsScheduleSaved(desk_.Voyages().SaveSchedule(vi, rows, drawMode));
    }();
    if (!done) {
        desk_.SetCauseOfFault();
        return -3;
    }
    desk_.Sheet().unread = false;
    desk_.TellSaved(vi);
    return 0;
}

/// A table that could not be read must not replace what the server has.
bool VoyageFilling::MayReplace(const std::string& vi) {
    constexpr int kNoList = -2;
    PortCallSheet& sheet = desk_.Sheet();
    if (sheet.unread) {
        PortCallRows stored;
        const int read = desk_.Voyages().Module().LoadPortCalls(vi, stored);
        sheet.unread = read != kNoPortCalls;
        desk_.Sheet().cause =
            Text(read == kNoList ? TextIds::IDS_VIEW_FAULTCONNECTION : TextIds::IDS_VIEW_FAULTUNREAD);
    }
    return !sheet.unread;
}

bool VoyageFilling::MayLeave() {
    // Whoever comes by the keyboard has pressed nowhere that would have taken what is being typed.
    editing_.CommitEditors();
    PortCallSheet& sheet = desk_.Sheet();
    if (!sheet.state.changed) {
        return true;
    }
    // The rows in the table are what is saved, so no cell may have changed since.
    const bool save = desk_.ToPerson().Question(TextIds::IDS_PORTCALL_SAVENEXT, desk_.LossWords());
    if (save && sheet.IsUnkeptTable()) {
        // It belongs to no voyage that a save could go to: it gets one first, and stays until then.
        desk_.AskToKeepTable();
        return false;
    }
    if (!save) {
        GiveUp();
    } else if (save_() != 0) {
        return false;
    }
    sheet.MarkUnchanged();
    return true;
}

bool VoyageFilling::AskToLeave() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const bool changed = desk_.Sheet().state.changed;
    if (!MayLeave()) {
        return false;
    }
    // What was given up does not stay in sight where nothing else comes.
    if (changed) {
        desk_.History().Begin();
        Show(-1);
    }
    return true;
}

/// A calculation over a saved voyage, and a correction, have gone into its record already.
void VoyageFilling::GiveUp() {
    const std::string& vi = desk_.Sheet().voyageId;
    desk_.Voyages().DiscardPortCalls(vi);
    desk_.Voyages().Module().Pending().ForgetFor(vi);
    corrected_.GiveUp();
}

void VoyageFilling::Clear() {
    editing_.HideEditors();
    desk_.ResetSheet();
    desk_.Voyages().Module().Pending().ForgetFor(desk_.Sheet().voyageId);
    desk_.Show();
    desk_.View().BringRowIntoView(0);
    desk_.Voyages().ClearChart();
}

void VoyageFilling::Reset() {
    const PortCallDesk::Report report(desk_);
    if (!MayLeave()) {
        return;
    }
    TakeOver(next_);
    desk_.History().Begin();
    if (next_.empty()) {
        return Clear();
    }
    // Whoever asks for empty rows may not know that the voyage has some.
    Fill(-1);
}

int VoyageFilling::OpenDistanceTable() {
    const PortCallDesk::Report report(desk_);
    if (!MayLeave()) {
        return -1;
    }
    TakeOver(kDistanceTableId);
    desk_.History().Begin();
    return Fill(-1);
}

void VoyageFilling::Adopt(const std::string& vi) {
    PortCallSheet& sheet = desk_.Sheet();
    PendingRoute& route = desk_.Voyages().Module().Pending();
    if (route.IsFor(sheet.voyageId)) {
        route.Assign(vi);
    }
    sheet.voyageId = vi;
    sheet.editedVoyageId = vi;
}

void VoyageFilling::OnTimeZone(const std::string& zone) {
    const PortCallDesk::Report report(desk_);
    desk_.SetZone(zone);
    if (desk_.Sheet().IsUnkeptTable()) {
        // What was typed is nowhere else; it is read in the new zone from now on, as its head tells.
        desk_.Sheet().state.zone = zone;
        return;
    }
    // A closed panel is filled when it opens.
    if (desk_.View().IsVisible() && MayLeave()) {
        desk_.Sheet().state.zone = zone;
        desk_.History().Begin();
        Show(-1);
    }
}

/// The table of the voyage on show goes, and a route that nobody saved goes with it.
void VoyageFilling::TakeOver(const std::string& vi) {
    std::string& shown = desk_.Sheet().voyageId;
    desk_.Voyages().Module().Pending().ForgetFor(shown);
    shown = vi;
    desk_.Sheet().state.distanceTable = false;
    desk_.ShowTexts();
}

void VoyageFilling::Forget() {
    desk_.Voyages().Module().Pending().Forget();
    corrected_.GiveUp();
    next_.clear();
    PortCallSheet& sheet = desk_.Sheet();
    sheet.voyageId.clear();
    sheet.editedVoyageId.clear();
    desk_.History().Begin();
    Clear();
}

int VoyageFilling::Refill() {
    // Whoever chose another voyage meanwhile, as for its consumption, means that one still.
    const std::string next = std::exchange(next_, desk_.Sheet().voyageId);
    const int opened = Open(-1);
    next_ = next;
    return opened;
}

int VoyageFilling::Open(int mode) {
    const PortCallDesk::Report report(desk_);
    int corrected = 0;
    if (!next_.empty() && desk_.Voyages().GetModAis(next_, corrected) != 0) {
        return -1;
    }
    if (!MayLeave()) {
        return -4;
    }
    if (corrected <= 0) {
        desk_.View().Hide();
    }
    TakeOver(next_);
    desk_.History().Begin();
    return Show(mode);
}

/// The voyage on show in the form that it has now.
int VoyageFilling::Show(int mode) {
    if (desk_.IsCorrected()) {
        editing_.HideEditors();
        if (corrected_.Fill() == 0) {
            return 0;
        }
        // Without a position row the voyage is a plain one again.
        desk_.Voyages().ClearAisMod(desk_.Sheet().voyageId);
    }
    return Fill(mode);
}

int VoyageFilling::Fill(int mode) {
    Clear();
    if (desk_.Sheet().voyageId.empty()) {
        desk_.ToPerson().NoticeText(kNoVoyageText);
        return -2;
    }
    if (desk_.Sheet().IsUnkeptTable()) {
        desk_.Sheet().state.distanceTable = true;
        desk_.ShowTexts();
        return 0;
    }
    return Load(mode);
}

/// Rows that came without a book of theirs, as a save leaves them that broke off: they wait to be calculated.
/// Without any rows nobody knows whether the voyage has some.
void VoyageFilling::ShowUnfinished(int code, PortCallRows rows) {
    PortCallSheet& sheet = desk_.Sheet();
    const bool without =
        code == kLoadScheduleCodes.Of(LoadStep::Book) || code == kLoadScheduleCodes.Of(LoadStep::Totals);
    sheet.unread = !without || rows.empty();
    if (!sheet.unread) {
        ResolvePortIds(rows);
        sheet.ShowEntered(rows);
        sheet.MarkUnchanged();
        sheet.MarkChanged(desk_.Ports());
        desk_.SetNote({PortCallNote::Kind::Unfinished});
    }
}

int VoyageFilling::Load(int mode) {
    PortCallSheet& sheet = desk_.Sheet();
    PortCallRows loaded;
    const int code = [&] {
        const PortCallDesk::Busy busy(desk_);
        return desk_.Voyages().LoadSchedule(sheet.voyageId, loaded, mode);
    }();
    if (!IsScheduleLoaded(code)) {
        Clear();
        ShowUnfinished(code, std::move(loaded));
        return 0;
    }
    PortCallRows rows;
    if (RecomputeSchedule(loaded, rows) != 0) {
        return -3;
    }
    desk_.Voyages().ResolvePortIds(rows);
    if (sheet.ShowRows(rows, desk_.IsCorrected()) != 0) {
        return -3;
    }
    sheet.MarkLoaded(rows);
    sheet.state.canClear = true;
    sheet.state.canOpenBook = true;
    sheet.state.canCalculate = true;
    return 0;
}

int VoyageFilling::ShowCorrection() {
    const PortCallDesk::Report report(desk_);
    if (const int filled = Open(-1); filled != 0) {
        return filled;
    }
    // A correction that cannot be split has been given up, and the plain voyage is shown.
    if (!desk_.IsCorrected()) {
        return -5;
    }
    corrected_.MarkFresh();
    return 0;
}

void VoyageFilling::SetCorrectionTime(const std::string& time) {
    corrected_.SetTime(next_, time);
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/VoyageFilling.h"

#include <utility>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/PortDirectory.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kNoVoyageText = "数据状态异常，请确认是否已登陆或者掉线？";

}  // namespace

int VoyageFilling::SaveTable(const std::string& vi, int drawMode) {
    if (vi.empty()) {
        return -1;
    }
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return -2;
    }
    if (!MayReplace(vi)) {
        return -4;
    }
    const bool failed = [&] {
        const PortCallDesk::Busy busy(desk_);
        return desk_.Voyages().SaveSchedule(vi, rows, drawMode) != 0;
    }();
    if (failed) {
        return -3;
    }
    desk_.Sheet().unread = false;
    desk_.TellSaved(vi);
    return 0;
}

/// A table that could not be read must not replace what the server has.
bool VoyageFilling::MayReplace(const std::string& vi) {
    constexpr int kNoneStored = -3;
    PortCallSheet& sheet = desk_.Sheet();
    if (sheet.unread) {
        PortCallRows stored;
        sheet.unread = desk_.Voyages().Module().LoadPortCalls(vi, stored) != kNoneStored;
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
    if (!desk_.ToPerson().Question(TextId::IDS_PORTCALL_SAVENEXT)) {
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
    if (changed && (!desk_.IsCorrected() || corrected_.Fill() != 0)) {
        Fill(-1);
    }
    return true;
}

// The calculation of a saved voyage, or a correction, may stand in its record already.
void VoyageFilling::GiveUp() {
    corrected_.ForgetTime();
    desk_.Voyages().DiscardPortCalls(desk_.Sheet().voyageId);
}

void VoyageFilling::Clear() {
    editing_.HideEditors();
    desk_.ResetSheet();
    desk_.Voyages().Module().Pending().Forget();
    desk_.Show();
    desk_.View().BringRowIntoView(0);
    desk_.Voyages().ClearChart();
}

void VoyageFilling::Reset() {
    const PortCallDesk::Report report(desk_);
    if (!MayLeave()) {
        return;
    }
    desk_.Sheet().voyageId = next_;
    if (next_.empty()) {
        return Clear();
    }
    // Whoever asks for empty rows may not know that the voyage has some.
    Fill(-1);
}

void VoyageFilling::Forget() {
    next_.clear();
    PortCallSheet& sheet = desk_.Sheet();
    sheet.voyageId.clear();
    sheet.editedVoyageId.clear();
    sheet.aisCorrectionPending = false;
    Clear();
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
    desk_.Sheet().voyageId = next_;
    if (corrected > 0) {
        editing_.HideEditors();
        if (corrected_.Fill() == 0) {
            return 0;
        }
        // Without a position row the voyage is a plain one again.
        desk_.Voyages().ClearAisMod(next_);
    }
    return Fill(mode);
}

int VoyageFilling::Fill(int mode) {
    Clear();
    if (desk_.Sheet().voyageId.empty()) {
        desk_.ToPerson().NoticeText(kNoVoyageText);
        return -2;
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
        sheet.MarkChanged(desk_.Ports());
    }
}

int VoyageFilling::Load(int mode) {
    PortCallSheet& sheet = desk_.Sheet();
    PortCallRows loaded;
    const int code = [&] {
        const PortCallDesk::Busy busy(desk_);
        return desk_.Voyages().LoadSchedule(sheet.voyageId, loaded, mode);
    }();
    if (code != 0) {
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
    sheet.state.changed = false;
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

}  // namespace Tarvik::Seaplan

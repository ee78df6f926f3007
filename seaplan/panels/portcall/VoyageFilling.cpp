// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/VoyageFilling.h"

#include <utility>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/controllers/VoyageRecords.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/CorrectedSchedule.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/PortCallParts.h"
#include "seaplan/panels/texts/PortCallTexts.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kNoVoyageText = "数据状态异常，请确认是否已登陆或者掉线？";

}  // namespace

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
        desk_.Given().AskToKeepTable();
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
        Show(DrawMode::Nothing);
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
    Fill(DrawMode::Nothing);
}

int VoyageFilling::OpenDistanceTable() {
    const PortCallDesk::Report report(desk_);
    if (!MayLeave()) {
        return -1;
    }
    TakeOver(kDistanceTableId);
    desk_.History().Begin();
    return Fill(DrawMode::Nothing);
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
        Show(DrawMode::Nothing);
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
    // The position book stands above the panel: one that is hidden and shown again would cover it.
    const int opened = Open(DrawMode::Nothing, Sight::Kept);
    next_ = next;
    return opened;
}

int VoyageFilling::Open(DrawMode mode, Sight sight) {
    const PortCallDesk::Report report(desk_);
    int corrected = 0;
    if (!next_.empty() && desk_.Voyages().GetModAis(next_, corrected) != 0) {
        return -1;
    }
    if (!MayLeave()) {
        return -4;
    }
    if (corrected <= 0 && sight == Sight::Hidden) {
        desk_.View().Hide();
    }
    TakeOver(next_);
    desk_.History().Begin();
    return Show(mode);
}

/// The voyage on show in the form that it has now.
int VoyageFilling::Show(DrawMode mode) {
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

int VoyageFilling::Fill(DrawMode mode) {
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

int VoyageFilling::ShowCorrection() {
    const PortCallDesk::Report report(desk_);
    if (const int filled = Open(DrawMode::Nothing); filled != 0) {
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

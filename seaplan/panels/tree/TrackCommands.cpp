// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TrackCommands.h"

#include <cstdint>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/calculation/Units.h"
#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/TimeText.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/PortCallOpener.h"
#include "seaplan/panels/tree/TreeParts.h"

namespace Tarvik::Seaplan {

namespace {

/// A GMT timer value in the user's zone; the field counts as unsigned.
std::string UserTime(int gmtTimer) {
    const std::string* zone = Interface::Call(Interface::Bus::CurrentTimeZone);
    const auto utc = Util::_datetime_t::from_gmt_timer(static_cast<std::uint32_t>(gmtTimer));
    return Util::DateTimeUtl::ConvertFromUTC(utc, zone == nullptr ? std::string() : *zone).fmt(kTimeFormat);
}

}  // namespace

TreeCommands TrackCommands::Table() {
    return {{Item::kAisOff, [this] { return Show(); }},
            {Item::kAisOn, [this] { return Hide(); }},
            {Item::kModify, [this] { return Modify(); }}};
}

ItemOutcome TrackCommands::Show() {
    return p_.chart.SetAisShown(p_.selection.Voyage().vi, true).Failed() ? ItemStep::ShowTrack
                                                                         : ItemOutcome();
}

ItemOutcome TrackCommands::Hide() {
    return p_.chart.SetAisShown(p_.selection.Voyage().vi, false).Failed() ? ItemStep::HideTrack
                                                                          : ItemOutcome();
}

void TrackCommands::MarkAll() {
    TreeWidget& tree = p_.context.tree;
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        for (TreeRow child = tree.GetChildItem(row); child != kNoRow;
             child = tree.GetNextSiblingItem(child)) {
            MarkRow(child);
        }
    }
}

void TrackCommands::MarkRow(TreeRow row) {
    const VoyInfo* voyage = p_.context.VoyageOf(row);
    int state = 0;
    if (voyage == nullptr || voyage->va != 1 || p_.context.catalog.GetVoyageState(voyage->vi, state) != 0 ||
        state == InRecycleBin) {
        return;
    }
    p_.chart.ShowAisItems(row, true);
    if (voyage->portCalls.empty()) {
        p_.context.FetchPortCalls(voyage->vi);
    }
}

/// Whether a correction can be tried; tells the person why not.
bool TrackCommands::Correctable(const VoyInfo& voyage) {
    const Util::_datetime_t now;
    TextId why{};
    if (voyage.vsi.empty() || voyage.vsn.empty()) {
        why = TextIds::IDS_TREE_WARNMODAIS;
    } else if (voyage.portCalls.size() < 2) {
        why = TextIds::IDS_TREE_AISMODNOPORTINFWARN;
    } else if (now < voyage.portCalls.front().etd || now > voyage.portCalls.back().eta) {
        why = TextIds::IDS_TREE_NOTSEALFORAISMOD;
    } else if (voyage.lastPosText.empty()) {
        why = TextIds::IDS_TREE_NOTFINDSHIPFORAISMOD;
    } else if (static_cast<std::uint32_t>(voyage.lastAisModTime) >=
               static_cast<std::uint32_t>(voyage.lastPosTime)) {
        why = TextIds::IDS_TREE_NOTUPDATEFORAISMOD;
    } else {
        return true;
    }
    p_.context.boxes.Notice(why);
    return false;
}

ItemOutcome TrackCommands::Modify() {
    const VoyInfo& voyage = p_.selection.Voyage();
    if (!Correctable(voyage)) {
        return {};
    }
    PortCallOpener* panel = p_.PortCalls();
    if (panel == nullptr) {
        return ItemStep::CorrectionPanel;
    }
    // The changes on show may be this voyage's own, and what becomes of them decides what is corrected.
    if (!panel->AskToLeave() || !Correctable(voyage)) {
        return {};
    }
    int applied = 0;
    if (p_.context.voyages.ApplyAisPosition(voyage.vi, applied) != 0) {
        p_.context.boxes.Notice(TextIds::IDS_PORTCALL_AISCOMPUTWARN);
        return ItemStep::Correct;
    }
    if (applied > 0) {
        panel->SetCorrectionTime(UserTime(voyage.lastPosTime));
    }
    if (panel->ShowAisCorrection() < 0) {
        return ItemStep::ShowCorrection;
    }
    panel->ShowBesideTree();
    if (voyage.vr == 1) {
        p_.chart.LeaveAloneOnce(voyage.vi);
    }
    return {};
}

}  // namespace Tarvik::Seaplan

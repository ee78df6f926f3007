// SPDX-License-Identifier: MIT
/// Correcting a voyage's port calls from its vessel's last position.
#include <cstdint>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/calculation/NumberForms.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

namespace Tarvik::Seaplan {

namespace {

/// A GMT timer value in the user's zone; the field counts as unsigned.
std::string UserTime(int gmtTimer) {
    const std::string* zone = Interface::Call(Interface::Bus::CurrentTimeZone);
    const auto utc = Util::_datetime_t::from_gmt_timer(static_cast<std::uint32_t>(gmtTimer));
    return Util::DateTimeUtl::ConvertFromUTC(utc, zone == nullptr ? std::string() : *zone).fmt(kTimeFormat);
}

}  // namespace

/// Whether a correction can be tried; tells the person why not.
bool SeaplanTreeCtrl::Correctable(const VoyInfo& voyage) {
    const Util::_datetime_t now;
    TextId why{};
    if (voyage.vsi.empty() || voyage.vsn.empty()) {
        why = TextId::IDS_TREE_WARNMODAIS;
    } else if (voyage.portCalls.size() < 2) {
        why = TextId::IDS_TREE_AISMODNOPORTINFWARN;
    } else if (now < voyage.portCalls.front().etd || now > voyage.portCalls.back().eta) {
        why = TextId::IDS_TREE_NOTSEALFORAISMOD;
    } else if (voyage.lastPosText.empty()) {
        why = TextId::IDS_TREE_NOTFINDSHIPFORAISMOD;
    } else if (static_cast<std::uint32_t>(voyage.lastAisModTime) >=
               static_cast<std::uint32_t>(voyage.lastPosTime)) {
        why = TextId::IDS_TREE_NOTUPDATEFORAISMOD;
    } else {
        return true;
    }
    Notice(why);
    return false;
}

int SeaplanTreeCtrl::ModifyFromAis() {
    const VoyInfo& voyage = *context_.VoyageOf(currentVoyageRow_);
    if (!Correctable(voyage)) {
        return 0;
    }
    int applied = 0;
    if (ais_->ApplyAisPosition(voyage.vi, applied) != 0) {
        Notice(TextId::IDS_PORTCALL_AISCOMPUTWARN);
        return -2;
    }
    if (portCalls_ == nullptr) {
        return -39;
    }
    if (applied > 0) {
        portCalls_->SetCorrectionTime(UserTime(voyage.lastPosTime));
    }
    if (portCalls_->ShowAisCorrection() < 0) {
        return -40;
    }
    portCalls_->ShowBesideTree();
    if (voyage.vr == 1) {
        chart_.LeaveAloneOnce(voyage.vi);
    }
    return 0;
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
/// The vessel of a voyage: typed, picked, shown and replaced.
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/language/Messages.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

namespace Tarvik::Seaplan {

namespace {

/// These two texts have no key.
constexpr const char* kVesselFailed = "Add a vessel failed!";
constexpr const char* kErrorTitle = "Error";

std::vector<Interface::FleetEntry> Fleet() {
    const auto* vessels = Interface::Call(Interface::Bus::AllVessels);
    return vessels == nullptr ? std::vector<Interface::FleetEntry>() : *vessels;
}

}  // namespace

void SeaplanTreeCtrl::SetVesselView(VesselView* view) {
    vessel_ = view == nullptr ? nullptr
                              : std::make_unique<VoyShipEditDlg>(
                                    *view, [this](const Interface::FleetEntry& vessel, bool typedOnly) {
                                        CommitVessel(vessel, typedOnly);
                                    });
}

void SeaplanTreeCtrl::OpenVesselBox(TreeRow row, const std::string& text) {
    constexpr int kLeft = 50;
    constexpr int kTop = 55;
    constexpr int kWidth = 120;
    constexpr int kHeight = 25;
    const Rect place = context_.tree.GetItemRect(row);
    const int left = place.left + kLeft;
    const int top = place.top + kTop;
    context_.tree.SetDrawItemVisibleEx(row, "Voyage_ReplaceShip", true);
    vessel_->Open({left, top, left + kWidth, top + kHeight}, text, Fleet());
}

int SeaplanTreeCtrl::OpenVesselEditor(const std::string& vi) {
    const TreeRow row = context_.FindVoyageRow(vi);
    if (row == kNoRow) {
        return -1;
    }
    context_.tree.Expand(context_.tree.GetParentItem(row));
    context_.tree.SelectItem(row);
    currentCategoryRow_ = row;
    currentVoyageRow_ = row;
    OnRowPressed(row);
    if (vessel_ == nullptr) {
        return -2;
    }
    OpenVesselBox(row, context_.VoyageOf(row)->vsn);
    return 0;
}

int SeaplanTreeCtrl::AssignVessel() {
    if (vessel_ == nullptr) {
        return -36;
    }
    if (vessel_->IsVisible() || vessel_->ClosedByPress()) {
        vessel_->Hide();
    } else {
        OpenVesselBox(currentVoyageRow_, {});
    }
    return 0;
}

int SeaplanTreeCtrl::ReplaceVessel() {
    const VoyInfo& voyage = *context_.VoyageOf(currentVoyageRow_);
    if (voyage.modais > 0) {
        Notice(TextId::IDS_PORTCALL_WARNAISMOD);
        return 0;
    }
    return OpenVesselEditor(voyage.vi) == 0 ? 0 : -37;
}

int SeaplanTreeCtrl::ShowVesselInfo() {
    const std::string vsi = context_.VoyageOf(currentVoyageRow_)->vsi;
    if (!vsi.empty()) {
        Interface::Call(Interface::Bus::ShowVesselInfo, &vsi);
    }
    return 0;
}

int SeaplanTreeCtrl::AddVesselToFleet() {
    const Interface::FleetEntry vessel{"", context_.VoyageOf(currentVoyageRow_)->vsn, 0};
    void* const* window = Interface::Call(Interface::Bus::ShowAddVessel, &vessel);
    if (window != nullptr) {
        context_.tree.ShowAtPointer(*window);
    }
    return 0;
}

/// A vessel of the fleet is tracked from the start.
void SeaplanTreeCtrl::TurnAisOn(const VoyInfo& voyage) {
    if (voyage.va != 1) {
        context_.catalog.OpenAis(voyage.vi);
    }
    chart_.ShowAisItems(currentVoyageRow_, true);
    chart_.ShowAis(voyage, false);
}

int SeaplanTreeCtrl::CommitVessel(const Interface::FleetEntry& vessel, bool typedOnly) {
    if (vessel_ != nullptr) {
        vessel_->Hide();
    }
    VoyInfo* voyage = currentVoyageRow_ == kNoRow ? nullptr : context_.VoyageOf(currentVoyageRow_);
    if (voyage == nullptr) {
        return -1;
    }
    if (vessel.id == voyage->vsi && vessel.name == voyage->vsn) {
        return 0;
    }
    if (context_.catalog.ChangeVessel(voyage->vi, vessel.id, vessel.name, vessel.number) != 0) {
        NoticeText(kVesselFailed, context_.tree.Handle(), kErrorTitle);
        return -2;
    }
    builder_.ShowVessel(currentVoyageRow_, vessel.name, typedOnly);
    voyage->vsi = vessel.id;
    voyage->vsn = vessel.name;
    voyage->vsmsi = vessel.number;
    if (!voyage->vsi.empty()) {
        TurnAisOn(*voyage);
    }
    return 0;
}

}  // namespace Tarvik::Seaplan

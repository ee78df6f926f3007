// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/VesselCommands.h"

#include <utility>
#include <vector>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyageChanges.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeParts.h"

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

VesselCommands::VesselCommands(TreeParts& parts, VesselView& view) : p_(parts), editor_(view) {}

TreeCommands VesselCommands::Table() {
    return {{Item::kAssignShip, [this] { return Assign(); }},
            {Item::kReplaceShip, [this] { return Replace(); }},
            {Item::kShipInfo, [this] { return ShowInfo(); }},
            {Item::kAlert, [this] { return AddToFleet(); }}};
}

void VesselCommands::OpenBox(TreeRow row, const std::string& text) {
    constexpr int kLeft = 50;
    constexpr int kTop = 55;
    constexpr int kWidth = 120;
    constexpr int kHeight = 25;
    std::vector<Interface::FleetEntry> fleet = Fleet();
    const Rect place = p_.context.tree.GetItemRect(row);
    const int left = place.left + kLeft;
    const int top = place.top + kTop;
    p_.context.tree.SetDrawItemVisibleEx(row, Item::kReplaceShip, true);
    editor_.Open({left, top, left + kWidth, top + kHeight}, text, std::move(fleet),
                 [this, row](const Interface::FleetEntry& vessel, bool typedOnly) {
                     static_cast<void>(CommitTo(row, vessel, typedOnly));
                 });
}

Outcome<VesselStep> VesselCommands::OpenEditor(const std::string& vi) {
    const TreeRow row = p_.context.FindVoyageRow(vi);
    if (row == kNoRow) {
        return VesselStep::Row;
    }
    p_.selection.TakeVoyage(row);
    OpenBox(row, p_.context.VoyageOf(row)->vsn);
    // The press draws and asks for port calls: by then the person sees the box.
    p_.selection.Press(row);
    return {};
}

ItemOutcome VesselCommands::Assign() {
    if (editor_.IsVisible() || editor_.ClosedByPress()) {
        editor_.Hide();
    } else {
        OpenBox(p_.selection.VoyageRow(), {});
    }
    return {};
}

ItemOutcome VesselCommands::Replace() {
    const VoyInfo& voyage = p_.selection.Voyage();
    if (voyage.modais > 0) {
        p_.context.boxes.Notice(TextIds::IDS_PORTCALL_WARNAISMOD);
        return {};
    }
    return OpenEditor(voyage.vi).Failed() ? ItemStep::ReplaceVessel : ItemOutcome();
}

ItemOutcome VesselCommands::ShowInfo() {
    const std::string vsi = p_.selection.Voyage().vsi;
    if (!vsi.empty()) {
        Interface::Call(Interface::Bus::ShowVesselInfo, &vsi);
    }
    return {};
}

ItemOutcome VesselCommands::AddToFleet() {
    const Interface::FleetEntry vessel{"", p_.selection.Voyage().vsn, 0};
    void* const* window = Interface::Call(Interface::Bus::ShowAddVessel, &vessel);
    if (window != nullptr && *window != nullptr) {
        p_.context.tree.ShowAtPointer(*window);
    }
    return {};
}

/// A vessel of the fleet is tracked from the start.
void VesselCommands::TurnAisOn(TreeRow row, const VoyInfo& voyage) {
    if (voyage.va != 1) {
        p_.context.catalog.OpenAis(voyage.vi);
    }
    p_.chart.ShowAisItems(row, true);
    static_cast<void>(p_.chart.ShowAis(voyage, false));
}

/// A vessel whose position nobody knows is saved all the same.
bool VesselCommands::Save(const std::string& vi, const Interface::FleetEntry& vessel) {
    return IsVesselChanged(p_.context.catalog.ChangeVessel(vi, vessel.id, vessel.name, vessel.number));
}

int VesselCommands::Commit(const Interface::FleetEntry& vessel, bool typedOnly) {
    editor_.Hide();
    return kCommitVesselCodes.Of(CommitTo(p_.selection.VoyageRow(), vessel, typedOnly));
}

Outcome<VesselStep> VesselCommands::CommitTo(TreeRow row, const Interface::FleetEntry& vessel,
                                             bool typedOnly) {
    VoyInfo* voyage = row == kNoRow ? nullptr : p_.context.VoyageOf(row);
    if (voyage == nullptr) {
        return VesselStep::Voyage;
    }
    if (vessel.id == voyage->vsi && vessel.name == voyage->vsn) {
        return {};
    }
    if (!Save(voyage->vi, vessel)) {
        p_.context.boxes.Refusal(kVesselFailed, kErrorTitle);
        return VesselStep::Server;
    }
    p_.status.ShowVessel(row, vessel.name, typedOnly);
    voyage->vsi = vessel.id;
    voyage->vsn = vessel.name;
    voyage->vsmsi = vessel.number;
    p_.selection.TellAgain(voyage->vi);
    if (!voyage->vsi.empty()) {
        TurnAisOn(row, *voyage);
    }
    return {};
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/TreeCollaborators.h"
#include "seaplan/panels/tree/TreeWidget.h"
#include "seaplan/panels/vessel/VoyShipEditDlg.h"

namespace Tarvik::Seaplan {

struct VoyInfo;
struct TreeParts;

/// The vessel of a voyage: typed, picked, shown and replaced.
class VesselCommands {
  public:
    VesselCommands(TreeParts& parts, VesselView& view);

    TreeCommands Table();
    /// Unfolds to a voyage's row, makes it the current one and opens the box over it. Fails without a row.
    Outcome<VesselStep> OpenEditor(const std::string& vi);
    /// Gives the voyage of the last click a vessel: kCommitVesselCodes.
    int Commit(const Interface::FleetEntry& vessel, bool typedOnly);
    VoyShipEditDlg& Editor() { return editor_; }

  private:
    ItemOutcome Assign();
    ItemOutcome Replace();
    ItemOutcome ShowInfo();
    ItemOutcome AddToFleet();
    void OpenBox(TreeRow row, const std::string& text);
    bool Save(const std::string& vi, const Interface::FleetEntry& vessel);
    Outcome<VesselStep> CommitTo(TreeRow row, const Interface::FleetEntry& vessel, bool typedOnly);
    void TurnAisOn(TreeRow row, const VoyInfo& voyage);

    TreeParts& p_;
    VoyShipEditDlg editor_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/TreeCollaborators.h"
#include "seaplan/panels/tree/TreeWidget.h"
#include "seaplan/panels/vessel/VoyShipEditDlg.h"

namespace Tarvik::Seaplan {

struct VoyInfo;
struct TreeParts;

/// The vessel of a voyage: typed, picked, shown and replaced. Results: 0 or the negative number of the failed
/// step.
class VesselCommands {
  public:
    VesselCommands(TreeParts& parts, VesselView& view);

    TreeCommands Table();
    /// Unfolds to a voyage's row, makes it the current one and opens the box over it. -1 without a row.
    int OpenEditor(const std::string& vi);
    /// Gives the voyage of the last click a vessel. -1 no voyage, -2 the server.
    int Commit(const Interface::FleetEntry& vessel, bool typedOnly);
    VoyShipEditDlg& Editor() { return editor_; }

  private:
    int Assign();
    int Replace();
    int ShowInfo();
    int AddToFleet();
    void OpenBox(TreeRow row, const std::string& text);
    bool Save(const std::string& vi, const Interface::FleetEntry& vessel);
    int CommitTo(TreeRow row, const Interface::FleetEntry& vessel, bool typedOnly);
    void TurnAisOn(TreeRow row, const VoyInfo& voyage);

    TreeParts& p_;
    VoyShipEditDlg editor_;
};

}  // namespace Tarvik::Seaplan

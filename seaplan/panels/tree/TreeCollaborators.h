// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "seaplan/panels/tree/TreeCodes.h"

namespace Tarvik::Seaplan {

class ChoicePopup;
class TextBox;
class TreeWidget;
class VesselView;
class VoyCatalogController;
class VoyController;
class VoyageStore;

/// What the tree asks of the port call panel.
class PortCallOpener {
  public:
    virtual ~PortCallOpener() = default;
    /// Every click on a voyage's row sets the voyage of the next opening.
    virtual void SetVoyage(const std::string& vi) = 0;
    /// Fills the panel from the voyage; negative on failure.
    virtual int FillForVoyage(int mode) = 0;
    /// Empties the panel to six rows.
    virtual void Reset() = 0;
    /// Puts the panel beside the tree and shows it.
    virtual void ShowBesideTree() = 0;
    /// Asks what becomes of changes that are not saved; false when the voyage on show has to stay with them.
    virtual bool AskToLeave() = 0;
    /// Fills the panel with a fresh correction from AIS, ready to be recalculated; negative on failure.
    virtual int ShowAisCorrection() = 0;
    /// Time of that correction, `kTimeFormat` in the user's zone.
    virtual void SetCorrectionTime(const std::string& time) = 0;
};

/// Gives the port call panel, which may be made only then. Empty where there is none.
using PortCallSource = std::function<PortCallOpener*()>;

/// What the tree stands on; all of it outlives it.
struct TreeCollaborators {
    VoyageStore& store;
    VoyCatalogController& catalog;
    VoyController& voyages;
    TreeWidget& tree;
    TextBox& renameBox;
    VesselView& vesselView;
    ChoicePopup& sortPopup;
};

/// Commands by the name of their item. A command works on the current rows and answers with the step
/// that failed.
using TreeCommand = std::function<ItemOutcome()>;
using TreeCommands = std::map<std::string, TreeCommand>;

}  // namespace Tarvik::Seaplan

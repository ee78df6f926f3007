// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "seaplan/panels/tree/TreeCodes.h"

namespace Tarvik::Seaplan {

class ChoicePopup;
class PortCallOpener;
class TextBox;
class TreeWidget;
class VesselView;
class VoyCatalogController;
class VoyController;
class VoyageStore;

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

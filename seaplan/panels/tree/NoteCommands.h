// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "seaplan/data/VoyInfo.h"
#include "seaplan/panels/tree/TreeCollaborators.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

class RemarkMark;
struct TreeParts;

/// Shows the remarks of a row's object beside the tree: the row, its kind (RemarkObject), its id and its
/// name. Negative, with the remarks before still on show, when those could not be left.
using OpenRemarks =
    std::function<int(TreeRow row, int type, const std::string& objectid, const std::string& name)>;
/// Shows the consumption of the voyage of the last click beside the tree.
using OpenConsumption = std::function<void(const BunkerFigures& figures, bool editable)>;

/// What is noted about a category or a voyage: remarks and consumption. Each has its commands once there is a
/// panel for it.
class NoteCommands {
  public:
    explicit NoteCommands(TreeParts& parts) : p_(parts) {}

    void SetRemarks(OpenRemarks open);
    void SetConsumption(OpenConsumption open);
    const TreeCommands& OfCategory() const { return ofCategory_; }
    const TreeCommands& OfVoyage() const { return ofVoyage_; }
    /// The mark of the row whose remarks are open.
    RemarkMark& Mark();

  private:
    ItemOutcome CategoryRemarks();
    ItemOutcome VoyageRemarks();
    ItemOutcome Show(TreeRow row, int type, const std::string& id, const std::string& name);
    ItemOutcome Consumption();

    TreeParts& p_;
    OpenRemarks openRemarks_;
    OpenConsumption openConsumption_;
    TreeCommands ofCategory_;
    TreeCommands ofVoyage_;
};

}  // namespace Tarvik::Seaplan

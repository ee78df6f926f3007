// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeCollaborators.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

struct VoyInfo;
struct TreeParts;

/// What a voyage's row does with the track of its vessel: showing, hiding, and correcting the port calls by
/// the last position.
class TrackCommands {
  public:
    explicit TrackCommands(TreeParts& parts) : p_(parts) {}

    TreeCommands Table();
    /// The rows of a freshly opened view show the tracks that are on.
    void MarkAll();

  private:
    ItemOutcome Show();
    ItemOutcome Hide();
    ItemOutcome Modify();
    bool Correctable(const VoyInfo& voyage);
    void MarkRow(TreeRow row);

    TreeParts& p_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeCollaborators.h"

namespace Tarvik::Seaplan {

struct TreeParts;

/// Commands of a voyage's row, but for its vessel and track.
class VoyageCommands {
  public:
    explicit VoyageCommands(TreeParts& parts) : p_(parts) {}

    TreeCommands Table();

  private:
    ItemOutcome Pin();
    ItemOutcome Unpin();
    ItemOutcome OpenPortCalls();
    ItemOutcome OpenEmptyPortCalls();
    ItemOutcome NoonReport();
    ItemOutcome Rename();
    ItemOutcome Delete();
    ItemOutcome Recover();
    ItemOutcome Clear();
    ItemOutcome Duplicate();
    ItemOutcome DropRow();

    TreeParts& p_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeCollaborators.h"

namespace Tarvik::Seaplan {

struct TreeParts;

/// Commands of a voyage's row, but for its vessel and track. Results: 0 or the negative number of the failed
/// step.
class VoyageCommands {
  public:
    explicit VoyageCommands(TreeParts& parts) : p_(parts) {}

    TreeCommands Table();

  private:
    int Pin();
    int Unpin();
    int OpenPortCalls();
    int OpenEmptyPortCalls();
    int NoonReport();
    int Rename();
    int Delete();
    int Recover();
    int Clear();
    int Duplicate();
    int DropRow();

    TreeParts& p_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeParts.h"

namespace Tarvik::Seaplan {

/// Commands of a voyage's row, but for its vessel and track. Results: 0 or the negative number of the failed
/// step.
class VoyageCommands {
  public:
    explicit VoyageCommands(TreeParts& parts) : p_(parts) {}

    TreeCommands Table();
    void SetPortCallPanel(PortCallOpener* panel) { portCalls_ = panel; }

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
    int DropRow();

    TreeParts& p_;
    PortCallOpener* portCalls_ = nullptr;
};

}  // namespace Tarvik::Seaplan

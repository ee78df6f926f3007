// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/editors/EditHistory.h"
#include "seaplan/panels/portcall/PortCallSheet.h"

namespace Tarvik::Seaplan {

/// The states of the table on show, edit by edit, each with the route that was calculated for it. A voyage
/// that is opened begins a list of its own; a calculation and a save go on in it. What is known of the voyage
/// beside its rows, as its zone or whether it has a book, is never taken back.
class TableHistory {
  public:
    /// Keeps them; all outlive it.
    TableHistory(PortCallSheet& sheet, VoyController& voyages, PortDirectory& ports)
        : sheet_(sheet), voyages_(voyages), ports_(ports) {}

    /// What is on show at the next Take is the beginning of a list.
    void Begin() { begins_ = true; }
    /// What has changed in rows and units since the last call is an edit of this name.
    void Take(const EditName& name = {});
    /// The state before the last edit, or behind it again, into the sheet. False where there is none.
    bool GoBack();
    bool GoForward();
    /// What the two would do now.
    UndoTexts Texts() const { return history_.Texts(); }

  private:
    struct TableState {
        PortCallSheet sheet;
        PendingRoute route;
    };
    static constexpr std::size_t kMostStates = 250;

    void ShowState(const TableState& to);
    void ShowRoute(const TableState& to);
    bool BeginsAnew() const;

    PortCallSheet& sheet_;
    VoyController& voyages_;
    PortDirectory& ports_;
    EditHistory<TableState> history_{kMostStates};
    bool begins_ = true;
};

}  // namespace Tarvik::Seaplan

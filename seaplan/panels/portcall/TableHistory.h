// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "seaplan/panels/editors/EditWords.h"

namespace Tarvik::Seaplan {

class PortCallSheet;
class PortDirectory;
class VoyController;

/// The states of the table on show, edit by edit, each with the route that was calculated for it. A voyage
/// that is opened begins a list of its own; a calculation and a save go on in it. What is known of the voyage
/// beside its rows, as its zone or whether it has a book, is never taken back.
class TableHistory {
  public:
    /// Keeps them; all outlive it.
    TableHistory(PortCallSheet& sheet, VoyController& voyages, PortDirectory& ports);
    ~TableHistory();

    /// What is on show at the next Take is the beginning of a list.
    void Begin() { begins_ = true; }
    /// What has changed in rows and units since the last call is an edit of this name.
    void Take(const EditName& name = {});
    /// A save broke off: until the next one none of the states is known to be what the server has.
    void NoteNotSaved();
    /// Whether it is known what the server has of the table, as it is not behind such a save.
    bool IsStoredKnown() const;
    /// The state before the last edit, or behind it again, into the sheet. False where there is none.
    bool GoBack();
    bool GoForward();
    /// What the two would do now.
    UndoTexts Texts() const;

  private:
    struct TableState;
    struct States;

    void ShowState(const TableState& to);
    void ShowRoute(const TableState& to);
    bool BeginsAnew() const;

    PortCallSheet& sheet_;
    VoyController& voyages_;
    PortDirectory& ports_;
    std::unique_ptr<States> history_;
    bool begins_ = true;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "seaplan/calculation/Units.h"
#include "seaplan/data/PosBookData.h"
#include "seaplan/panels/portcall/WhatIf.h"

namespace Tarvik::Seaplan {

class CellEditing;
class CorrectedSchedule;
class PortCallDesk;
class RouteChoice;
class TableCalculation;
class VoyageFilling;

/// The buttons around the table. Each takes what is being typed first.
class PanelCommands {
  public:
    PanelCommands(PortCallDesk& desk, CellEditing& editing, CorrectedSchedule& corrected,
                  VoyageFilling& filling);
    ~PanelCommands();
    PanelCommands(const PanelCommands&) = delete;
    PanelCommands& operator=(const PanelCommands&) = delete;

    void OnCalculate();
    /// Asks the server for the whole route afresh, shows old and new miles of each leg, and replaces the legs
    /// where the person takes them. A failure is told in the status line.
    void OnRouteAnew();
    /// Shows what the route by each other route point costs, and takes the one that the person chooses: one
    /// edit. What is in the way is told in the status line.
    void OnCompareWays();
    /// The pending route was changed on the chart: its distances and times go into the table that is
    /// open. kFollowRouteCodes.
    int OnRouteChosen();
    void OnSave();
    /// Saves the rows of a plain voyage, calculated first where they have no distances, and tells where that
    /// fails.
    void SavePlain();
    /// Saves the table as the Save button does, but without drawing, since another is about to be shown;
    /// where that fails it is told. 0 or negative.
    int SaveBeforeLeaving();
    void OnClear();
    void OnClose();
    /// Opens the position book as it is saved, over unsaved changes only where the person says so.
    void OnPositionBook();
    /// Saves the book that was opened last for its voyage, shows the voyage's rows anew and draws it. 0, or
    /// the number of VoyController::SavePositionBook, which is told.
    int SavePositionBook(const PosBookData& book);
    /// Name of the voyage whose book was opened last.
    std::string BookVoyage() const;
    void OnHelp();
    /// The table as it was before the last edit, or behind it again, with the route that it had; nothing
    /// where there is none.
    void OnUndo();
    void OnRedo();
    /// The strip of questions below the table.
    WhatIf& Questions() { return questions_; }
    /// The menu of a quantity opens: its units, in order.
    std::vector<std::string> OnUnitsAsked(UnitKind kind);
    /// Results as PortCallSheet::ChangeUnit.
    int OnUnitChosen(UnitKind kind, const std::string& unit);

  private:
    PortCallDesk& desk_;
    CellEditing& editing_;
    CorrectedSchedule& corrected_;
    VoyageFilling& filling_;
    std::unique_ptr<TableCalculation> calculation_;
    std::unique_ptr<RouteChoice> ways_;
    WhatIf questions_;
    std::string bookVoyage_;  ///< the voyage whose book was opened last
};

}  // namespace Tarvik::Seaplan

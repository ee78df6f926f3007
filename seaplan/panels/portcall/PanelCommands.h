// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/portcall/VoyageFilling.h"

namespace Tarvik::Seaplan {

/// The buttons around the table and the images at a row's end. Each takes what is being typed first.
class PanelCommands {
  public:
    PanelCommands(PortCallDesk& desk, CellEditing& editing, CorrectedSchedule& corrected,
                  VoyageFilling& filling)
        : desk_(desk), editing_(editing), corrected_(corrected), filling_(filling) {}

    void OnCalculate();
    /// The pending route was changed on the chart: its distances and times go into the table that is
    /// open. -1 no rows, -2 a route of other ports, -3 the rows do not fit, -4 no table is open.
    int OnRouteChosen();
    void OnSave();
    void OnClear();
    void OnClose();
    void OnHelp();
    /// Results as PortCallSheet::ChangeUnit.
    int OnUnitChosen(UnitKind kind, const std::string& unit);
    /// A press on "itemMoveUp", "itemMovedown" or "itemdel" of a row. 0; -1 no port there; -2 no such voyage
    /// or its position; -3 no such image; or what the move gives.
    int OnItemImage(int row, const std::string& name);
    /// A key in the table, on the cell in front; false when it means nothing there.
    bool OnTableKey(KeyPress press, int row, int column);

  private:
    int Prepare(PortCallRows& rows) const;
    int Calculate();
    int SavePlain();
    int Move(int row, const std::string& name);
    int ShowMoved(int result, const PortCallRows& rows);

    PortCallDesk& desk_;
    CellEditing& editing_;
    CorrectedSchedule& corrected_;
    VoyageFilling& filling_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

class CellEditing;
class PanelCommands;
class PortCallDesk;
class VoyageFilling;

/// The panel as the port distance table: ports without a voyage behind them, which the chart or another
/// plug-in names one by one, until they are kept as a voyage.
class DistanceTable {
  public:
    DistanceTable(PortCallDesk& desk, CellEditing& editing, VoyageFilling& filling, PanelCommands& commands)
        : desk_(desk), editing_(editing), filling_(filling), commands_(commands) {}

    /// Whether the panel is in sight as the distance table.
    bool IsOpen() const;
    /// Whether the rows on show are a distance table's that has not become a voyage.
    bool IsUnkept() const;
    /// Begins an empty table in place of what is on show, and shows the panel. 0, or -1 where the changes of
    /// the voyage on show could not be saved and stay.
    int Open();
    /// Puts a port's name into the first blank row of the table, which is opened for it. 0; -1 an empty name;
    /// -2 the table does not open.
    int AddPort(const std::string& name);
    /// The number of distinct places, by which the calculate button is on or off.
    int CountPlaces();
    /// Saves the rows as the schedule of a new voyage, calculated first where they have no distances; a
    /// failure is told. They stay on show, and from then on they are that voyage's.
    void KeepAs(const std::string& vi);

  private:
    PortCallDesk& desk_;
    CellEditing& editing_;
    VoyageFilling& filling_;
    PanelCommands& commands_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/calculation/Units.h"
#include "seaplan/panels/portcall/PortCallState.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/StoredRows.h"

namespace Tarvik::Seaplan {

class PortDirectory;

/// All that the port call panel knows of the voyage on show, as one value: the rows with the ids of their
/// ports, the units, the figures and what the buttons can do. Whoever keeps a copy can bring it back.
class PortCallSheet {
  public:
    PortCallTable table;
    PortCallState state;
    std::string voyageId;               ///< voyage on show, empty for none
    std::string editedVoyageId;         ///< voyage on show at the last edit
    bool aisCorrectionPending = false;  ///< a fresh correction is shown and not saved
    bool unread = false;                ///< it may have port calls on the server that could not be read
    std::string cause;  ///< why the last save or calculation failed, in words; empty for none that is known
    PortCallNote note;
    StoredRows stored;  ///< the rows as they were last loaded or saved, in the units on show

    const UnitSet& Units() const { return units_; }
    /// Whether the rows are a port distance table that no voyage has been made of: no save takes them.
    bool IsUnkeptTable() const;
    /// Six empty rows in the first units, without figures; nothing is changed and only Clear is possible.
    /// The voyages stay.
    void Reset();
    /// Back to knots, nautical miles and days; the cells stay as they are.
    void ResetUnits();
    /// Blanks the rows and figures, and what depends on them.
    void Clear();

    /// The rows in knots, nautical miles and hours; none when row 0 has no port. 0, or -1 without rows.
    int ReadStandard(PortCallRows& out) const;
    /// The same for a calculation or a save, which changes no leg whose speed nobody has touched: it has the
    /// digits that its cell does not show.
    int ReadUnrounded(PortCallRows& out) const;
    /// Shows rows of knots, nautical miles and hours: cells, totals row, summary. 0; -1, with nothing
    /// changed, for fewer than two rows or a unit that does not exist.
    int ShowRows(const PortCallRows& standard, bool corrected);
    /// Shows what a person enters of one row or more of knots, nautical miles and hours, and their start; the
    /// other computed cells stay blank.
    void ShowEntered(const PortCallRows& standard);
    /// The table of a corrected voyage in the first units, rows in knots, nautical miles and hours, of which
    /// the first `history` cannot be edited. 0, or -1 without rows.
    int ShowHistoryAndPlan(const PortCallRows& standard, std::size_t history);
    /// Changes the unit of one quantity. The name changes in any case; the cells follow with 0, and stay with
    /// -1, nothing calculated yet, or -2, the unit in force or none.
    int ChangeUnit(UnitKind kind, const std::string& unit, bool corrected);

    /// Distinct places, each row counted against the last one that counted.
    int PlaceCount(PortDirectory& ports) const;
    /// How many rows a person has changed, added or taken away since they were loaded or saved.
    int ChangedRows() const { return stored.ChangedIn(table); }
    /// Nothing is left to save: the rows are those that are stored.
    void MarkUnchanged();
    /// The same for rows on show that were just loaded, given in knots, nautical miles and hours.
    void MarkLoaded(const PortCallRows& standard);
    /// Takes the table for changed, unless it has fewer than two places: such a table cannot be saved.
    void MarkChanged(PortDirectory& ports);

  private:
    void ShowUnits();
    void ShowSummary(const PortCallRows& standard);

    UnitSet units_;
};

}  // namespace Tarvik::Seaplan

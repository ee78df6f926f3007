// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/portcall/PortCallTable.h"

namespace Tarvik::Seaplan {

/// The rows of the table as they were last loaded or saved: what changes are counted against, and what a
/// leg's speed was before its cell rounded it; and the ports that the figures on show are of.
class StoredRows {
  public:
    /// Takes the rows with a port of a table; `standard` are the same rows in knots, nautical miles and
    /// hours, with the digits that the cells do not show. Where these are others the cells alone count.
    void Store(const PortCallTable& table, const PortCallRows& standard);
    void Clear();
    /// How many rows of the table a person has changed, added or taken away since.
    int ChangedIn(const PortCallTable& table) const;
    /// Another unit on show. The rows go the way of the table's cells, so that rounding makes no change of
    /// them; the unrounded speeds stay.
    void Convert(const std::string& from, const std::string& to);
    /// Gives the rows with a port of a table, in knots, nautical miles and hours, the unrounded speed of each
    /// leg that runs between the same two ports as then and has the same speed cell.
    void RestoreSpeeds(const PortCallTable& table, PortCallRows& standard) const;

    /// The figures on show are those of the ports in the table, in their order.
    void NoteRoute(const PortCallTable& table);
    /// The same ports as another's figures are of.
    void TakeRoute(const StoredRows& other) { route_ = other.route_; }
    /// How many ports from the first on are those that the figures are of.
    int RoutedPorts(const PortCallTable& table) const;
    /// Whether all of them are, and the figures of no others.
    bool IsRouteOf(const PortCallTable& table) const;

  private:
    struct Row {
        CellTexts cells;
        SpeedKnots speed = 0;  ///< unrounded
    };

    std::vector<Row> rows_;
    std::vector<std::string> route_;  ///< ports that the figures on show are of
};

}  // namespace Tarvik::Seaplan

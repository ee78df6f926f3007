// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/data/PointTables.h"
#include "seaplan/data/VoyPortCall.h"

/// Ports by id, name and place, and the ids in rows, which are looked up once, where the port is typed, and
/// carried from then on. Whoever changes a row's name empties its id.
namespace Tarvik::Seaplan {

/// Id of a port by its English name, by the host's dictionary; empty when unknown.
std::string PortIdOf(const std::string& name);
/// English name of a port by its id, by the host's dictionary; empty when unknown.
std::string PortNameOf(const std::string& id);

/// What the plug-in knows of ports and route points. Places, local names and ports of one place come from the
/// host's table of points. Each part of it is read once, when it is first needed; a part that cannot be read
/// is tried again at the next question. The composition root makes one directory and hands it to all who ask.
class PortDirectory {
  public:
    using NamesByLocal = std::map<std::string, std::string>;

    /// Over the host's table, looked for when it is first needed.
    PortDirectory() = default;
    /// Over a table elsewhere.
    explicit PortDirectory(std::string database) : database_(std::move(database)) {}
    /// Over what is given here and no table. `names` in any order, `byLocal` port names by local name, and by
    /// what else a port is called, in capitals.
    PortDirectory(std::vector<std::string> names, NamesByLocal byLocal, SamePortLinks samePorts,
                  PointMap routePoints = {});

    /// Route points by id; null when the table cannot be read.
    const PointMap* RoutePoints();
    /// The route point of an id that an earlier question has read, null for another. Reads nothing.
    const RoutePointRow* FindReadRoutePoint(const std::string& id) const;
    /// Ports by id, without their names; null when the table cannot be read.
    const PointMap* PortPositions();
    /// Ids of ports that are one place; none when the table cannot be read.
    const SamePortLinks& SamePorts();
    bool IsSamePlace(const std::string& idA, const std::string& idB);

    /// Reads the names that the questions below stand on: those that the host's dictionary has for the ports
    /// of the table, and the local ones. What cannot be read stays empty.
    void ReadNames();
    /// The ports of the table have changed, as by a login: they are read again when they are next needed, and
    /// their names at once where they had been read. Route points and ports of one place stay.
    void ReadAnew();
    /// Name for a typed text: a text that begins with a byte above 127 is a local name. Empty when a local
    /// name is unknown. Any other text that differs from a port's name by case only gives that name, a code
    /// or an other name of one port gives that port's, and stands as it is otherwise.
    std::string NameOf(const std::string& typed) const;
    /// Whether a port has this name; without any names at hand every name counts as known.
    bool Knows(const std::string& name) const;
    /// Names that begin with `typed`, in any case, in order of name, at most `limit`; local names give their
    /// port's name.
    std::vector<std::string> Match(const std::string& typed, std::size_t limit) const;

  private:
    std::string Path() const;
    void SetNames(std::vector<std::string> names);

    std::string database_;  ///< empty for the host's
    bool hasRoutePoints_ = false;
    bool hasPorts_ = false;
    bool hasLinks_ = false;
    bool hasNames_ = false;
    PointMap routePoints_;
    PointMap ports_;
    SamePortLinks samePorts_;
    std::vector<std::pair<std::string, std::string>> names_;  ///< folded name and name, in order
    NamesByLocal byLocal_;
};

/// Gives the rows that have no id that of their port by the host's dictionary; an unknown name gets none.
void ResolvePortIds(PortCallRows& rows);
/// Index of the first row that has no id, and whose name the host's dictionary does not know; nothing when
/// all are known.
std::optional<std::size_t> FirstUnknownPort(const PortCallRows& rows);
/// Puts back the ids that a schedule pass left out of its rows; `before` are the rows that went into it. Rows
/// that are not the same ports get none.
void KeepPortIds(const PortCallRows& before, PortCallRows& rows);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "seaplan/controllers/voycal/VoyCalRecords.h"

/// Putting an alternative in the place of a route point, in the texts that a request would carry.
namespace Tarvik::Seaplan {

/// A route point that gives way to another.
struct VoyCalChange {
    std::string oldId;
    std::string newId;
    std::int32_t port = -1;  ///< index of the port whose way changes, -1 for none
    std::string group;       ///< "range;id|id|old id"
    std::string lock;        ///< "new id=range"
};

/// The change at the first port that has a group of `oldId`, by that group's first range. Nothing without
/// such a group or without a range.
std::optional<VoyCalChange> ChangeOf(const std::vector<VoyCalPort>& ports, const std::string& oldId,
                                     const std::string& newId);
/// A port's entry in the list of ids, "id|points passed|locks", with the change's lock among those that the
/// port has, in the order of its groups. `choosing` tells that the change was chosen among alternatives, so
/// that locks which name the old point stay. Nothing when the port has locks but no group of the old point.
std::optional<std::string> EntryWithLock(const VoyCalPort& port, const VoyCalChange& change, bool choosing);
/// An entry up to its first "|": the port's id.
std::string PortIdOfEntry(const std::string& entry);

}  // namespace Tarvik::Seaplan

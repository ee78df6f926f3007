// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tarvik/interface/SiblingRecords.h>

/// Requests and replies of the server's fleet commands (docs/wire-format.md).
namespace Tarvik::Fleet {

/// The number of a change on the wire.
enum class Operation { Add = 0, Set = 1, Remove = 2 };

/// Asks for the fleet of a user.
std::string LoadRequest(const std::string& user);
/// Changes one vessel; of a removal the id alone counts.
std::string ChangeRequest(Operation operation, const Interface::FleetVessel& vessel);
/// The vessels of a reply; nothing for one that is no list.
std::optional<std::vector<Interface::FleetVessel>> ReadFleet(const std::string& reply);

/// What the server says of a change.
struct Verdict {
    int code = -1;   ///< 0 done, else the server's number; -1 when it cannot be read
    std::string id;  ///< of a new vessel
};
Verdict ReadVerdict(const std::string& reply);

}  // namespace Tarvik::Fleet

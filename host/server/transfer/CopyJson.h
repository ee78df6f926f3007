// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

#include "host/server/transfer/TransferFile.h"

/// Records as objects of a line and back. Reading throws what the JSON library throws when a member is
/// missing or of another kind, and std::out_of_range for a number that its record cannot hold.
namespace Tarvik::Server::CopyJson {

std::string UserLine(const UserCopy& user);
std::string CategoryLine(const CategoryCopy& category);
std::string VoyageLine(const VoyageCopy& copy);
std::string RemarkLine(const RemarkCopy& copy);

UserCopy ReadUser(const nlohmann::ordered_json& line);
CategoryCopy ReadCategory(const nlohmann::ordered_json& line);
VoyageCopy ReadVoyage(const nlohmann::ordered_json& line);
RemarkCopy ReadRemark(const nlohmann::ordered_json& line);

}  // namespace Tarvik::Server::CopyJson

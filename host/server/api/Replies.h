// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/server/api/Errors.h"
#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server::Replies {

/// {"eid":0}
std::string Success();
/// {"eid":0,"<key>":"<id>"}
std::string Created(std::string_view key, std::string_view id);
/// {"eid":N,"emsg":"reason"} or "reason: detail"
std::string Error(ErrorCode code, std::string_view detail);

/// Array of categories, each with its voyages; every number is a text.
std::string Catalog(const std::vector<CategoryRecord>& categories);
/// Array of at most one book, positions as numbers with a fraction.
std::string Book(const std::optional<BookRecord>& book);
/// Array of port calls; every number is a text.
std::string PortCalls(const std::vector<PortCallRecord>& calls);
/// Array of vessels; every number is a text.
std::string Fleet(const std::vector<FleetRecord>& fleet);
/// Array of own ports, positions as numbers with a fraction.
std::string Places(const std::vector<PlaceRecord>& places);
/// {"times":[...]}
std::string AisTimes(const std::vector<std::string>& times);
/// Array of remarks; both dates are GMT timer values as texts.
std::string Remarks(const std::vector<RemarkRecord>& remarks);

}  // namespace Tarvik::Server::Replies

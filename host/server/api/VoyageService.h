// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/server/api/CommandTable.h"

namespace Tarvik::Server {

/// Answers every command of the protocol for one storage and one source of routes, which both outlive it.
///
/// A request that does not parse, lacks a value, or names what is not there or not the user's gets
/// {"eid":N,"emsg":"reason"} with N above 0 (see Errors.h) and changes nothing. Safe to call from several
/// threads as far as the storage and the route source are; never throws.
class VoyageService {
  public:
    VoyageService(Storage& storage, RouteSource& routes, ServerClock clock = SystemSeconds);

    /// The reply text to one request text of a logged-in user.
    std::string Handle(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                       std::string_view text);

  private:
    Storage& storage_;
    RouteSource& routes_;
    ServerClock clock_;
};

}  // namespace Tarvik::Server

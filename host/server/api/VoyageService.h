// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/server/api/Errors.h"
#include "host/server/storage/contract/ServerTime.h"

namespace Tarvik::Server {

class RouteSource;
class Storage;

/// A reply text with what it means.
struct VoyageReply {
    std::string text;
    bool refused = false;                  ///< `eid` is not 0
    ErrorCode code = ErrorCode::Internal;  ///< when it is refused
    std::string failure;                   ///< what the server could not do, for whoever runs it

    /// Whether the server is at fault, and not the request.
    bool Failed() const {
        return refused && (code == ErrorCode::StorageFailed || code == ErrorCode::Internal ||
                           code == ErrorCode::MaybeStored);
    }
};

/// Answers every command of the protocol for one storage and one source of routes, which both outlive it.
///
/// A request that does not parse, lacks a value, or names what is not there or not the user's gets
/// {"eid":N,"emsg":"reason"} with N above 0 (see Errors.h) and changes nothing. Safe to call from several
/// threads as far as the storage and the route source are; never throws.
class VoyageService {
  public:
    VoyageService(Storage& storage, RouteSource& routes, ServerClock clock = SystemSeconds);

    /// The reply to one request text of a logged-in user. Its text tells nothing of the data base behind the
    /// server; `failure` does. `writer` tells the clients of one user apart.
    VoyageReply Answer(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                       std::string_view text, const std::string& writer = {});
    /// The text of that reply alone.
    std::string Handle(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                       std::string_view text);

  private:
    Storage& storage_;
    RouteSource& routes_;
    ServerClock clock_;
};

}  // namespace Tarvik::Server

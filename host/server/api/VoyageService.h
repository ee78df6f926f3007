// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/server/api/AisTimeCommands.h"
#include "host/server/api/BookCommands.h"
#include "host/server/api/CategoryCommands.h"
#include "host/server/api/FigureCommands.h"
#include "host/server/api/PortCallCommands.h"
#include "host/server/api/RemarkCommands.h"
#include "host/server/api/RouteSource.h"
#include "host/server/api/VoyageCommands.h"
#include "host/server/storage/contract/Storage.h"

namespace Tarvik::Server {

/// Module word of the voyage, schedule and route commands.
inline constexpr std::uint16_t kVoyageModule = 5;
/// Module word of the remark command.
inline constexpr std::uint16_t kRemarkModule = 0x1002;

/// The system clock's time in seconds since 1970-01-01 00:00:00 UTC.
std::int64_t SystemSeconds();

/// Answers every command of the protocol for one storage and one source of routes, which both outlive it.
///
/// A request that does not parse, lacks a value, or names what is not there or not the user's gets
/// {"eid":N,"emsg":"reason"} with N above 0 (see Errors.h) and changes nothing. Safe to call from several
/// threads as far as the storage and the route source are; never throws.
class VoyageService {
  public:
    VoyageService(Storage& storage, RouteSource& routes, const ServerClock& clock = SystemSeconds);

    /// The reply text to one request text of a logged-in user.
    std::string Handle(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                       std::string_view text);

  private:
    std::string Dispatch(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                         std::string_view text);

    RouteSource& routes_;
    CategoryCommands categories_;
    VoyageCommands voyages_;
    FigureCommands figures_;
    BookCommands books_;
    PortCallCommands portCalls_;
    AisTimeCommands aisTimes_;
    RemarkCommands remarks_;
};

}  // namespace Tarvik::Server

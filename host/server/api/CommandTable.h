// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include <tarvik/interface/ServerRequest.h>

#include "host/server/api/RouteSource.h"
#include "host/server/storage/contract/ServerTime.h"
#include "host/server/storage/contract/Storage.h"

namespace Tarvik::Server {

/// One request of a logged-in user, with what answers it.
struct CommandCall {
    Storage& storage;
    RouteSource& routes;
    const ServerClock& clock;
    const std::string& user;
    std::string_view text;
    const std::string& writer;  ///< tells the clients of one user apart
};

/// Gives the reply of a success; throws Refusal, having changed nothing.
using CommandHandler = std::string (*)(const CommandCall& call);

/// What a command keeps busy: what waits for a lock or searches long must not keep readers waiting.
enum class CommandKind {
    Read,
    Change,  ///< also where only some of its operations change anything
    Route,
};

/// One command of the protocol. A new one is an entry of the table with its handler in CommandHandlers.h.
struct CommandEntry {
    std::uint16_t moduleWord;
    Interface::VoyCommand command;
    std::string_view name;     ///< what it does, as docs/wire-format.md says it
    std::string_view request;  ///< an example of its request, also from there
    std::string_view label;    ///< in metrics and log
    CommandKind kind;
    CommandHandler handle;

    constexpr std::uint16_t Number() const { return Interface::NumberOf(command); }
};

/// All commands, in the order of their modules and numbers.
std::span<const CommandEntry> CommandTable();

/// The entry of a command; null when there is none.
const CommandEntry* FindCommand(std::uint16_t moduleWord, std::uint16_t number);

/// What metrics and log call a command; "unknown" when there is none.
std::string_view CommandLabel(std::uint16_t moduleWord, std::uint16_t number);

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/server/api/VoyageService.h"

#include <utility>

#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"

namespace Tarvik::Server {

namespace {

std::string Dispatch(const CommandEntry* entry, const CommandCall& call) {
    if (call.user.empty()) {
        throw Refusal(ErrorCode::NoUser);
    }
    if (entry == nullptr) {
        throw Refusal(ErrorCode::UnknownCommand);
    }
    return entry->handle(call);
}

}  // namespace

VoyageService::VoyageService(Storage& storage, RouteSource& routes, ServerClock clock)
    : storage_(storage), routes_(routes), clock_(std::move(clock)) {}

std::string VoyageService::Handle(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                                  std::string_view text) {
    try {
        return Dispatch(FindCommand(moduleWord, command), {storage_, routes_, clock_, user, text});
    } catch (const Refusal& refusal) {
        return Replies::Error(refusal.Code(), refusal.Detail());
    } catch (const std::exception& error) {
        return Replies::Error(ErrorCode::Internal, error.what());
    } catch (...) {
        return Replies::Error(ErrorCode::Internal, {});
    }
}

}  // namespace Tarvik::Server

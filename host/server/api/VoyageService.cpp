// SPDX-License-Identifier: MIT
#include "host/server/api/VoyageService.h"

#include <chrono>

#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"

namespace Tarvik::Server {

std::int64_t SystemSeconds() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

VoyageService::VoyageService(Storage& storage, RouteSource& routes, const ServerClock& clock)
    : routes_(routes),
      categories_(storage.Catalog()),
      voyages_(storage.Catalog()),
      figures_(storage.Catalog()),
      books_(storage.Schedule()),
      portCalls_(storage.Schedule()),
      aisTimes_(storage.Schedule()),
      remarks_(storage.Remarks(), clock) {}

std::string VoyageService::Handle(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                                  std::string_view text) {
    try {
        return Dispatch(user, moduleWord, command, text);
    } catch (const Refusal& refusal) {
        return Replies::Error(refusal.Code(), refusal.Detail());
    } catch (const std::exception& error) {
        return Replies::Error(ErrorCode::Internal, error.what());
    } catch (...) {
        return Replies::Error(ErrorCode::Internal, {});
    }
}

std::string VoyageService::Dispatch(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                                    std::string_view text) {
    if (user.empty()) {
        throw Refusal(ErrorCode::NoUser);
    }
    if (moduleWord == kRemarkModule && command == 9) {
        return remarks_.Handle(user, text);
    }
    if (moduleWord != kVoyageModule) {
        throw Refusal(ErrorCode::UnknownCommand);
    }
    switch (command) {
        case 1:
            return routes_.Plan(text);
        case 2:
            return routes_.Nearest(text);
        case 3:
            return categories_.Load(user, text);
        case 4:
            return categories_.Change(user, text);
        case 5:
            return voyages_.Change(user, text);
        case 6:
            return figures_.Store(user, text);
        case 7:
            return books_.Load(user, text);
        case 8:
            return books_.Create(user, text);
        case 9:
            return books_.WriteRows(user, text);
        case 10:
            return portCalls_.Load(user, text);
        case 11:
            return portCalls_.Replace(user, text);
        case 12:
            return aisTimes_.Load(user, text);
        case 13:
            return aisTimes_.Add(user, text);
        case 14:
            return books_.SetDate(user, text);
        default:
            throw Refusal(ErrorCode::UnknownCommand);
    }
}

}  // namespace Tarvik::Server

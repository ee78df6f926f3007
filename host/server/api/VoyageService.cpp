// SPDX-License-Identifier: MIT
#include "host/server/api/VoyageService.h"

#include <utility>

#include "host/server/api/CommandTable.h"
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

VoyageReply Refused(ErrorCode code, const std::string& detail) {
    VoyageReply reply{{}, true, code, {}};
    if (reply.Failed()) {
        reply.failure = detail.empty() ? std::string(TextOf(code)) : detail;
        reply.text = Replies::Error(code, {});
    } else {
        reply.text = Replies::Error(code, detail);
    }
    return reply;
}

}  // namespace

VoyageService::VoyageService(Storage& storage, RouteSource& routes, ServerClock clock)
    : storage_(storage), routes_(routes), clock_(std::move(clock)) {}

VoyageReply VoyageService::Answer(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                                  std::string_view text, const std::string& writer) {
    try {
        VoyageReply reply;
        reply.text =
            Dispatch(FindCommand(moduleWord, command), {storage_, routes_, clock_, user, text, writer});
        // With its closing NUL it is to fit an envelope.
        if (reply.text.size() >= Interface::kMaxPayloadBytes) {
            return Refused(ErrorCode::ReplyTooLong, {});
        }
        return reply;
    } catch (const Refusal& refusal) {
        return Refused(refusal.Code(), refusal.Detail());
    } catch (const std::exception& error) {
        return Refused(ErrorCode::Internal, error.what());
    } catch (...) {
        return Refused(ErrorCode::Internal, "something was thrown that is no exception");
    }
}

std::string VoyageService::Handle(const std::string& user, std::uint16_t moduleWord, std::uint16_t command,
                                  std::string_view text) {
    return Answer(user, moduleWord, command, text).text;
}

}  // namespace Tarvik::Server

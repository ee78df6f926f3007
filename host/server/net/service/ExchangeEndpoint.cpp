// SPDX-License-Identifier: MIT
#include "host/server/accounts/Credentials.h"
#include "host/server/api/CommandTable.h"
#include "host/server/api/VoyageService.h"
#include "host/server/net/service/Endpoints.h"
#include "host/server/wire/Envelope.h"

namespace Tarvik::Server {

namespace {

Lane LaneOf(CommandKind kind) {
    switch (kind) {
        case CommandKind::Change:
            return Lane::Write;
        case CommandKind::Route:
            return Lane::Route;
        case CommandKind::Read:
            break;
    }
    return Lane::Read;
}

/// What tells the clients of one user apart: each has logged in by itself. Of the token no more goes to the
/// storage than that takes.
std::string WriterOf(const HttpRequest& request) {
    constexpr std::size_t kEnough = 16;
    return HashToken(TokenOf(request.authorization)).substr(0, kEnough);
}

}  // namespace

Answered ExchangeEndpoint::Exchange(const HttpRequest& request) {
    Answered answered;
    answered.command = "exchange";
    const auto user = sessions_.UserOf(TokenOf(request.authorization));
    if (!user) {
        answered.detail = user.GetFault().detail;
        answered.reply = ErrorReply(503, "the server cannot read its data base now");
    } else if (!user.Value()) {
        answered.reply = UnauthorizedReply("the token is unknown or over");
    } else if (const auto envelope = ReadEnvelope(request.body); !envelope) {
        answered.user = *user.Value();
        answered.reply = ErrorReply(400, "the body is no envelope, or of another length than its head says");
    } else {
        answered.user = *user.Value();
        answered.command = CommandLabel(envelope->moduleWord, envelope->command);
        VoyageReply reply = service_.Answer(answered.user, envelope->moduleWord, envelope->command,
                                            envelope->text, WriterOf(request));
        answered.reply = {200,
                          "application/octet-stream",
                          WriteEnvelope({envelope->command, envelope->moduleWord, reply.text}),
                          {}};
        answered.result = reply.Failed() ? "failed" : reply.refused ? "refused" : "ok";
        answered.detail = std::move(reply.failure);
        return answered;
    }
    answered.result = ResultOf(answered.reply.status);
    return answered;
}

std::optional<HttpReply> ExchangeEndpoint::RefuseStranger(const HttpRequest& head) {
    const auto user = sessions_.UserOf(TokenOf(head.authorization));
    if (!user) {
        return ErrorReply(503, "the server cannot read its data base now");
    }
    return user.Value() ? std::nullopt : std::optional(UnauthorizedReply("the token is unknown or over"));
}

Place ExchangeEndpoint::PlaceOf(const HttpRequest& request) {
    const auto envelope = ReadEnvelope(request.body);
    if (!envelope) {
        return {Lane::Read, {}};
    }
    const CommandEntry* entry = FindCommand(envelope->moduleWord, envelope->command);
    const Lane lane = entry == nullptr ? Lane::Read : LaneOf(entry->kind);
    return {lane, lane == Lane::Route ? sessions_.TurnOf(TokenOf(request.authorization)) : std::string()};
}

}  // namespace Tarvik::Server

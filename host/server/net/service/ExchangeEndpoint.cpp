// SPDX-License-Identifier: MIT
#include "host/server/accounts/Credentials.h"
#include "host/server/net/service/Endpoints.h"
#include "host/server/wire/Envelope.h"

namespace Tarvik::Server {

namespace {

/// Replies that refuse begin with their code.
bool Refuses(std::string_view reply) {
    constexpr std::string_view kCode = "{\"eid\":";
    return reply.starts_with(kCode) && reply.size() > kCode.size() && reply[kCode.size()] != '0';
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
        const std::string text =
            service_.Handle(answered.user, envelope->moduleWord, envelope->command, envelope->text);
        answered.reply = {200,
                          "application/octet-stream",
                          WriteEnvelope({envelope->command, envelope->moduleWord, text}),
                          {}};
        answered.result = Refuses(text) ? "refused" : "ok";
        return answered;
    }
    answered.result = ResultOf(answered.reply.status);
    return answered;
}

}  // namespace Tarvik::Server

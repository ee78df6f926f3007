// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "host/server/accounts/Credentials.h"
#include "host/server/net/service/Endpoints.h"
#include "host/server/storage/contract/ServerTime.h"

namespace Tarvik::Server {

namespace {

std::string TextMember(const nlohmann::json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

}  // namespace

Answered LoginEndpoint::LogIn(const HttpRequest& request) {
    Answered answered;
    answered.command = "login";
    const nlohmann::json body = nlohmann::json::parse(request.body, nullptr, false);
    const std::string user = body.is_object() ? TextMember(body, "user") : std::string();
    const std::string password = body.is_object() ? TextMember(body, "password") : std::string();
    if (user.empty() || password.empty()) {
        answered.reply = ErrorReply(400, "a login is {\"user\":\"NAME\",\"password\":\"TEXT\"}");
    } else if (!IsUserName(user) || password.size() > kMostPasswordBytes) {
        answered.reply = UnauthorizedReply("the user name or the password is wrong");
    } else {
        const Login login = sessions_.Open(user, password, request.address);
        answered.user = user;
        answered.detail = login.detail;
        answered.reply = ReplyOf(login, user);
    }
    answered.result = ResultOf(answered.reply.status);
    return answered;
}

HttpReply LoginEndpoint::ReplyOf(const Login& login, const std::string& user) const {
    switch (login.result) {
        case LoginResult::Done: {
            const nlohmann::ordered_json body = {{"token", login.token},
                                                 {"user", user},
                                                 {"expires", UtcText(login.expires)},
                                                 {"expires_in", life_}};
            return {200, "application/json", body.dump(), {}};
        }
        case LoginResult::Wrong:
            return UnauthorizedReply("the user name or the password is wrong");
        case LoginResult::TooMany: {
            HttpReply reply = ErrorReply(429, "too many failed logins; wait");
            reply.fields.emplace_back("Retry-After", std::to_string(login.waitSeconds));
            return reply;
        }
        case LoginResult::Failed:
            break;
    }
    return ErrorReply(503, "the server cannot log anybody in now");
}

Answered LoginEndpoint::LogOut(const HttpRequest& request) {
    Answered answered;
    answered.command = "logout";
    const std::string token = TokenOf(request.authorization);
    const auto user = sessions_.UserOf(token);
    if (!user) {
        answered.detail = user.GetFault().detail;
        answered.reply = ErrorReply(503, "the server cannot log anybody out now");
    } else if (!user.Value()) {
        answered.reply = UnauthorizedReply("the token is unknown or over");
    } else {
        answered.user = *user.Value();
        const Status closed = sessions_.Close(token);
        answered.detail = closed ? std::string() : closed.GetFault().detail;
        answered.reply = closed ? HttpReply{200, "application/json", "{}", {}}
                                : ErrorReply(503, "the server cannot log anybody out now");
    }
    answered.result = ResultOf(answered.reply.status);
    return answered;
}

}  // namespace Tarvik::Server

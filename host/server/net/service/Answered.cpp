// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "host/server/net/service/Endpoints.h"

namespace Tarvik::Server {

HttpReply ErrorReply(int status, const std::string& text) {
    return {status, "application/json", nlohmann::json{{"error", text}}.dump(), {}};
}

HttpReply UnauthorizedReply(const std::string& text) {
    HttpReply reply = ErrorReply(401, text);
    reply.fields.emplace_back("WWW-Authenticate", "Bearer");
    return reply;
}

std::string ResultOf(int status) {
    if (status < 400) {
        return "ok";
    }
    if (status == 401) {
        return "unauthorized";
    }
    if (status == 429) {
        return "limited";
    }
    return status < 500 ? "bad" : "failed";
}

}  // namespace Tarvik::Server

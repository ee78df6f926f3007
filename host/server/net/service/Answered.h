// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/server/net/http/HttpMessage.h"

namespace Tarvik::Server {

/// A reply with what metrics and log say about it.
struct Answered {
    HttpReply reply;
    std::string command;  ///< one of a few names
    std::string result;   ///< ok, refused, unauthorized, bad, limited or failed
    std::string user;     ///< empty when nobody is known
    std::string detail;   ///< what went wrong inside, for the log only
};

/// A reply {"error":"…"}.
HttpReply ErrorReply(int status, const std::string& text);

/// A refusal of a request that has no valid token.
HttpReply UnauthorizedReply(const std::string& text);

/// The result that a status stands for.
std::string ResultOf(int status);

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/accounts/Sessions.h"
#include "host/server/net/service/Answered.h"

namespace Tarvik::Server {

/// Login and logout over HTTP.
class LoginEndpoint {
  public:
    LoginEndpoint(Sessions& sessions, std::int64_t lifeSeconds) : sessions_(sessions), life_(lifeSeconds) {}

    /// Takes {"user":"…","password":"…"}; gives {"token":…,"user":…,"expires":UTC text,"expires_in":seconds}.
    Answered LogIn(const HttpRequest& request);
    /// Ends the session of the request's token.
    Answered LogOut(const HttpRequest& request);

  private:
    HttpReply ReplyOf(const Login& login, const std::string& user) const;

    Sessions& sessions_;
    std::int64_t life_;
};

}  // namespace Tarvik::Server

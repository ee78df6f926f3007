// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <mutex>
#include <optional>
#include <string>

#include "host/server/accounts/Sessions.h"
#include "host/server/net/http/HttpService.h"

namespace Tarvik::Server {

class Storage;
class VoyageService;

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

/// The voyage protocol over HTTP: an envelope in, an envelope out, for the user of the token.
class ExchangeEndpoint {
  public:
    ExchangeEndpoint(VoyageService& service, Sessions& sessions) : service_(service), sessions_(sessions) {}

    /// A reply of the voyage service has status 200 also when it refuses (`eid` not 0); other statuses mean
    /// that the service was not asked.
    Answered Exchange(const HttpRequest& request);
    /// The refusal of a request whose token is unknown or over, or cannot be looked up now.
    std::optional<HttpReply> RefuseStranger(const HttpRequest& head);
    /// Where the request's command is answered; routes take turns by user.
    Place PlaceOf(const HttpRequest& request);

  private:
    VoyageService& service_;
    Sessions& sessions_;
};

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

/// Whether the data bases answer and take changes.
class HealthEndpoint {
  public:
    HealthEndpoint(Storage& storage, AccountStorage& accounts) : storage_(storage), accounts_(accounts) {}

    /// Status 200, or 503 with the reason as its detail. What was found holds for a second, so that nobody
    /// makes the disk work by asking.
    Answered Health();

  private:
    std::string Look();

    Storage& storage_;
    AccountStorage& accounts_;
    std::mutex mutex_;
    std::optional<std::chrono::steady_clock::time_point> looked_;
    std::string trouble_;  ///< what was found then; empty when all was well
};

}  // namespace Tarvik::Server

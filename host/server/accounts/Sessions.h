// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/accounts/Credentials.h"
#include "host/server/accounts/LoginGuard.h"
#include "host/server/accounts/SessionMemory.h"
#include "host/server/storage/contract/ServerTime.h"

namespace Tarvik::Server {

/// How a login ended.
enum class LoginResult { Done, Wrong, TooMany, Failed };

struct Login {
    LoginResult result = LoginResult::Failed;
    std::string token;             ///< when done
    std::int64_t expires = 0;      ///< when done: seconds since 1970-01-01 00:00:00 UTC
    std::int64_t waitSeconds = 0;  ///< when there were too many attempts
    std::string detail;            ///< when failed: what the server could not do
};

/// Logins and what they lead to. Safe to call from any thread.
class Sessions {
  public:
    /// `accounts` is not owned and outlives this. A session lasts `lifeSeconds` from its login.
    Sessions(AccountStorage& accounts, const Passwords& passwords, const LoginLimits& limits,
             std::int64_t lifeSeconds, ServerClock clock);

    /// Opens a session. Unknown user, wrong password and disabled user are one result.
    Login Open(const std::string& user, const std::string& password, const std::string& address);
    /// The user of a token; nothing for one that is unknown or over. A session that another process has ended
    /// may be taken for open until the second is over.
    Outcome<std::optional<std::string>> UserOf(const std::string& token);
    /// Whose turn a request of this token is: the user, or, as long as nobody has looked for that, the token.
    std::string TurnOf(const std::string& token);
    /// Ends the session of a token.
    Status Close(const std::string& token);

  private:
    Login OpenSession(UserRecord user, const std::string& password);

    AccountStorage& accounts_;
    Passwords passwords_;
    LoginGuard guard_;
    std::int64_t life_;
    ServerClock clock_;
    SessionMemory memory_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/server/accounts/Sessions.h"

#include <utility>

#include "host/server/accounts/Credentials.h"

namespace Tarvik::Server {

Sessions::Sessions(AccountStorage& accounts, const Passwords& passwords, const LoginLimits& limits,
                   std::int64_t lifeSeconds, ServerClock clock)
    : accounts_(accounts),
      passwords_(passwords),
      guard_(limits, clock),
      life_(lifeSeconds),
      clock_(std::move(clock)) {}

Login Sessions::Open(const std::string& user, const std::string& password, const std::string& address) {
    Login login;
    login.waitSeconds = guard_.Begin(user, address);
    if (login.waitSeconds > 0) {
        login.result = LoginResult::TooMany;
        return login;
    }
    auto found = accounts_.FindUser(user);
    if (!found) {
        login.detail = found.GetFault().detail;
        return login;
    }
    if (!found.Value()) {
        passwords_.Pretend(password);
        login.result = LoginResult::Wrong;
        return login;
    }
    login = OpenSession(std::move(*found.Value()), password);
    if (login.result == LoginResult::Done) {
        guard_.Succeeded(user, address);
    }
    return login;
}

Login Sessions::OpenSession(UserRecord user, const std::string& password) {
    Login login;
    login.result = LoginResult::Wrong;
    if (!passwords_.Matches(user.passwordHash, password) || user.disabled) {
        return login;
    }
    if (passwords_.IsOutdated(user.passwordHash)) {
        const std::string renewed = passwords_.Hash(password);
        const auto written = renewed.empty() ? Outcome<bool>(false)
                                             : accounts_.RenewHash(user.name, user.passwordHash, renewed);
        if (written && written.Value()) {
            user.passwordHash = renewed;
        }
    }
    login.token = MakeToken();
    if (login.token.empty()) {
        login.result = LoginResult::Failed;
        login.detail = "there are no random bytes";
        return login;
    }
    const std::int64_t now = clock_();
    login.expires = now + life_;
    const SessionRecord session{HashToken(login.token), user.name, login.expires};
    const auto added = accounts_.AddSession(session, user.passwordHash, now);
    if (!added) {
        login.result = LoginResult::Failed;
        login.detail = added.GetFault().detail;
    } else if (added.Value()) {
        login.result = LoginResult::Done;
    }
    return login;
}

Outcome<std::optional<std::string>> Sessions::UserOf(const std::string& token) {
    if (token.empty()) {
        return std::optional<std::string>();
    }
    const std::string hash = HashToken(token);
    const std::int64_t now = clock_();
    if (auto user = memory_.UserOf(hash, now)) {
        return user;
    }
    const std::uint64_t generation = memory_.Generation();
    auto found = accounts_.FindSession(hash, now);
    if (found && found.Value()) {
        memory_.Keep(hash, *found.Value(), now, generation);
    }
    return found;
}

std::string Sessions::TurnOf(const std::string& token) {
    const std::string user = memory_.LastUserOf(HashToken(token));
    return user.empty() ? token : user;
}

Status Sessions::Close(const std::string& token) {
    Status removed = accounts_.RemoveSession(HashToken(token));
    memory_.Forget();
    return removed;
}

}  // namespace Tarvik::Server

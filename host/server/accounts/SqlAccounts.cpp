// SPDX-License-Identifier: MIT
#include "host/server/accounts/SqlAccounts.h"

namespace Tarvik::Server {

namespace {

UserRecord UserOf(const SqlRows& row) {
    return {row.Text(0), row.Text(1), row.Flag(2)};
}

/// No name in a data base holds one, and not every data base can be asked for it.
bool HasZeroByte(const std::string& text) {
    return text.find('\0') != std::string::npos;
}

}  // namespace

Outcome<bool> SqlAccounts::AddUser(const std::string& name, const std::string& passwordHash) {
    return session_->Write([&](SqlConnection& connection) -> Outcome<bool> {
        return connection.Run("INSERT INTO users (name, password) VALUES ($1, $2) ON CONFLICT DO NOTHING",
                              name, passwordHash) == 1;
    });
}

Outcome<std::optional<UserRecord>> SqlAccounts::FindUser(const std::string& name) {
    if (HasZeroByte(name)) {
        return std::optional<UserRecord>();
    }
    return session_->Read([&](SqlConnection& connection) -> Outcome<std::optional<UserRecord>> {
        const auto found =
            connection.Query("SELECT name, password, disabled FROM users WHERE name = $1", name);
        return found->Next() ? std::optional(UserOf(*found)) : std::nullopt;
    });
}

Outcome<std::vector<UserRecord>> SqlAccounts::ListUsers() {
    return session_->Read([&](SqlConnection& connection) -> Outcome<std::vector<UserRecord>> {
        const auto all = connection.Query("SELECT name, password, disabled FROM users ORDER BY name");
        std::vector<UserRecord> users;
        while (all->Next()) {
            users.push_back(UserOf(*all));
        }
        return users;
    });
}

Outcome<bool> SqlAccounts::SetPassword(const std::string& name, const std::string& passwordHash) {
    return session_->Write([&](SqlConnection& connection) -> Outcome<bool> {
        // The user first: a login that goes on at the same time either sees the new password or has its
        // session ended here.
        const int changed =
            connection.Run("UPDATE users SET password = $2 WHERE name = $1", name, passwordHash);
        connection.Run("DELETE FROM sessions WHERE name = $1", name);
        return changed == 1;
    });
}

Outcome<bool> SqlAccounts::RenewHash(const std::string& name, const std::string& before,
                                     const std::string& after) {
    return session_->Write([&](SqlConnection& connection) -> Outcome<bool> {
        return connection.Run("UPDATE users SET password = $3 WHERE name = $1 AND password = $2", name,
                              before, after) == 1;
    });
}

Outcome<bool> SqlAccounts::SetDisabled(const std::string& name, bool disabled) {
    return session_->Write([&](SqlConnection& connection) -> Outcome<bool> {
        const int changed = connection.Run("UPDATE users SET disabled = $2 WHERE name = $1", name, disabled);
        if (disabled) {
            connection.Run("DELETE FROM sessions WHERE name = $1", name);
        }
        return changed == 1;
    });
}

Outcome<bool> SqlAccounts::AddSession(const SessionRecord& session, const std::string& passwordHash,
                                      std::int64_t now) {
    return session_->Write([&](SqlConnection& connection) -> Outcome<bool> {
        // The user stays as proven until the session is there, and is locked before any session is, as
        // everywhere. Sessions that another login or logout is removing already are left to it.
        const bool proven =
            connection
                .Query(
                    "SELECT name FROM users WHERE name = $1 AND password = $2 AND NOT disabled "
                    "{share:users}",
                    session.user, passwordHash)
                ->Next();
        connection.Run(
            "DELETE FROM sessions WHERE token IN "
            "(SELECT token FROM sessions WHERE expires <= $1 {free:sessions})",
            now);
        if (!proven) {
            return false;
        }
        connection.Run("INSERT INTO sessions (token, name, expires) VALUES ($1, $2, $3)", session.tokenHash,
                       session.user, session.expires);
        return true;
    });
}

Outcome<std::optional<std::string>> SqlAccounts::FindSession(const std::string& tokenHash, std::int64_t now) {
    return session_->Read([&](SqlConnection& connection) -> Outcome<std::optional<std::string>> {
        const auto found =
            connection.Query("SELECT name FROM sessions WHERE token = $1 AND expires > $2", tokenHash, now);
        return found->Next() ? std::optional(found->Text(0)) : std::nullopt;
    });
}

Status SqlAccounts::RemoveSession(const std::string& tokenHash) {
    return session_->Write([&](SqlConnection& connection) -> Status {
        connection.Run("DELETE FROM sessions WHERE token = $1", tokenHash);
        return Done{};
    });
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/server/accounts/PostgresAccounts.h"

namespace Tarvik::Server {

namespace {

UserRecord UserOf(const PostgresRows& rows, int row) {
    return {rows.Text(row, 0), rows.Text(row, 1), rows.Flag(row, 2)};
}

/// No name in the data base holds one, and none can be asked for.
bool HasZeroByte(const std::string& text) {
    return text.find('\0') != std::string::npos;
}

}  // namespace

std::unique_ptr<PostgresAccounts> PostgresAccounts::Open(const std::string& connectionText,
                                                         std::string& error, const PostgresOptions& options) {
    try {
        return std::unique_ptr<PostgresAccounts>(new PostgresAccounts(connectionText, options));
    } catch (const std::exception& failure) {
        error = failure.what();
        return nullptr;
    }
}

Outcome<bool> PostgresAccounts::AddUser(const std::string& name, const std::string& passwordHash) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<bool> {
        return connection
                   .Run("INSERT INTO users (name, password) VALUES ($1, $2) ON CONFLICT DO NOTHING", name,
                        passwordHash)
                   .Changes() == 1;
    });
}

Outcome<std::optional<UserRecord>> PostgresAccounts::FindUser(const std::string& name) {
    if (HasZeroByte(name)) {
        return std::optional<UserRecord>();
    }
    return session_.Read([&](PostgresConnection& connection) -> Outcome<std::optional<UserRecord>> {
        const PostgresRows found =
            connection.Run("SELECT name, password, disabled FROM users WHERE name = $1", name);
        if (found.Empty()) {
            return std::optional<UserRecord>();
        }
        return std::optional<UserRecord>(UserOf(found, 0));
    });
}

Outcome<std::vector<UserRecord>> PostgresAccounts::ListUsers() {
    return session_.Read([&](PostgresConnection& connection) -> Outcome<std::vector<UserRecord>> {
        const PostgresRows all = connection.Run("SELECT name, password, disabled FROM users ORDER BY name");
        std::vector<UserRecord> users;
        users.reserve(static_cast<std::size_t>(all.Count()));
        for (int row = 0; row < all.Count(); ++row) {
            users.push_back(UserOf(all, row));
        }
        return users;
    });
}

Outcome<bool> PostgresAccounts::SetPassword(const std::string& name, const std::string& passwordHash) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<bool> {
        // The user first: a login that goes on at the same time either sees the new password or has its
        // session ended here.
        const PostgresRows changed =
            connection.Run("UPDATE users SET password = $2 WHERE name = $1", name, passwordHash);
        connection.Run("DELETE FROM sessions WHERE name = $1", name);
        return changed.Changes() == 1;
    });
}

Outcome<bool> PostgresAccounts::RenewHash(const std::string& name, const std::string& before,
                                          const std::string& after) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<bool> {
        return connection
                   .Run("UPDATE users SET password = $3 WHERE name = $1 AND password = $2", name, before,
                        after)
                   .Changes() == 1;
    });
}

Outcome<bool> PostgresAccounts::SetDisabled(const std::string& name, bool disabled) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<bool> {
        const PostgresRows changed =
            connection.Run("UPDATE users SET disabled = $2 WHERE name = $1", name, disabled);
        if (disabled) {
            connection.Run("DELETE FROM sessions WHERE name = $1", name);
        }
        return changed.Changes() == 1;
    });
}

Outcome<bool> PostgresAccounts::AddSession(const SessionRecord& session, const std::string& passwordHash,
                                           std::int64_t now) {
    return session_.Write([&](PostgresConnection& connection) -> Outcome<bool> {
        // The user stays as proven until the session is there, and is locked before any session is, as
        // everywhere. Sessions that another login or logout is removing already are left to it.
        const PostgresRows proven = connection.Run(
            "SELECT name FROM users WHERE name = $1 AND password = $2 AND NOT disabled FOR SHARE",
            session.user, passwordHash);
        connection.Run(
            "DELETE FROM sessions WHERE token IN "
            "(SELECT token FROM sessions WHERE expires <= $1 FOR UPDATE SKIP LOCKED)",
            now);
        if (proven.Empty()) {
            return false;
        }
        connection.Run("INSERT INTO sessions (token, name, expires) VALUES ($1, $2, $3)", session.tokenHash,
                       session.user, session.expires);
        return true;
    });
}

Outcome<std::optional<std::string>> PostgresAccounts::FindSession(const std::string& tokenHash,
                                                                  std::int64_t now) {
    return session_.Read([&](PostgresConnection& connection) -> Outcome<std::optional<std::string>> {
        const PostgresRows found =
            connection.Run("SELECT name FROM sessions WHERE token = $1 AND expires > $2", tokenHash, now);
        if (found.Empty()) {
            return std::optional<std::string>();
        }
        return std::optional<std::string>(found.Text(0, 0));
    });
}

Status PostgresAccounts::RemoveSession(const std::string& tokenHash) {
    return session_.Write([&](PostgresConnection& connection) -> Status {
        connection.Run("DELETE FROM sessions WHERE token = $1", tokenHash);
        return Done{};
    });
}

}  // namespace Tarvik::Server

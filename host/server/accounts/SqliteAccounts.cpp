// SPDX-License-Identifier: MIT
#include "host/server/accounts/SqliteAccounts.h"

#include <fcntl.h>
#include <unistd.h>

#include "host/server/accounts/SqliteAccountTables.h"
#include "host/server/storage/sqlite/SqliteStatement.h"
#include "host/server/storage/sqlite/SqliteTransaction.h"

namespace Tarvik::Server {

namespace {

/// The data base makes its files with the rights of this one.
void MakePrivate(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (file >= 0) {
        ::close(file);
    }
}

UserRecord ReadUser(const SqliteStatement& row) {
    return {row.Text(0), row.Text(1), row.Integer(2) != 0};
}

}  // namespace

SqliteAccounts::SqliteAccounts(const std::string& path) : database_(path) {
    if (database_.ReadOnly()) {
        throw SqliteError("the data base is read-only: " + path);
    }
    MigrateAccounts(database_);
}

std::unique_ptr<SqliteAccounts> SqliteAccounts::Open(const std::string& path, std::string& error) {
    try {
        MakePrivate(path);
        return std::unique_ptr<SqliteAccounts>(new SqliteAccounts(path));
    } catch (const std::exception& failure) {
        error = failure.what();
        return nullptr;
    }
}

template <class Work>
auto SqliteAccounts::Write(Work&& work) -> decltype(work()) {
    try {
        const std::scoped_lock lock(mutex_);
        SqliteTransaction transaction(database_, SqliteTransaction::Mode::Write);
        auto outcome = work();
        transaction.Commit();
        return outcome;
    } catch (const std::exception& failure) {
        return Fault{FaultReason::StorageFailed, failure.what()};
    }
}

template <class Work>
auto SqliteAccounts::Read(Work&& work) -> decltype(work()) {
    try {
        const std::scoped_lock lock(mutex_);
        return work();
    } catch (const std::exception& failure) {
        return Fault{FaultReason::StorageFailed, failure.what()};
    }
}

template <class... Values>
int SqliteAccounts::Run(std::string_view sql, const Values&... values) {
    return SqliteStatement(database_, sql).Bind(values...).Run();
}

Outcome<bool> SqliteAccounts::AddUser(const std::string& name, const std::string& passwordHash) {
    return Write([&]() -> Outcome<bool> {
        return Run("INSERT INTO users (name, password) VALUES (?, ?) ON CONFLICT DO NOTHING", name,
                   passwordHash) == 1;
    });
}

Outcome<std::optional<UserRecord>> SqliteAccounts::FindUser(const std::string& name) {
    return Read([&]() -> Outcome<std::optional<UserRecord>> {
        SqliteStatement find(database_, "SELECT name, password, disabled FROM users WHERE name = ?");
        if (!find.Bind(name).Step()) {
            return std::optional<UserRecord>();
        }
        return std::optional<UserRecord>(ReadUser(find));
    });
}

Outcome<std::vector<UserRecord>> SqliteAccounts::ListUsers() {
    return Read([&]() -> Outcome<std::vector<UserRecord>> {
        SqliteStatement all(database_, "SELECT name, password, disabled FROM users ORDER BY name");
        std::vector<UserRecord> users;
        while (all.Step()) {
            users.push_back(ReadUser(all));
        }
        return users;
    });
}

Outcome<bool> SqliteAccounts::SetPassword(const std::string& name, const std::string& passwordHash) {
    return Write([&]() -> Outcome<bool> {
        Run("DELETE FROM sessions WHERE name = ?", name);
        return Run("UPDATE users SET password = ? WHERE name = ?", passwordHash, name) == 1;
    });
}

Outcome<bool> SqliteAccounts::RenewHash(const std::string& name, const std::string& before,
                                        const std::string& after) {
    return Write([&]() -> Outcome<bool> {
        return Run("UPDATE users SET password = ? WHERE name = ? AND password = ?", after, name, before) == 1;
    });
}

Outcome<bool> SqliteAccounts::SetDisabled(const std::string& name, bool disabled) {
    return Write([&]() -> Outcome<bool> {
        if (disabled) {
            Run("DELETE FROM sessions WHERE name = ?", name);
        }
        return Run("UPDATE users SET disabled = ? WHERE name = ?", disabled ? 1 : 0, name) == 1;
    });
}

Outcome<bool> SqliteAccounts::AddSession(const SessionRecord& session, const std::string& passwordHash,
                                         std::int64_t now) {
    return Write([&]() -> Outcome<bool> {
        Run("DELETE FROM sessions WHERE expires <= ?", now);
        return Run("INSERT INTO sessions (token, name, expires) "
                   "SELECT ?, name, ? FROM users WHERE name = ? AND password = ? AND disabled = 0",
                   session.tokenHash, session.expires, session.user, passwordHash) == 1;
    });
}

Outcome<std::optional<std::string>> SqliteAccounts::FindSession(const std::string& tokenHash,
                                                                std::int64_t now) {
    return Read([&]() -> Outcome<std::optional<std::string>> {
        SqliteStatement find(database_, "SELECT name FROM sessions WHERE token = ? AND expires > ?");
        if (!find.Bind(tokenHash, now).Step()) {
            return std::optional<std::string>();
        }
        return std::optional<std::string>(find.Text(0));
    });
}

Status SqliteAccounts::RemoveSession(const std::string& tokenHash) {
    return Write([&]() -> Status {
        Run("DELETE FROM sessions WHERE token = ?", tokenHash);
        return Done{};
    });
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/storage/postgres/PostgresStorage.h"
#include "host/server/storage/sql/SqlSession.h"

namespace Tarvik::Server {

/// Users and sessions in a data base that speaks SQL.
class SqlAccounts : public AccountStorage {
  public:
    /// The tables of the session's data base are of the present version.
    explicit SqlAccounts(std::unique_ptr<SqlSession> session) : session_(std::move(session)) {}

    void GiveUp() override { session_->GiveUp(); }
    Outcome<bool> AddUser(const std::string& name, const std::string& passwordHash) override;
    Outcome<std::optional<UserRecord>> FindUser(const std::string& name) override;
    Outcome<std::vector<UserRecord>> ListUsers() override;
    Outcome<bool> SetPassword(const std::string& name, const std::string& passwordHash) override;
    Outcome<bool> RenewHash(const std::string& name, const std::string& before,
                            const std::string& after) override;
    Outcome<bool> SetDisabled(const std::string& name, bool disabled) override;
    Outcome<bool> AddSession(const SessionRecord& session, const std::string& passwordHash,
                             std::int64_t now) override;
    Outcome<std::optional<std::string>> FindSession(const std::string& tokenHash, std::int64_t now) override;
    Status RemoveSession(const std::string& tokenHash) override;

  private:
    std::unique_ptr<SqlSession> session_;
};

/// Accounts in an SQLite file of their own: logins never wait for the one writer of the voyages, and a copy
/// of the voyages holds no password hash. Makes the file, readable by its owner only, when there is none.
/// Null, with an English text in `error`, when it cannot be used.
std::unique_ptr<AccountStorage> OpenSqliteAccounts(const std::string& path, std::string& error);

/// Accounts in the PostgreSQL data base of the voyages, shared by all processes that use it. They have
/// connections of their own, so that a login never waits for voyages being saved. Null, with an English text
/// without passwords in `error`, when the data base cannot be used.
std::unique_ptr<AccountStorage> OpenPostgresAccounts(const std::string& connectionText, std::string& error,
                                                     const PostgresOptions& options = {});

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/storage/postgres/PostgresSession.h"

namespace Tarvik::Server {

/// Users and sessions in the PostgreSQL data base of the voyages, shared by all processes that use it. Has
/// connections of its own, so that a login never waits for voyages being saved.
class PostgresAccounts : public AccountStorage {
  public:
    /// Connects and brings an empty or older data base to the present version. Null, with an English text
    /// without passwords in `error`, when it cannot be used.
    static std::unique_ptr<PostgresAccounts> Open(const std::string& connectionText, std::string& error,
                                                  const PostgresOptions& options = {});

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
    PostgresAccounts(const std::string& connectionText, const PostgresOptions& options)
        : session_(connectionText, options) {}

    PostgresSession session_;
};

}  // namespace Tarvik::Server

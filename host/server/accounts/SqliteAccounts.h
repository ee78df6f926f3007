// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <mutex>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

/// Users and sessions in an SQLite file of their own: logins never wait for the one writer of the voyages,
/// and a copy of the voyages holds no password hash. Other processes may have the file open too.
class SqliteAccounts : public AccountStorage {
  public:
    /// Opens the file, making it (readable by its owner only) when there is none. Null, with an English text
    /// in `error`, when that fails.
    static std::unique_ptr<SqliteAccounts> Open(const std::string& path, std::string& error);

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
    explicit SqliteAccounts(const std::string& path);
    template <class Work>
    auto Write(Work&& work) -> decltype(work());
    template <class Work>
    auto Read(Work&& work) -> decltype(work());
    template <class... Values>
    int Run(std::string_view sql, const Values&... values);

    std::mutex mutex_;
    SqliteDatabase database_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"
#include "host/server/transfer/Exporter.h"
#include "host/server/transfer/Importer.h"

namespace Tarvik::Server {

/// Accounts in memory.
class MemoryAccounts : public AccountStorage {
  public:
    std::map<std::string, UserRecord> users;
    std::string fault;  ///< not empty: every operation fails with it

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
};

/// A server's data: voyages and accounts.
struct Place {
    Place();
    /// Everything that the user has, as the lines of an export.
    std::string Everything(const std::string& user);

    std::unique_ptr<SqliteStorage> storage;
    MemoryAccounts accounts;
};

/// A place that users come from and one that they go to.
class TransferTest : public ::testing::Test {
  protected:
    bool Export(Place& place, const ExportChoice& choice, const std::string& name = "users");
    bool Import(Place& place, const ImportChoice& choice = {}, const std::string& name = "users");
    std::string Path(const std::string& name = "users") const { return folder.File(name); }
    std::string Bytes(const std::string& name = "users") const;
    void WriteBytes(const std::string& bytes, const std::string& name = "users") const;
    /// Lines of a file that is made by hand.
    static std::string Head() { return "{\"format\":\"seaplan-users\",\"version\":1,\"made\":\"\"}\n"; }
    static std::string User() { return "{\"user\":\"ann\",\"password\":\"x\",\"disabled\":false}\n"; }
    static std::string Category(const std::string& id = "1000001") {
        return "{\"category\":\"" + id + "\",\"name\":\"A\",\"state\":0}\n";
    }
    /// The lines with an end that fits them.
    static std::string Ended(const std::string& lines);

    TempFolder folder;
    Place from;
    Place to;
    std::string done;
    std::string error;
};

}  // namespace Tarvik::Server

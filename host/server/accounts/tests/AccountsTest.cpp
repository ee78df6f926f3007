// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <gtest/gtest.h>

#include "host/server/accounts/SqlAccounts.h"
#include "host/server/accounts/tests/AccountsContract.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

class SqliteAccountsTest : public testing::Test {
  protected:
    std::unique_ptr<AccountStorage> Open() {
        auto accounts = OpenSqliteAccounts(path_, error_);
        EXPECT_NE(accounts, nullptr) << error_;
        return accounts;
    }

    TempFolder folder_;
    std::string path_ = folder_.File("accounts.db");
    std::string error_;
};

class SqliteBackend : public AccountsBackend {
  public:
    std::unique_ptr<AccountStorage> Open() override {
        std::string error;
        auto accounts = OpenSqliteAccounts(folder_.File("accounts.db"), error);
        if (accounts == nullptr) {
            throw std::runtime_error(error);
        }
        return accounts;
    }

  private:
    TempFolder folder_;
};

std::unique_ptr<AccountsBackend> MakeSqlite() {
    return std::make_unique<SqliteBackend>();
}

INSTANTIATE_TEST_SUITE_P(Sqlite, AccountsContract, testing::Values(&MakeSqlite));

TEST_F(SqliteAccountsTest, FileIsForItsOwnerOnly) {
    Open();
    const auto rights = std::filesystem::status(path_).permissions();
    EXPECT_EQ(rights & (std::filesystem::perms::group_all | std::filesystem::perms::others_all),
              std::filesystem::perms::none);
}

TEST_F(SqliteAccountsTest, FilesOfAnotherKindAreRefusedAndLeftAlone) {
    ASSERT_NE(SqliteStorage::Open(path_, error_), nullptr) << error_;
    EXPECT_EQ(OpenSqliteAccounts(path_, error_), nullptr);
    EXPECT_EQ(error_, "the file is a data base of another kind");
    EXPECT_NE(SqliteStorage::Open(path_, error_), nullptr) << error_;
    const std::string text = folder_.File("text");
    std::ofstream(text) << std::string(5000, 'x');
    EXPECT_EQ(OpenSqliteAccounts(text, error_), nullptr);
    EXPECT_EQ(std::filesystem::file_size(text), 5000U);
}

TEST_F(SqliteAccountsTest, FileOfANewerProgramIsRefused) {
    Open();
    SqliteDatabase(path_).Execute("PRAGMA user_version=99");
    EXPECT_EQ(OpenSqliteAccounts(path_, error_), nullptr);
    EXPECT_EQ(error_,
              "the data base has version 99, made by a newer program; this one reads versions up to 1");
}

}  // namespace
}  // namespace Tarvik::Server

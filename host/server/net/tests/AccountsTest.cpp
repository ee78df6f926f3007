// SPDX-License-Identifier: MIT
#include "host/server/net/users/SqliteAccounts.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace Tarvik::Server {
namespace {

class AccountsTest : public testing::Test {
  protected:
    std::unique_ptr<SqliteAccounts> Open() {
        auto accounts = SqliteAccounts::Open(path_, error_);
        EXPECT_NE(accounts, nullptr) << error_;
        return accounts;
    }
    static std::string UserOf(SqliteAccounts& accounts, const std::string& hash, std::int64_t now) {
        return accounts.FindSession(hash, now).Value().value_or("nobody");
    }

    TempFolder folder_;
    std::string path_ = folder_.File("accounts.db");
    std::string error_;
};

TEST_F(AccountsTest, UsersLastAndComeInOrder) {
    {
        auto accounts = Open();
        EXPECT_TRUE(accounts->AddUser("bert", "h1").Value());
        EXPECT_TRUE(accounts->AddUser("anna", "h2").Value());
        EXPECT_FALSE(accounts->AddUser("anna", "h3").Value());
    }
    const auto users = Open()->ListUsers();
    ASSERT_EQ(users.Value().size(), 2U);
    EXPECT_EQ(users.Value()[0].name, "anna");
    EXPECT_EQ(users.Value()[0].passwordHash, "h2");
    EXPECT_FALSE(users.Value()[0].disabled);
    EXPECT_EQ(users.Value()[1].name, "bert");
}

TEST_F(AccountsTest, ChangesOfUnknownUsersAreTold) {
    auto accounts = Open();
    EXPECT_FALSE(accounts->FindUser("anna").Value());
    EXPECT_FALSE(accounts->SetPassword("anna", "h").Value());
    EXPECT_FALSE(accounts->SetDisabled("anna", true).Value());
    EXPECT_FALSE(accounts->RenewHash("anna", "h", "i").Value());
}

TEST_F(AccountsTest, SessionIsFoundUntilItsEndByEveryProcess) {
    auto accounts = Open();
    auto other = Open();
    accounts->AddUser("anna", "h").Value();
    EXPECT_TRUE(accounts->AddSession({"t1", "anna", 100}, "h", 50).Value());
    EXPECT_EQ(UserOf(*other, "t1", 99), "anna");
    EXPECT_EQ(UserOf(*other, "t1", 100), "nobody");
    EXPECT_EQ(UserOf(*other, "t2", 99), "nobody");
    EXPECT_TRUE(other->RemoveSession("t1"));
    EXPECT_EQ(UserOf(*accounts, "t1", 99), "nobody");
}

TEST_F(AccountsTest, NewSessionRemovesThoseThatAreOver) {
    auto accounts = Open();
    accounts->AddUser("anna", "h").Value();
    accounts->AddSession({"t1", "anna", 100}, "h", 50).Value();
    accounts->AddSession({"t2", "anna", 200}, "h", 100).Value();
    EXPECT_EQ(UserOf(*accounts, "t1", 0), "nobody");
    EXPECT_EQ(UserOf(*accounts, "t2", 0), "anna");
}

TEST_F(AccountsTest, SessionNeedsThePasswordThatWasProvenAndAUserWhoMayLogIn) {
    auto accounts = Open();
    accounts->AddUser("anna", "h").Value();
    EXPECT_FALSE(accounts->AddSession({"t1", "anna", 100}, "an older hash", 50).Value());
    EXPECT_FALSE(accounts->AddSession({"t1", "bert", 100}, "h", 50).Value());
    accounts->SetDisabled("anna", true).Value();
    EXPECT_FALSE(accounts->AddSession({"t1", "anna", 100}, "h", 50).Value());
    accounts->SetDisabled("anna", false).Value();
    EXPECT_TRUE(accounts->AddSession({"t1", "anna", 100}, "h", 50).Value());
}

TEST_F(AccountsTest, PasswordAndDisablingEndOnlyThisUsersSessions) {
    auto accounts = Open();
    for (const char* name : {"anna", "bert", "carl"}) {
        accounts->AddUser(name, "h").Value();
        accounts->AddSession({std::string("t-") + name, name, 100}, "h", 50).Value();
    }
    accounts->SetPassword("anna", "i").Value();
    accounts->SetDisabled("bert", true).Value();
    EXPECT_EQ(UserOf(*accounts, "t-anna", 50), "nobody");
    EXPECT_EQ(UserOf(*accounts, "t-bert", 50), "nobody");
    EXPECT_EQ(UserOf(*accounts, "t-carl", 50), "carl");
}

TEST_F(AccountsTest, RenewedHashReplacesOnlyTheOneThatWasRead) {
    auto accounts = Open();
    accounts->AddUser("anna", "h").Value();
    EXPECT_FALSE(accounts->RenewHash("anna", "an older hash", "i").Value());
    EXPECT_TRUE(accounts->RenewHash("anna", "h", "i").Value());
    EXPECT_EQ(accounts->FindUser("anna").Value()->passwordHash, "i");
}

TEST_F(AccountsTest, FileIsForItsOwnerOnly) {
    Open();
    const auto rights = std::filesystem::status(path_).permissions();
    EXPECT_EQ(rights & (std::filesystem::perms::group_all | std::filesystem::perms::others_all),
              std::filesystem::perms::none);
}

TEST_F(AccountsTest, FilesOfAnotherKindAreRefusedAndLeftAlone) {
    ASSERT_NE(SqliteStorage::Open(path_, error_), nullptr) << error_;
    EXPECT_EQ(SqliteAccounts::Open(path_, error_), nullptr);
    EXPECT_EQ(error_, "the file is a data base of another kind");
    EXPECT_NE(SqliteStorage::Open(path_, error_), nullptr) << error_;
    const std::string text = folder_.File("text");
    std::ofstream(text) << std::string(5000, 'x');
    EXPECT_EQ(SqliteAccounts::Open(text, error_), nullptr);
    EXPECT_EQ(std::filesystem::file_size(text), 5000U);
}

TEST_F(AccountsTest, FileOfANewerProgramIsRefused) {
    Open();
    SqliteDatabase(path_).Execute("PRAGMA user_version=99");
    EXPECT_EQ(SqliteAccounts::Open(path_, error_), nullptr);
    EXPECT_EQ(error_,
              "the data base has version 99, made by a newer program; this one reads versions up to 1");
}

}  // namespace
}  // namespace Tarvik::Server

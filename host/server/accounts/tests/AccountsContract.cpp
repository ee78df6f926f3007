// SPDX-License-Identifier: MIT
#include "host/server/accounts/tests/AccountsContract.h"

namespace Tarvik::Server {

namespace {

TEST_P(AccountsContract, UsersLastAndComeInOrder) {
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

TEST_P(AccountsContract, ChangesOfUnknownUsersAreTold) {
    auto accounts = Open();
    EXPECT_FALSE(accounts->FindUser("anna").Value());
    EXPECT_FALSE(accounts->SetPassword("anna", "h").Value());
    EXPECT_FALSE(accounts->SetDisabled("anna", true).Value());
    EXPECT_FALSE(accounts->RenewHash("anna", "h", "i").Value());
}

TEST_P(AccountsContract, SessionIsFoundUntilItsEndByEveryProcess) {
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

TEST_P(AccountsContract, NewSessionRemovesThoseThatAreOver) {
    auto accounts = Open();
    accounts->AddUser("anna", "h").Value();
    accounts->AddSession({"t1", "anna", 100}, "h", 50).Value();
    accounts->AddSession({"t2", "anna", 200}, "h", 100).Value();
    EXPECT_EQ(UserOf(*accounts, "t1", 0), "nobody");
    EXPECT_EQ(UserOf(*accounts, "t2", 0), "anna");
}

TEST_P(AccountsContract, SessionNeedsThePasswordThatWasProvenAndAUserWhoMayLogIn) {
    auto accounts = Open();
    accounts->AddUser("anna", "h").Value();
    EXPECT_FALSE(accounts->AddSession({"t1", "anna", 100}, "an older hash", 50).Value());
    EXPECT_FALSE(accounts->AddSession({"t1", "bert", 100}, "h", 50).Value());
    accounts->SetDisabled("anna", true).Value();
    EXPECT_FALSE(accounts->AddSession({"t1", "anna", 100}, "h", 50).Value());
    accounts->SetDisabled("anna", false).Value();
    EXPECT_TRUE(accounts->AddSession({"t1", "anna", 100}, "h", 50).Value());
}

TEST_P(AccountsContract, PasswordAndDisablingEndOnlyThisUsersSessions) {
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

TEST_P(AccountsContract, NamesAreComparedByTheirBytes) {
    auto accounts = Open();
    for (const char* name : {"b", "B", "a-1", "a1", "_a", "9"}) {
        EXPECT_TRUE(accounts->AddUser(name, "h").Value()) << name;
    }
    const auto users = accounts->ListUsers();
    std::string order;
    for (const UserRecord& user : users.Value()) {
        order += user.name + " ";
    }
    EXPECT_EQ(order, "9 B _a a-1 a1 b ");
    EXPECT_FALSE(accounts->FindUser("A1").Value());
    EXPECT_FALSE(accounts->FindUser(std::string("b\0", 2)).Value());
}

TEST_P(AccountsContract, RenewedHashReplacesOnlyTheOneThatWasRead) {
    auto accounts = Open();
    accounts->AddUser("anna", "h").Value();
    EXPECT_FALSE(accounts->RenewHash("anna", "an older hash", "i").Value());
    EXPECT_TRUE(accounts->RenewHash("anna", "h", "i").Value());
    EXPECT_EQ(accounts->FindUser("anna").Value()->passwordHash, "i");
}

}  // namespace
}  // namespace Tarvik::Server

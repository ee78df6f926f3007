// SPDX-License-Identifier: MIT
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "host/server/accounts/SqlAccounts.h"
#include "host/server/net/service/VoyageServer.h"
#include "host/server/net/settings/Settings.h"
#include "host/server/program/Program.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

using Words = std::vector<std::string>;

/// The program with a data folder of its own and passwords from a text.
class ProgramTest : public testing::Test {
  protected:
    int Run(const Words& words, const std::string& input = {}) {
        std::istringstream in(input);
        out_.str({});
        err_.str({});
        const auto source = [&in](std::string& password) { return ReadPasswordLine(in, password); };
        return RunProgram(words, {environment_, source, out_, err_});
    }
    std::string Out() const { return out_.str(); }
    std::string Err() const { return err_.str(); }
    std::unique_ptr<AccountStorage> Accounts() const {
        std::string error;
        return OpenSqliteAccounts(folder_.File("data/accounts.db"), error);
    }

    TempFolder folder_;
    Environment environment_ = {{"SEAPLAN_SERVER_DATA", folder_.File("data")}};
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(ProgramTest, HelpTellsEveryCommandAndSetting) {
    EXPECT_EQ(Run({"--help"}), 0);
    for (const char* word : {"serve", "user add NAME", "user password NAME", "user disable NAME",
                             "user enable NAME", "user list", "--settings FILE", "--version"}) {
        EXPECT_NE(Out().find(word), std::string::npos) << word;
    }
    for (const SettingsEntry& entry : SettingsTable()) {
        EXPECT_NE(Out().find("  " + std::string(entry.key) + " = "), std::string::npos) << entry.key;
    }
}

TEST_F(ProgramTest, VersionIsOneLine) {
    EXPECT_EQ(Run({"--version"}), 0);
    EXPECT_EQ(Out(), "seaplan-server " SEAPLAN_SERVER_VERSION "\n");
}

TEST_F(ProgramTest, WrongWordsGetOneLineAndCode2) {
    for (const Words& words :
         {Words{}, Words{"sreve"}, Words{"serve", "now"}, Words{"user"}, Words{"user", "add"},
          Words{"user", "list", "all"}, Words{"user", "remove", "anna"}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_EQ(Err(), "seaplan-server: there is no such command; seaplan-server --help tells all\n");
    }
    EXPECT_EQ(Run({"serve", "--settings"}), 2);
    EXPECT_EQ(Err(), "seaplan-server: --settings needs the name of a file\n");
}

TEST_F(ProgramTest, WrongSettingsGetOneLineAndCode2) {
    const std::string file = folder_.File("server.conf");
    std::ofstream(file) << "prot = 1\n";
    for (const Words& words : {Words{"--settings", file, "serve"}, Words{"serve", "--settings=" + file}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_EQ(Err(), "seaplan-server: " + file + ":1: there is no setting \"prot\"\n");
    }
    environment_["SEAPLAN_SERVER_ADDRESS"] = "0.0.0.0";
    EXPECT_EQ(Run({"serve"}), 2);
    EXPECT_NE(Err().find("passwords would cross the network in the clear"), std::string::npos);
}

TEST_F(ProgramTest, ServeThatCannotBeginGetsOneLineAndCode1) {
    environment_["SEAPLAN_SERVER_NETWORK"] = folder_.File("none.bin");
    EXPECT_EQ(Run({"serve"}), 1);
    EXPECT_TRUE(Err().starts_with("seaplan-server: ")) << Err();
    environment_.erase("SEAPLAN_SERVER_NETWORK");
    environment_["SEAPLAN_SERVER_TLS_CERTIFICATE"] = folder_.File("none.pem");
    environment_["SEAPLAN_SERVER_TLS_KEY"] = folder_.File("none.pem");
    EXPECT_EQ(Run({"serve"}), 1);
    EXPECT_NE(Err().find("the certificate " + folder_.File("none.pem") + " cannot be used"),
              std::string::npos);
    std::ofstream(folder_.File("data/voyages.db"))
        << "this is no data base, but long enough to be seen as one";
    EXPECT_EQ(Run({"serve"}), 1);
    EXPECT_NE(Err().find("the voyages " + folder_.File("data/voyages.db") + " cannot be used"),
              std::string::npos);
}

TEST_F(ProgramTest, AddedUserHasTheFirstLineAsPassword) {
    EXPECT_EQ(Run({"user", "add", "anna"}, "correct horse\nmore\n"), 0);
    EXPECT_EQ(Out(), "added anna\n");
    const auto user = Accounts()->FindUser("anna").Value();
    ASSERT_TRUE(user);
    const Passwords passwords;
    EXPECT_TRUE(user->passwordHash.starts_with("$argon2id$"));
    EXPECT_TRUE(passwords.Matches(user->passwordHash, "correct horse"));
    EXPECT_FALSE(passwords.Matches(user->passwordHash, "correct horse\nmore"));
}

TEST_F(ProgramTest, UserIsAddedOnce) {
    EXPECT_EQ(Run({"user", "add", "anna"}, "correct horse\n"), 0);
    EXPECT_EQ(Run({"user", "add", "anna"}, "another horse\n"), 1);
    EXPECT_EQ(Err(), "seaplan-server: there is a user anna already\n");
    EXPECT_TRUE(Passwords().Matches(Accounts()->FindUser("anna").Value()->passwordHash, "correct horse"));
}

TEST_F(ProgramTest, NamesAndPasswordsOfAnotherFormAreRefused) {
    EXPECT_EQ(Run({"user", "add", "anna maria"}, "correct horse\n"), 1);
    EXPECT_EQ(Run({"user", "add", std::string(65, 'a')}, "correct horse\n"), 1);
    EXPECT_EQ(Run({"user", "add", "anna"}, "short\n"), 1);
    EXPECT_EQ(Err(), "seaplan-server: a password has 8 to 1024 bytes\n");
    EXPECT_EQ(Run({"user", "add", "anna"}, ""), 1);
    EXPECT_EQ(Err(), "seaplan-server: the password is read from standard input, and there is none\n");
    EXPECT_EQ(Run({"user", "list"}), 0);
    EXPECT_EQ(Out(), "");
}

TEST_F(ProgramTest, PasswordIsChanged) {
    EXPECT_EQ(Run({"user", "password", "anna"}, "another horse\n"), 1);
    EXPECT_EQ(Err(), "seaplan-server: there is no user anna\n");
    ASSERT_EQ(Run({"user", "add", "anna"}, "correct horse\n"), 0);
    EXPECT_EQ(Run({"user", "password", "anna"}, "another horse\r\n"), 0);
    EXPECT_EQ(Out(), "changed the password of anna\n");
    EXPECT_TRUE(Passwords().Matches(Accounts()->FindUser("anna").Value()->passwordHash, "another horse"));
}

TEST_F(ProgramTest, UsersAreDisabledEnabledAndListed) {
    ASSERT_EQ(Run({"user", "add", "bert"}, "correct horse\n"), 0);
    ASSERT_EQ(Run({"user", "add", "anna"}, "correct horse\n"), 0);
    EXPECT_EQ(Run({"user", "disable", "bert"}), 0);
    EXPECT_EQ(Out(), "disabled bert\n");
    EXPECT_EQ(Run({"user", "list"}), 0);
    EXPECT_EQ(Out(), "anna enabled\nbert disabled\n");
    EXPECT_EQ(Run({"user", "enable", "bert"}), 0);
    EXPECT_EQ(Run({"user", "list"}), 0);
    EXPECT_EQ(Out(), "anna enabled\nbert enabled\n");
    EXPECT_EQ(Run({"user", "enable", "carl"}), 1);
    EXPECT_EQ(Err(), "seaplan-server: there is no user carl\n");
}

}  // namespace
}  // namespace Tarvik::Server

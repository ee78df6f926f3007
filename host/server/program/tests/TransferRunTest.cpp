// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "host/server/accounts/SqlAccounts.h"
#include "host/server/program/Program.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

using Words = std::vector<std::string>;

/// The program with a server's data folder and a client's.
class TransferRunTest : public testing::Test {
  protected:
    TransferRunTest() { std::filesystem::create_directory(client_); }
    int Run(const Words& words) {
        out_.str({});
        err_.str({});
        const auto source = [](std::string& password) {
            password = "correct horse";
            return true;
        };
        return RunProgram(words, {environment_, source, out_, err_});
    }
    static void MakeVoyage(const std::string& folder, const std::string& user) {
        std::string error;
        const auto storage = SqliteStorage::Open(folder + "/voyages.db", error);
        ASSERT_NE(storage, nullptr) << error;
        VoyageRecord voyage;
        voyage.name = "V";
        const std::string category = storage->Catalog().CreateCategory(user, "2026").Value();
        ASSERT_TRUE(storage->Catalog().CreateVoyage(user, category, voyage).Succeeded());
    }
    static std::size_t Categories(const std::string& folder, const std::string& user) {
        std::string error;
        return SqliteStorage::Open(folder + "/voyages.db", error)->Catalog().LoadCatalog(user).Value().size();
    }

    TempFolder folder_;
    std::string server_ = folder_.File("server");
    std::string client_ = folder_.File("client");
    std::string file_ = folder_.File("users");
    Environment environment_ = {{"SEAPLAN_SERVER_DATA", server_}};
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(TransferRunTest, UserOfAClientMovesToAServer) {
    MakeVoyage(client_, "local");
    EXPECT_EQ(Run({"export", "--data", client_, file_}), 0) << err_.str();
    EXPECT_EQ(out_.str(), "exported 1 user, 1 category, 1 voyage, 0 remarks\n");
    EXPECT_FALSE(std::filesystem::exists(client_ + "/accounts.db"));
    EXPECT_EQ(Run({"import", "--user", "anna", file_}), 1);
    EXPECT_EQ(err_.str().find("seaplan-server: there is no user anna here: "), 0U);
    ASSERT_EQ(Run({"user", "add", "anna"}), 0) << err_.str();
    EXPECT_EQ(Run({"import", "--user", "anna", file_}), 0) << err_.str();
    EXPECT_EQ(out_.str(), "imported 1 user, 1 category, 1 voyage, 0 remarks\n");
    EXPECT_EQ(Categories(server_, "anna"), 1U);
    EXPECT_EQ(Run({"import", "--user", "anna", file_}), 1);
    EXPECT_EQ(err_.str(),
              "seaplan-server: anna has voyages here already; --add puts those of the file beside them\n");
    EXPECT_EQ(Run({"import", "--user", "anna", "--add", file_}), 0) << err_.str();
    EXPECT_EQ(Categories(server_, "anna"), 2U);
}

TEST_F(TransferRunTest, UserOfAServerMovesToAClient) {
    ASSERT_EQ(Run({"user", "add", "anna"}), 0);
    MakeVoyage(server_, "anna");
    ASSERT_EQ(Run({"export", "--user", "anna", file_}), 0) << err_.str();
    EXPECT_EQ(Run({"import", "--data", client_, file_}), 1);
    EXPECT_EQ(err_.str(), "seaplan-server: there is no data base in " + client_ + "\n");
    MakeVoyage(client_, "local");
    EXPECT_EQ(Run({"import", "--data", client_, "--add", file_}), 0) << err_.str();
    EXPECT_EQ(Categories(client_, "local"), 2U);
}

TEST_F(TransferRunTest, WholeServerIsRestoredWithItsAccounts) {
    ASSERT_EQ(Run({"user", "add", "anna"}), 0);
    ASSERT_EQ(Run({"user", "add", "bert"}), 0);
    ASSERT_EQ(Run({"user", "disable", "bert"}), 0);
    MakeVoyage(server_, "anna");
    ASSERT_EQ(Run({"export", "--all", file_}), 0) << err_.str();
    environment_["SEAPLAN_SERVER_DATA"] = folder_.File("new");
    EXPECT_EQ(Run({"import", file_}), 0) << err_.str();
    EXPECT_EQ(out_.str(), "imported 2 users, 1 category, 1 voyage, 0 remarks\n");
    EXPECT_EQ(Run({"user", "list"}), 0);
    EXPECT_EQ(out_.str(), "anna enabled\nbert disabled\n");
    std::string error;
    const auto before = OpenSqliteAccounts(server_ + "/accounts.db", error)->ListUsers().Value();
    const auto after = OpenSqliteAccounts(folder_.File("new/accounts.db"), error)->ListUsers().Value();
    ASSERT_EQ(after.size(), 2U);
    EXPECT_EQ(after[0].passwordHash, before[0].passwordHash);
    EXPECT_EQ(after[1].passwordHash, before[1].passwordHash);
}

TEST_F(TransferRunTest, WrongFileMakesNoDataBase) {
    std::ofstream(file_) << "{\"format\":\"seaplan-users\",\"version\":1}\n";
    EXPECT_EQ(Run({"import", file_}), 1);
    EXPECT_EQ(err_.str(), "seaplan-server: " + file_ + " is cut short after line 1\n");
    EXPECT_EQ(Run({"export", file_}), 1);
    EXPECT_EQ(err_.str(), "seaplan-server: there is no data base in " + server_ + "\n");
    EXPECT_FALSE(std::filesystem::exists(server_));
}

TEST_F(TransferRunTest, WrongWordsGetCode2) {
    for (const Words& words :
         {Words{"export"}, Words{"import", "--all", file_}, Words{"export", "--add", file_}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_EQ(err_.str(), "seaplan-server: there is no such command; seaplan-server --help tells all\n");
    }
}

TEST_F(TransferRunTest, HelpTellsBothCommands) {
    EXPECT_EQ(Run({"--help"}), 0);
    for (const char* word : {"export [--user NAME | --all] FILE",
                             "import [--user NAME] [--add] [--skip-bad] FILE", "--data FOLDER"}) {
        EXPECT_NE(out_.str().find(word), std::string::npos) << word;
    }
}

}  // namespace
}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include <algorithm>
#include <csignal>
#include <set>
#include <thread>

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/server/program/tests/SharedDatabase.h"
#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

namespace {

using nlohmann::json;

using SharedDatabaseTest = SharedDatabase;

TEST_F(SharedDatabaseTest, SessionsAndUsersAreThoseOfEveryProcess) {
    ServerProcess first(variables_);
    ServerProcess second(variables_);
    EXPECT_EQ(RawClient(second.Port()).Ask("GET", "/health").status, 200);
    const std::string token = Token(first);
    EXPECT_EQ(StatusOf(second, token), 200);
    EXPECT_TRUE(Exchanger(first.Port(), token).Succeeds(4, R"({ci:"",cn:"2026",type:0})"));
    EXPECT_EQ(Exchanger(second.Port(), token).Load(3, R"({ui:"anna"})")[0]["cn"], "2026");
    EXPECT_EQ(RawClient(second.Port()).Ask("POST", "/v1/logout", {}, token).status, 200);
    EXPECT_TRUE(ComesToRefuse(first, token));
    const std::string other = Token(second);
    EXPECT_EQ(RunServerProgram({"user", "disable", "anna"}, variables_).output, "disabled anna\n");
    EXPECT_TRUE(ComesToRefuse(first, other));
    EXPECT_EQ(RunServerProgram({"user", "list"}, variables_).output, "anna disabled\n");
    EXPECT_EQ(first.End(SIGTERM), 0);
    EXPECT_EQ(second.End(SIGTERM), 0);
}

TEST_F(SharedDatabaseTest, PasswordOfTheDataBaseIsNeverWritten) {
    ServerProcess server(variables_);
    Token(server);
    EXPECT_EQ(server.End(SIGTERM), 0);
    EXPECT_NE(server.Log().find("\"data\":\"postgresql host="), std::string::npos) << server.Log();
    EXPECT_EQ(server.Log().find(kSecret), std::string::npos) << server.Log();
    for (const std::string& text :
         {std::string("host=/none password=") + kSecret, std::string("postgresql://u:p@") + kSecret + "@db/x",
          std::string("nonsense ") + kSecret}) {
        const ProgramEnd end = RunServerProgram({"serve"}, {"SEAPLAN_SERVER_DATABASE=" + text});
        EXPECT_GT(end.code, 0);
        EXPECT_TRUE(end.output.starts_with("seaplan-server: ") && end.output.ends_with("\n")) << end.output;
        EXPECT_EQ(end.output.find(kSecret), std::string::npos) << end.output;
    }
}

TEST_F(SharedDatabaseTest, ServerOfARoleThatMayOnlyReadDoesNotStart) {
    {
        PostgresConnection owner(connection_);
        owner.Begin(PostgresConnection::Mode::Write);
        owner.Execute(
            "CREATE ROLE looker LOGIN; GRANT SELECT ON ALL TABLES IN SCHEMA public TO looker; "
            "GRANT USAGE ON SCHEMA public TO looker");
        owner.Commit();
    }
    constexpr std::string_view kOwner = "user=seaplan";
    std::string looker = connection_;
    looker.replace(looker.find(kOwner), kOwner.size(), "user=looker");
    std::vector<std::string> variables = variables_;
    variables[0] = "SEAPLAN_SERVER_DATABASE=" + looker;
    const ProgramEnd end = RunServerProgram({"serve"}, variables);
    EXPECT_EQ(end.code, 1);
    EXPECT_TRUE(end.output.starts_with("seaplan-server: ")) << end.output;
    EXPECT_NE(end.output.find("takes no changes"), std::string::npos) << end.output;
    EXPECT_EQ(std::count(end.output.begin(), end.output.end(), '\n'), 1) << end.output;
}

/// One save of client `number`: number + 1 rows that all bear its number, and additions of its own.
void Save(Exchanger& client, int number, int round) {
    std::string calls = R"(["1000002")";
    std::string rows = R"(["1000003","0")";
    for (int i = 0; i <= number; ++i) {
        calls += fmt::format(R"(,"{}|1|{}|L|1.000|0.000|0.0")", i, number);
        rows += fmt::format(R"(,"{}|{}|1|2|GC|5|1.000|0")", i, number);
    }
    EXPECT_TRUE(client.Succeeds(11, calls + "]"));
    EXPECT_TRUE(client.Succeeds(9, rows + "]"));
    EXPECT_TRUE(client.Succeeds(
        13, fmt::format(R"({{vi:"1000002",time:"2026-03-01 00:{:02}:{:02}"}})", number, round)));
    EXPECT_TRUE(client.Succeeds(4, fmt::format(R"({{ci:"",cn:"{}-{}",type:0}})", number, round)));
}

/// The rows are all those of one save.
void ExpectWhole(const json& rows, const char* nameKey) {
    ASSERT_FALSE(rows.empty());
    for (const json& row : rows) {
        EXPECT_EQ(row[nameKey], std::to_string(rows.size() - 1));
    }
}

TEST_F(SharedDatabaseTest, EightClientsOfTwoProcessesLoseNothing) {
    constexpr int kRounds = 15;
    ServerProcess first(variables_);
    ServerProcess second(variables_);
    const std::string token = Token(first);
    Exchanger start(first.Port(), token);
    ASSERT_TRUE(start.Succeeds(4, R"({ci:"",cn:"A",type:0})"));
    ASSERT_TRUE(start.Succeeds(5, R"({ci:"1000001",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})"));
    ASSERT_TRUE(start.Succeeds(8, R"({vi:"1000002",dt:"2026-03-01 00:00:00"})"));
    std::vector<std::thread> clients;
    clients.reserve(8);
    for (int number = 0; number < 8; ++number) {
        clients.emplace_back([&, number] {
            Exchanger client(number % 2 == 0 ? first.Port() : second.Port(), token);
            for (int round = 0; round < kRounds; ++round) {
                Save(client, number, round);
                ExpectWhole(client.Load(10, R"({vi:"1000002"})"), "ppn");
                ExpectWhole(client.Load(7, R"({vi:"1000002"})")[0]["pb"], "psn");
            }
        });
    }
    for (std::thread& client : clients) {
        client.join();
    }
    EXPECT_EQ(start.Load(12, R"({vi:"1000002"})")["times"].size(), 8U * kRounds);
    std::set<std::string> ids;
    for (const json& category : start.Load(3, R"({ui:"anna"})")) {
        ids.insert(category["ci"].get<std::string>());
    }
    EXPECT_EQ(ids.size(), 8U * kRounds + 1);
}

}  // namespace
}  // namespace Tarvik::Server

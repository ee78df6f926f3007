// SPDX-License-Identifier: MIT
// The real program over a data base server that is killed, or hangs, under it.
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <set>
#include <thread>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/server/program/tests/SharedDatabase.h"
#include "host/server/storage/postgres/tests/PostgresProxy.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"

namespace Tarvik::Server {

namespace {

/// What the clients were told of the categories that they made, by name.
struct Told {
    std::set<std::string> stored;
    std::set<std::string> unknown;  ///< the connection broke while the change was confirmed
    int refused = 0;
};

class KilledDatabaseTest : public SharedDatabase {
  protected:
    static constexpr std::size_t kClients = 4;

    /// Makes categories until it is told to stop, whatever the server says.
    void Write(std::uint16_t port, const std::string& token, std::size_t client) {
        Exchanger exchanger(port, token);
        for (int number = 0; !over_; ++number) {
            const std::string name = std::to_string(client) + "-" + std::to_string(number);
            const auto reply = exchanger.Ask(4, R"({ci:"",cn:")" + name + R"(",type:0})");
            if (reply && reply->starts_with(R"({"eid":0,)")) {
                told_[client].stored.insert(name);
                ++confirmed_;
                confirmed_.notify_all();
            } else if (reply && reply->starts_with(R"({"eid":52,)")) {
                told_[client].unknown.insert(name);
            } else {
                ++told_[client].refused;
            }
        }
    }
    /// Returns when so many more changes were confirmed.
    void WaitForConfirmed(int more) {
        const int wanted = confirmed_ + more;
        for (int now = confirmed_; now < wanted; now = confirmed_) {
            confirmed_.wait(now);
        }
    }
    void ExpectWhatWasTold(const ServerProcess& server, const std::string& token) {
        std::set<std::string> stored;
        for (const auto& category : Exchanger(server.Port(), token).Load(3, R"({ui:"anna"})")) {
            const auto name = category["cn"].get<std::string>();
            EXPECT_TRUE(stored.insert(name).second) << name << " is there twice";
        }
        std::set<std::string> possible;
        for (const Told& told : told_) {
            for (const std::string& name : told.stored) {
                EXPECT_TRUE(stored.contains(name)) << name << " was confirmed";
            }
            possible.insert(told.stored.begin(), told.stored.end());
            possible.insert(told.unknown.begin(), told.unknown.end());
        }
        for (const std::string& name : stored) {
            EXPECT_TRUE(possible.contains(name)) << name << " was refused";
        }
    }

    std::array<Told, kClients> told_;
    std::atomic<int> confirmed_ = 0;
    std::atomic<bool> over_ = false;
};

TEST_F(KilledDatabaseTest, ProcessesGoOnAndLoseNothingConfirmed) {
    constexpr int kKills = 3;
    // libpqxx leaves a result behind for each statement whose connection is cut, and nothing else may end a
    // process with another number than 0.
    variables_.emplace_back("ASAN_OPTIONS=detect_leaks=0");
    ServerProcess first(variables_);
    ServerProcess second(variables_);
    const std::string token = Token(first);
    std::vector<std::thread> clients;
    clients.reserve(kClients);
    for (std::size_t client = 0; client < kClients; ++client) {
        const std::uint16_t port = client % 2 == 0 ? first.Port() : second.Port();
        clients.emplace_back([this, port, token, client] { Write(port, token, client); });
    }
    for (int kill = 0; kill < kKills; ++kill) {
        WaitForConfirmed(40);
        PostgresServer::Instance().CrashAndRestart();
    }
    WaitForConfirmed(40);
    over_ = true;
    for (std::thread& client : clients) {
        client.join();
    }
    int refused = 0;
    for (const Told& told : told_) {
        refused += told.refused;
    }
    EXPECT_GT(refused, 0) << "nobody noticed the kills";
    ExpectWhatWasTold(first, token);
    ExpectWhatWasTold(second, token);
    EXPECT_EQ(first.End(SIGTERM), 0) << first.Log();
    EXPECT_EQ(second.End(SIGTERM), 0) << second.Log();
    EXPECT_NE(first.Log().find("\"result\":\"failed\""), std::string::npos) << "the log tells of the outage";
}

TEST_F(KilledDatabaseTest, ProcessWhoseDataBaseHangsEndsInItsTime) {
    const std::string folder = PostgresServer::Instance().SocketFolder();
    PostgresProxy proxy(folder);
    std::string& database = variables_.front();
    database.replace(database.find(folder), folder.size(), proxy.SocketFolder());
    variables_.emplace_back("SEAPLAN_SERVER_STOP_SECONDS=2");
    ServerProcess server(variables_);
    const std::string token = Token(server);
    ASSERT_TRUE(Exchanger(server.Port(), token).Succeeds(4, R"({ci:"",cn:"A",type:0})"));
    proxy.Next(PostgresProxy::Cut::Silent);
    std::thread client([&] {
        const auto reply = Exchanger(server.Port(), token).Ask(4, R"({ci:"",cn:"B",type:0})");
        EXPECT_FALSE(reply && reply->starts_with(R"({"eid":0,)")) << *reply;
    });
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(server.End(SIGTERM), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(4));
    client.join();
}

}  // namespace
}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include <csignal>
#include <future>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/server/program/tests/SharedDatabase.h"
#include "host/server/storage/postgres/PostgresConnection.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

using nlohmann::json;

/// What the writes leave behind.
struct Written {
    std::vector<std::string> categories = {"A"};
    std::vector<std::string> ports;

    bool operator==(const Written&) const = default;
};

/// Write `number` makes a category, or puts other port calls in the place of all.
std::pair<std::uint16_t, std::string> RequestOf(int number) {
    const std::string name = std::to_string(number);
    if (number % 2 == 0) {
        return {4, R"({ci:"",cn:")" + name + R"(",type:0})"};
    }
    std::string calls = R"(["1000002")";
    for (int i = 0; i <= number % 37; ++i) {
        calls += ",\"" + std::to_string(i) + "|1|" + name + "|L|1.000|0.000|0.0\"";
    }
    return {11, calls + "]"};
}

void Apply(Written& data, int number) {
    const std::string name = std::to_string(number);
    if (number % 2 == 0) {
        data.categories.push_back(name);
    } else {
        data.ports.assign(static_cast<std::size_t>(number % 37 + 1), name);
    }
}

Written Load(Exchanger& client) {
    Written data;
    data.categories.clear();
    for (const json& category : client.Load(3, R"({ui:"anna"})")) {
        data.categories.push_back(category["cn"].get<std::string>());
    }
    for (const json& call : client.Load(10, R"({vi:"1000002"})")) {
        data.ports.push_back(call["ppn"].get<std::string>());
    }
    return data;
}

/// Busy for a while that has no clock in it.
void Spin(unsigned turns) {
    volatile unsigned turn = 0;
    while (turn < turns) {
        turn = turn + 1;
    }
}

/// Where the killed server keeps its data.
enum class Kept { Postgres, Files };

class KilledProcessTest : public SharedDatabase, public testing::WithParamInterface<Kept> {
  protected:
    void SetUp() override {
        if (GetParam() == Kept::Files) {
            variables_ = {"SEAPLAN_SERVER_DATA=" + folder_.File("data"), "SEAPLAN_SERVER_NETWORK=none",
                          "SEAPLAN_SERVER_LOGIN_ATTEMPTS_PER_ADDRESS=0"};
        }
        SharedDatabase::SetUp();
        const ServerProcess server(variables_);
        token_ = Token(server);
        Exchanger client(server.Port(), token_);
        ASSERT_TRUE(client.Succeeds(4, R"({ci:"",cn:"A",type:0})"));
        ASSERT_TRUE(client.Succeeds(5, R"({ci:"1000001",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})"));
    }
    /// Kills a server at a random moment behind its `before`-th write. Gives how many it confirmed.
    int WriteAndKill(ServerProcess& server, int from, int before) {
        int confirmed = 0;
        std::promise<void> underWay;
        std::thread writer([&] {
            Exchanger client(server.Port(), token_);
            for (;;) {
                const auto [command, text] = RequestOf(from + confirmed);
                const auto reply = client.Ask(command, text);
                if (!reply) {
                    break;
                }
                EXPECT_TRUE(reply->starts_with("{\"eid\":0")) << *reply;
                if (++confirmed == before) {
                    underWay.set_value();
                }
            }
            if (confirmed < before) {
                underWay.set_value();
            }
        });
        underWay.get_future().wait();
        Spin(static_cast<unsigned>(random_() % 3000000));
        EXPECT_EQ(server.End(SIGKILL), -1);
        writer.join();
        EXPECT_GE(confirmed, before) << "the server failed before it was killed";
        return confirmed;
    }
    /// Returns when no transaction of a killed process is on its way any more: the data base server goes on
    /// with what it was told before.
    void WaitForTransactions() {
        if (GetParam() == Kept::Files) {
            return;
        }
        PostgresConnection connection(connection_);
        connection.Begin(PostgresConnection::Mode::Write);
        connection.Execute("LOCK TABLE categories, port_calls IN ACCESS EXCLUSIVE MODE");
        connection.Commit();
    }

    const TempFolder folder_;
    std::string token_;
    std::mt19937 random_{20260301};
};

TEST_P(KilledProcessTest, EveryConfirmedChangeIsThereAndNoHalfOne) {
    Written expected;
    int number = 0;
    for (int round = 0; round < 16; ++round) {
        ServerProcess server(variables_);
        const int confirmed = WriteAndKill(server, number, 14 + static_cast<int>(random_() % 10));
        for (int i = 0; i < confirmed; ++i) {
            Apply(expected, number++);
        }
        WaitForTransactions();
        const ServerProcess next(variables_);
        Exchanger client(next.Port(), token_);
        const Written stored = Load(client);
        // The client had asked for one more, which the server may have done before it died.
        if (stored != expected) {
            Apply(expected, number++);
        }
        ASSERT_EQ(stored.categories, expected.categories) << "round " << round;
        ASSERT_EQ(stored.ports, expected.ports) << "round " << round;
    }
    EXPECT_GE(number, 200);
}

INSTANTIATE_TEST_SUITE_P(Storages, KilledProcessTest, testing::Values(Kept::Postgres, Kept::Files),
                         [](const auto& storage) {
                             return storage.param == Kept::Postgres ? "Postgres" : "Files";
                         });

}  // namespace
}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
// Who waits for what: a long search, a lock or a hash keeps no thread from those who wait for something else.
#include <chrono>
#include <future>
#include <thread>

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <gtest/gtest.h>

#include "host/server/net/http/FairLine.h"
#include "host/server/net/http/HttpRules.h"
#include "host/server/net/tests/BlockingRoutes.h"
#include "host/server/net/tests/TestServer.h"
#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

namespace {

namespace net = boost::asio;

/// Enters the line under the key, says so, and leaves when all others have come.
net::awaitable<void> PassThrough(FairLine& line, std::string key, std::string& said) {
    if (!co_await line.Enter(key)) {
        said += "full ";
        co_return;
    }
    said += key + " ";
    // By name: with a wait within a wait and one in a condition the compiler mixes the frame's places up.
    const auto executor = co_await net::this_coro::executor;
    co_await net::post(executor, net::use_awaitable);
    line.Leave();
}

TEST(FairLine, KeysTakeTurnsAndEachKeyKeepsItsOrder) {
    net::io_context io;
    FairLine line(1, 10);
    std::string said;
    for (const char* key : {"a", "a", "a", "a", "b", "c", "b"}) {
        net::co_spawn(io, PassThrough(line, key, said), net::detached);
    }
    io.run();
    EXPECT_EQ(said, "a a b c a b a ");
}

TEST(FairLine, RefusesBeyondItsLengthAndForgetsWhoGaveUp) {
    FairLine line(1, 2);
    std::string said;
    {
        net::io_context io;
        for (const char* key : {"a", "b", "c", "d"}) {
            net::co_spawn(io, PassThrough(line, key, said), net::detached);
        }
        for (int i = 0; i < 4; ++i) {
            io.poll_one();
        }
        EXPECT_EQ(line.Waiting(), 2U);
    }
    EXPECT_EQ(line.Waiting(), 0U);
    line.Leave();
    net::io_context io;
    net::co_spawn(io, PassThrough(line, "e", said), net::detached);
    io.run();
    EXPECT_EQ(said, "a full e ");
}

TEST(RunOn, GivesEachResultWhenItIsThere) {
    constexpr int kCount = 6;
    net::io_context io;
    net::thread_pool pool(1);
    std::vector<int> begunAtEnd;
    std::atomic<int> begun = 0;
    for (int i = 0; i < kCount; ++i) {
        net::co_spawn(
            io,
            [&]() -> net::awaitable<void> {
                co_await RunOn(pool, [&begun] {
                    ++begun;
                    std::this_thread::sleep_for(std::chrono::milliseconds(20));
                    return 0;
                });
                begunAtEnd.push_back(begun);
            },
            net::detached);
    }
    io.run();
    ASSERT_EQ(begunAtEnd.size(), static_cast<std::size_t>(kCount));
    EXPECT_LE(begunAtEnd[0], 2);
    EXPECT_LE(begunAtEnd[2], 4);
    pool.join();
}

TEST(RunOn, HandsOnWhatTheWorkThrows) {
    net::io_context io;
    net::thread_pool pool(1);
    std::string caught;
    net::co_spawn(
        io,
        [&]() -> net::awaitable<void> {
            try {
                co_await RunOn(pool, []() -> int { throw std::runtime_error("thrown"); });
            } catch (const std::exception& failure) {
                caught = failure.what();
            }
        },
        net::detached);
    io.run();
    EXPECT_EQ(caught, "thrown");
    pool.join();
}

class LanesTest : public testing::Test {
  protected:
    void Start(const TestServer::Change& change) {
        server_ = std::make_unique<TestServer>(
            [&](Settings& settings) {
                settings.workers = 1;
                folder_ = settings.data;
                if (change) {
                    change(settings);
                }
            },
            std::make_unique<BlockingRoutes>(gate_));
        server_->AddUser("anna", "correct horse");
        token_ = server_->Token("anna", "correct horse");
    }
    std::string Request(std::uint16_t command, const std::string& text) const {
        return RawClient::Request("POST", "/v1/exchange", EnvelopeBody(command, text), token_);
    }
    /// Whether a load is answered within a second.
    bool LoadIsAnswered() {
        const auto begin = std::chrono::steady_clock::now();
        const RawReply reply = server_->Ask("POST", "/v1/exchange", EnvelopeBody(3, "{ui:\"anna\"}"), token_);
        return reply.status == 200 && std::chrono::steady_clock::now() - begin < std::chrono::seconds(1);
    }

    BlockingRoutes::Gate gate_;
    std::string folder_;
    std::string token_;
    std::unique_ptr<TestServer> server_;
};

TEST_F(LanesTest, LoadsAreAnsweredWhileARouteIsSearched) {
    Start({});
    RawClient busy(server_->Port());
    busy.Send(Request(1, "{}"));
    gate_.entered.get_future().wait();
    EXPECT_TRUE(LoadIsAnswered());
    gate_.released.set_value();
    EXPECT_EQ(busy.Read().status, 200);
}

TEST_F(LanesTest, LoadsAreAnsweredWhileChangesWaitForALock) {
    Start({});
    SqliteDatabase other(folder_ + "/voyages.db");
    other.Execute("BEGIN IMMEDIATE");
    std::vector<std::unique_ptr<RawClient>> writers;
    for (int i = 0; i < 5; ++i) {
        writers.push_back(std::make_unique<RawClient>(server_->Port()));
        writers.back()->Send(Request(4, "{ci:\"\",cn:\"C\",type:0}"));
    }
    EXPECT_TRUE(LoadIsAnswered());
    other.Execute("ROLLBACK");
    for (const auto& writer : writers) {
        EXPECT_NE(EnvelopeText(writer->Read().body).find("\"eid\":0"), std::string::npos);
    }
    gate_.released.set_value();
}

TEST_F(LanesTest, StopEndsWhatWaitsForALockInItsTime) {
    Start([](Settings& settings) { settings.stopSeconds = 1; });
    SqliteDatabase other(folder_ + "/voyages.db");
    other.Execute("BEGIN IMMEDIATE");
    RawClient writer(server_->Port());
    writer.Send(Request(4, "{ci:\"\",cn:\"C\",type:0}"));
    EXPECT_TRUE(LoadIsAnswered());
    const auto begin = std::chrono::steady_clock::now();
    server_->Server().Stop();
    server_->Join();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(1500));
    gate_.released.set_value();
}

TEST_F(LanesTest, FailureOfTheStorageIsLoggedAndTheReplyTellsNothingOfIt) {
    Start([](Settings& settings) { settings.logRequests = false; });
    SqliteDatabase(folder_ + "/voyages.db").Execute("ALTER TABLE ais_times RENAME TO gone");
    const RawReply reply = server_->Ask("POST", "/v1/exchange", EnvelopeBody(3, "{ui:\"anna\"}"), token_);
    EXPECT_EQ(EnvelopeText(reply.body), R"({"eid":50,"emsg":"the data could not be stored or read"})");
    const std::vector<std::string> lines = server_->LogLines();
    EXPECT_NE(lines.back().find("\"result\":\"failed\""), std::string::npos) << lines.back();
    EXPECT_NE(lines.back().find("no such table"), std::string::npos) << lines.back();
    gate_.released.set_value();
}

TEST_F(LanesTest, HealthTellsWhenChangesAreRefused) {
    Start({});
    EXPECT_EQ(server_->Ask("GET", "/health").status, 200);
    SqliteDatabase(folder_ + "/voyages.db").Execute("ALTER TABLE next_id RENAME TO gone");
    // What was found is told again for a second.
    const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    int status = 200;
    while (status == 200 && std::chrono::steady_clock::now() < patience) {
        status = server_->Ask("GET", "/health").status;
    }
    EXPECT_EQ(status, 503);
    gate_.released.set_value();
}

}  // namespace
}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include <csignal>

#include <gtest/gtest.h>

#include "host/server/net/tests/BlockingRoutes.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

namespace {

/// A server whose one worker is busy with a request of `busy`.
class StopTest : public testing::Test {
  protected:
    void Start(const TestServer::Change& change) {
        server_ = std::make_unique<TestServer>(change, std::make_unique<BlockingRoutes>(gate_));
        server_->AddUser("anna", "correct horse");
        token_ = server_->Token("anna", "correct horse");
        busy_ = std::make_unique<RawClient>(server_->Port());
        ASSERT_TRUE(busy_->Send(RawClient::Request("POST", "/v1/exchange", EnvelopeBody(1, "{}"), token_)));
        gate_.entered.get_future().wait();
    }

    BlockingRoutes::Gate gate_;
    std::unique_ptr<TestServer> server_;
    std::string token_;
    std::unique_ptr<RawClient> busy_;
};

TEST_F(StopTest, FinishesARunningRequestAndTakesNoNewOnes) {
    Start({});
    const std::uint16_t port = server_->Port();
    RawClient idle(port);
    ASSERT_EQ(idle.Ask("GET", "/metrics").status, 200);
    server_->Server().Stop();
    EXPECT_TRUE(idle.SeesEnd());
    EXPECT_FALSE(RawClient(port).IsConnected());
    gate_.released.set_value();
    const RawReply reply = busy_->Read();
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.fields.at("connection"), "close");
    EXPECT_EQ(EnvelopeText(reply.body), "{\"eid\":0}");
    server_->Join();
    EXPECT_TRUE(busy_->SeesEnd());
}

TEST_F(StopTest, WaitsForWhatAThreadHasBegunEvenWhenItsTimeIsOver) {
    Start([](Settings& settings) { settings.stopSeconds = 0; });
    RawClient idle(server_->Port());
    ASSERT_EQ(idle.Ask("GET", "/metrics").status, 200);
    server_->Server().Stop();
    EXPECT_TRUE(idle.SeesEnd());
    gate_.released.set_value();
    server_->Join();
    EXPECT_EQ(gate_.finished, 1);
}

TEST_F(StopTest, SignalStopsTheServer) {
    Start({});
    server_->Server().StopOnSignals();
    gate_.released.set_value();
    EXPECT_EQ(busy_->Read().status, 200);
    ASSERT_EQ(::raise(SIGTERM), 0);
    server_->Join();
    EXPECT_EQ(server_->LogLines().back().find("\"event\":\"stopped\"") == std::string::npos, false);
}

TEST_F(StopTest, FullQueueIsToldAtOnce) {
    Start([](Settings& settings) {
        settings.workers = 1;
        settings.maxQueue = 1;
    });
    RawClient client(server_->Port());
    const RawReply reply = client.Ask("POST", "/v1/exchange", EnvelopeBody(3, "{ui:\"anna\"}"), token_);
    EXPECT_EQ(reply.status, 503);
    EXPECT_EQ(reply.fields.at("retry-after"), "1");
    EXPECT_EQ(client.Ask("GET", "/metrics").status, 200);
    gate_.released.set_value();
    EXPECT_EQ(busy_->Read().status, 200);
    EXPECT_EQ(client.Ask("POST", "/v1/exchange", EnvelopeBody(3, "{ui:\"anna\"}"), token_).status, 200);
}

}  // namespace
}  // namespace Tarvik::Server

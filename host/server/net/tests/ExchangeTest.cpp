// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

namespace {

class ExchangeTest : public testing::Test {
  protected:
    ExchangeTest() {
        server_.AddUser("anna", "correct horse");
        server_.AddUser("bert", "battery staple");
        anna_ = server_.Token("anna", "correct horse");
        bert_ = server_.Token("bert", "battery staple");
    }
    std::string Exchange(const std::string& token, std::uint16_t command, const std::string& text) {
        const RawReply reply = server_.Ask("POST", "/v1/exchange", EnvelopeBody(command, text), token);
        EXPECT_EQ(reply.status, 200);
        return EnvelopeText(reply.body);
    }
    bool LogHas(const std::string& piece) {
        for (const std::string& line : server_.LogLines()) {
            if (line.find(piece) != std::string::npos) {
                return true;
            }
        }
        return false;
    }

    TestServer server_;
    std::string anna_;
    std::string bert_;
};

TEST_F(ExchangeTest, RepliesWithTheHeadOfTheRequestAndATextThatEndsWithNul) {
    const std::string request("\x0b\0\0\0\3\0\5\0{ui:\"anna\"}", 19);
    const RawReply reply = server_.Ask("POST", "/v1/exchange", request, anna_);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.fields.at("content-type"), "application/octet-stream");
    EXPECT_EQ(reply.body, std::string("\3\0\0\0\3\0\5\0[]\0", 11));
}

TEST_F(ExchangeTest, ManyExchangesGoOverOneConnection) {
    RawClient client(server_.Port());
    for (int i = 1; i <= 200; ++i) {
        const std::string text = "{ci:\"\",cn:\"C" + std::to_string(i) + "\",type:0}";
        const RawReply reply = client.Ask("POST", "/v1/exchange", EnvelopeBody(4, text), anna_);
        ASSERT_EQ(reply.status, 200);
        ASSERT_EQ(nlohmann::json::parse(EnvelopeText(reply.body))["eid"], 0);
    }
    const RawReply all = client.Ask("POST", "/v1/exchange", EnvelopeBody(3, "{ui:\"anna\"}"), anna_);
    EXPECT_EQ(nlohmann::json::parse(EnvelopeText(all.body)).size(), 200U);
}

TEST_F(ExchangeTest, RequestsSentAheadAreAnsweredInOrder) {
    RawClient client(server_.Port());
    std::string bytes;
    for (const char* name : {"anna", "bert"}) {
        bytes += RawClient::Request("POST", "/v1/exchange",
                                    EnvelopeBody(3, "{ui:\"" + std::string(name) + "\"}"), anna_);
    }
    ASSERT_TRUE(client.Send(bytes));
    EXPECT_EQ(EnvelopeText(client.Read().body), "[]");
    EXPECT_EQ(nlohmann::json::parse(EnvelopeText(client.Read().body))["eid"], 20);
}

TEST_F(ExchangeTest, UserReachesOnlyWhatIsTheirs) {
    const auto created = nlohmann::json::parse(Exchange(anna_, 4, "{ci:\"\",cn:\"Hers\",type:0}"));
    const std::string id = created["ci"];
    const auto renamed =
        nlohmann::json::parse(Exchange(bert_, 4, "{ci:\"" + id + "\",cn:\"His\",type:\"4\"}"));
    EXPECT_EQ(renamed["eid"], 30);
    EXPECT_EQ(Exchange(bert_, 3, "{ui:\"bert\"}"), "[]");
    EXPECT_EQ(nlohmann::json::parse(Exchange(bert_, 3, "{ui:\"anna\"}"))["eid"], 20);
    EXPECT_EQ(nlohmann::json::parse(Exchange(anna_, 3, "{ui:\"anna\"}"))[0]["cn"], "Hers");
}

TEST_F(ExchangeTest, OfTwoClientsWhoWriteABookAtOnceTheLastWhoBeganWins) {
    const std::string other = server_.Token("anna", "correct horse");
    const std::string success = R"({"eid":0})";
    Exchange(anna_, 4, R"({ci:"",cn:"A",type:0})");
    Exchange(anna_, 5, R"({ci:"1000001",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})");
    Exchange(anna_, 8, R"({vi:"1000002",dt:"2026-03-01 00:00:00"})");
    EXPECT_EQ(Exchange(anna_, 9, R"(["1000003","0","0|one|1|2|GC|5|1|0"])"), success);
    EXPECT_EQ(Exchange(other, 9, R"(["1000003","0","0|two|1|2|GC|5|1|0"])"), success);
    EXPECT_EQ(nlohmann::json::parse(Exchange(anna_, 9, R"(["1000003","1","1|one|1|2|GC|5|1|0"])"))["eid"],
              47);
    EXPECT_EQ(Exchange(other, 9, R"(["1000003","1","1|two|1|2|GC|5|1|0"])"), success);
    const auto rows = nlohmann::json::parse(Exchange(anna_, 7, R"({vi:"1000002"})"))[0]["pb"];
    EXPECT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[1]["psn"], "two");
}

TEST_F(ExchangeTest, NeedsAToken) {
    const std::string body = EnvelopeBody(3, "{ui:\"anna\"}");
    EXPECT_EQ(server_.Ask("POST", "/v1/exchange", body).status, 401);
    EXPECT_EQ(server_.Ask("POST", "/v1/exchange", body, "short").status, 401);
    EXPECT_EQ(server_.Ask("POST", "/v1/exchange", body, std::string(43, 'A')).status, 401);
}

TEST_F(ExchangeTest, BodyThatIsNoEnvelopeIsRefused) {
    for (const std::string& body :
         {std::string(), std::string("1234567"), std::string("\5\0\0\0\3\0\5\0[]", 10),
          std::string("\xff\xff\xff\xff\3\0\5\0", 8)}) {
        EXPECT_EQ(server_.Ask("POST", "/v1/exchange", body, anna_).status, 400) << body.size();
    }
}

TEST_F(ExchangeTest, RefusalOfTheVoyageServiceIsAReply) {
    EXPECT_GT(nlohmann::json::parse(Exchange(anna_, 99, "{}"))["eid"].get<int>(), 0);
    EXPECT_GT(nlohmann::json::parse(Exchange(anna_, 3, "{"))["eid"].get<int>(), 0);
    EXPECT_NE(nlohmann::json::parse(Exchange(anna_, 1, "{}"))["eid"].get<int>(), 0);
}

TEST_F(ExchangeTest, MetricsCountByCommandAndResult) {
    Exchange(anna_, 3, "{ui:\"anna\"}");
    Exchange(anna_, 3, "{ui:\"anna\"}");
    Exchange(anna_, 3, "{ui:\"bert\"}");
    server_.Ask("POST", "/v1/exchange", EnvelopeBody(3, "{}"), std::string(43, 'A'));
    server_.Ask("POST", "/v1/exchange", EnvelopeBody(3, "{}"));
    server_.Ask("GET", "/no/such/path");
    const RawReply metrics = server_.Ask("GET", "/metrics");
    EXPECT_EQ(metrics.status, 200);
    EXPECT_EQ(metrics.fields.at("content-type"), "text/plain; version=0.0.4; charset=utf-8");
    for (const char* line : {"seaplan_requests_total{command=\"3\",result=\"ok\"} 2\n",
                             "seaplan_requests_total{command=\"3\",result=\"refused\"} 1\n",
                             "seaplan_requests_total{command=\"exchange\",result=\"unauthorized\"} 2\n",
                             "seaplan_requests_total{command=\"login\",result=\"ok\"} 2\n",
                             "seaplan_requests_total{command=\"other\",result=\"bad\"} 1\n",
                             "seaplan_request_seconds_count{command=\"3\"} 3\n"}) {
        EXPECT_NE(metrics.body.find(line), std::string::npos) << line << metrics.body;
    }
}

TEST_F(ExchangeTest, HealthSaysThatTheDataBasesAnswer) {
    const RawReply health = server_.Ask("GET", "/health");
    EXPECT_EQ(health.status, 200);
    EXPECT_EQ(health.body, "{\"status\":\"ok\"}");
}

TEST_F(ExchangeTest, LogNamesUserCommandAndResultButNoSecret) {
    Exchange(anna_, 3, "{ui:\"anna\"}");
    EXPECT_TRUE(LogHas("\"command\":\"3\",\"result\":\"ok\",\"status\":\"200\",\"user\":\"anna\""));
    EXPECT_FALSE(LogHas(anna_));
    EXPECT_FALSE(LogHas("correct horse"));
}

}  // namespace
}  // namespace Tarvik::Server

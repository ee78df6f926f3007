// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <vector>

#include <gtest/gtest.h>

#include "host/server/accounts/Credentials.h"
#include "host/server/net/log/ServerLog.h"
#include "host/server/net/metrics/Metrics.h"
#include "host/server/net/service/Resources.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"
#include "host/server/wire/Envelope.h"

namespace Tarvik::Server {

namespace {

TEST(Envelope, IsLittleEndianAndCountsItsNul) {
    const std::string bytes = WriteEnvelope({0x0203, 0x1002, "{}"});
    EXPECT_EQ(bytes, std::string("\3\0\0\0\3\2\2\x10{}\0", 11));
    const auto read = ReadEnvelope(bytes);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->command, 0x0203);
    EXPECT_EQ(read->moduleWord, 0x1002);
    EXPECT_EQ(read->text, "{}");
}

TEST(Envelope, TextMayLackItsNul) {
    EXPECT_EQ(ReadEnvelope(std::string("\2\0\0\0\1\0\5\0{}", 10))->text, "{}");
    EXPECT_EQ(ReadEnvelope(std::string("\0\0\0\0\1\0\5\0", 8))->text, "");
}

TEST(Envelope, OtherLengthsAreNone) {
    const std::string whole = WriteEnvelope({1, 5, "text"});
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(ReadEnvelope(whole.substr(0, size)));
    }
    EXPECT_FALSE(ReadEnvelope(whole + "x"));
}

TEST(Routes, ComeFromTheNetworkThatWasInstalledWithTheProgram) {
    const TempFolder folder;
    const std::string program = folder.File("bin/seaplan-server");
    EXPECT_EQ(NetworkBeside(program), "");
    std::filesystem::create_directories(folder.File("share/seaplan"));
    std::ofstream(folder.File("share/seaplan/network.bin")) << "no network";
    EXPECT_EQ(NetworkBeside(program), folder.File("share/seaplan/network.bin"));
    std::string error;
    EXPECT_EQ(OpenRoutes(NetworkBeside(program), {}, error), nullptr);
    EXPECT_NE(error, "");
}

TEST(Routes, AreRefusedWithoutANetwork) {
    for (const char* none : {"", "none"}) {
        std::string error;
        const auto routes = OpenRoutes(none, {}, error);
        ASSERT_NE(routes, nullptr) << error;
        EXPECT_NE(routes->Plan("{}").find("this server has no sea network"), std::string::npos);
    }
}

TEST(Token, IsTakenFromItsFieldOnly) {
    const std::string token = MakeToken();
    ASSERT_EQ(token.size(), kTokenLength);
    EXPECT_EQ(TokenOf("Bearer " + token), token);
    EXPECT_EQ(TokenOf("bearer " + token), token);
    for (const std::string& field : {std::string(), token, "Basic " + token, "Bearer " + token + "x",
                                     "Bearer" + token + "x", "Bearer " + std::string(43, '=')}) {
        EXPECT_EQ(TokenOf(field), "") << field;
    }
}

TEST(Token, IsKeptAsItsSha256) {
    EXPECT_EQ(HashToken("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(Password, HashesDifferAndMatchTheirPasswordOnly) {
    const Passwords passwords({1, 8192});
    const std::string one = passwords.Hash("correct horse");
    const std::string two = passwords.Hash("correct horse");
    EXPECT_NE(one, two);
    EXPECT_TRUE(one.starts_with("$argon2id$v=19$m=8,t=1,p=1$"));
    EXPECT_TRUE(passwords.Matches(one, "correct horse"));
    EXPECT_TRUE(passwords.Matches(two, "correct horse"));
    EXPECT_FALSE(passwords.Matches(one, "correct horse "));
    EXPECT_FALSE(passwords.Matches("no hash", "correct horse"));
    EXPECT_FALSE(passwords.Matches(std::string(500, '$'), "correct horse"));
    EXPECT_FALSE(passwords.IsOutdated(one));
    EXPECT_TRUE(Passwords({2, 8192}).IsOutdated(one));
}

TEST(Metrics, HistogramIsCumulative) {
    Metrics metrics;
    metrics.CountRequest("3", "ok", 0.001);
    metrics.CountRequest("3", "ok", 0.02);
    metrics.CountRequest("3", "refused", 99);
    metrics.SetConnections(7);
    metrics.CountRefusedConnection();
    EXPECT_EQ(metrics.Print(),
              "# HELP seaplan_requests_total Requests by command and result.\n"
              "# TYPE seaplan_requests_total counter\n"
              "seaplan_requests_total{command=\"3\",result=\"ok\"} 2\n"
              "seaplan_requests_total{command=\"3\",result=\"refused\"} 1\n"
              "# HELP seaplan_request_seconds Time from the whole request to its reply.\n"
              "# TYPE seaplan_request_seconds histogram\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.001\"} 1\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.0025\"} 1\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.005\"} 1\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.01\"} 1\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.025\"} 2\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.05\"} 2\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.1\"} 2\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.25\"} 2\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"0.5\"} 2\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"1\"} 2\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"2.5\"} 2\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"10\"} 2\n"
              "seaplan_request_seconds_bucket{command=\"3\",le=\"+Inf\"} 3\n"
              "seaplan_request_seconds_sum{command=\"3\"} 99.021\n"
              "seaplan_request_seconds_count{command=\"3\"} 3\n"
              "# HELP seaplan_connections Open connections.\n"
              "# TYPE seaplan_connections gauge\n"
              "seaplan_connections 7\n"
              "# HELP seaplan_connections_opened_total Connections that were taken.\n"
              "# TYPE seaplan_connections_opened_total counter\n"
              "seaplan_connections_opened_total 1\n"
              "# HELP seaplan_connections_refused_total Connections closed because there were too many.\n"
              "# TYPE seaplan_connections_refused_total counter\n"
              "seaplan_connections_refused_total 1\n");
}

TEST(ServerLog, WritesOneObjectALineWhateverTheTextsHold) {
    std::vector<std::string> lines;
    ServerLog log([&lines](const std::string& line) { lines.push_back(line); },
                  [] { return 1'800'000'000'042; });
    log.Write(LogLevel::Warning, "event", {{"name", "a \"b\"\n\xff"}, {"empty", ""}});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0],
              "{\"time\":\"2027-01-15T08:00:00.042Z\",\"level\":\"warning\",\"event\":\"event\",\"name\":\"a "
              "\\\"b\\\"\\n\xef\xbf\xbd\"}");
}

}  // namespace
}  // namespace Tarvik::Server

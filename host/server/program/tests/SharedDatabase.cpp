// SPDX-License-Identifier: MIT
#include "host/server/program/tests/SharedDatabase.h"

#include <chrono>

#include <nlohmann/json.hpp>

#include "host/server/net/tests/TestServer.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"

namespace Tarvik::Server {

namespace {

constexpr const char* kPassword = "correct horse";

}  // namespace

std::optional<std::string> Exchanger::Ask(std::uint16_t command, const std::string& text) {
    const RawReply reply = client_.Ask("POST", "/v1/exchange", EnvelopeBody(command, text), token_);
    if (reply.status != 200) {
        return std::nullopt;
    }
    return EnvelopeText(reply.body);
}

bool Exchanger::Succeeds(std::uint16_t command, const std::string& text) {
    const auto reply = Ask(command, text);
    const bool good = reply && reply->starts_with("{\"eid\":0");
    EXPECT_TRUE(good) << command << ": " << reply.value_or("no reply");
    return good;
}

nlohmann::json Exchanger::Load(std::uint16_t command, const std::string& text) {
    const auto reply = Ask(command, text);
    EXPECT_TRUE(reply);
    return reply ? nlohmann::json::parse(*reply, nullptr, false) : nlohmann::json();
}

SharedDatabase::SharedDatabase()
    : connection_(PostgresServer::Instance().MakeDatabase()),
      variables_{"SEAPLAN_SERVER_DATABASE=" + connection_ + " password=" + kSecret,
                 "SEAPLAN_SERVER_DATA=/none", "SEAPLAN_SERVER_NETWORK=none",
                 "SEAPLAN_SERVER_LOGIN_ATTEMPTS_PER_ADDRESS=0"} {}

void SharedDatabase::SetUp() {
    const ProgramEnd added =
        RunServerProgram({"user", "add", "anna"}, variables_, std::string(kPassword) + "\n");
    ASSERT_EQ(added.code, 0) << added.output;
    ASSERT_EQ(added.output, "added anna\n");
}

std::string SharedDatabase::Token(const ServerProcess& server) {
    const RawReply reply = RawClient(server.Port()).Ask("POST", "/v1/login", LoginBody("anna", kPassword));
    EXPECT_EQ(reply.status, 200) << reply.body;
    return reply.status == 200 ? nlohmann::json::parse(reply.body)["token"].get<std::string>()
                               : std::string();
}

int SharedDatabase::StatusOf(const ServerProcess& server, const std::string& token) {
    return RawClient(server.Port())
        .Ask("POST", "/v1/exchange", EnvelopeBody(3, R"({ui:"anna"})"), token)
        .status;
}

bool SharedDatabase::ComesToRefuse(const ServerProcess& server, const std::string& token) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < end) {
        if (StatusOf(server, token) == 401) {
            return true;
        }
    }
    return false;
}

}  // namespace Tarvik::Server

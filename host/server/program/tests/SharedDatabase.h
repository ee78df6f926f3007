// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json_fwd.hpp>

#include "host/server/net/tests/RawClient.h"
#include "host/server/program/tests/ServerProcess.h"

namespace Tarvik::Server {

/// A password of the data base, which nothing may show.
inline constexpr const char* kSecret = "q3e7w9";

/// Exchanges over one kept connection.
class Exchanger {
  public:
    Exchanger(std::uint16_t port, std::string token) : client_(port), token_(std::move(token)) {}

    /// The reply's text; nothing when there came none.
    std::optional<std::string> Ask(std::uint16_t command, const std::string& text);
    /// Whether the reply says success; the test fails when it does not.
    bool Succeeds(std::uint16_t command, const std::string& text);
    nlohmann::json Load(std::uint16_t command, const std::string& text);

  private:
    RawClient client_;
    std::string token_;
};

/// Processes of the real program on one data base of the test's own, with the user anna.
class SharedDatabase : public testing::Test {
  protected:
    SharedDatabase();
    void SetUp() override;
    /// The token of a new login.
    static std::string Token(const ServerProcess& server);
    /// The HTTP status of a load with the token.
    static int StatusOf(const ServerProcess& server, const std::string& token);
    /// Whether a process comes to refuse a token that another one has ended; it may trust it for the rest of
    /// a second.
    static bool ComesToRefuse(const ServerProcess& server, const std::string& token);

    std::string connection_;
    std::vector<std::string> variables_;  ///< settings of every process
};

}  // namespace Tarvik::Server

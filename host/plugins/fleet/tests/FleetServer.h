// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/server/app/EmbeddedServer.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Fleet {

/// A client's bus with the voyage server itself behind it, which knows no routes.
class FleetServer {
  public:
    FleetServer() {
        std::string error;
        server_ = Server::EmbeddedServer::Open(":memory:", std::make_unique<NoRoutes>(), error);
        EXPECT_NE(server_, nullptr) << error;
        host.server = [this](const Interface::VoyServerRequest& request) {
            return server_->Exchange(host.user.value_or(""), &request);
        };
    }
    /// A command past the bus, and the reply's text.
    std::string Send(std::uint16_t command, const std::string& text) {
        std::vector<char> block(sizeof(Interface::VoyServerRequest) + text.size() + 1);
        const Interface::VoyServerRequest head{static_cast<std::uint32_t>(text.size() + 1), command,
                                               Interface::kVoyageModuleWord};
        std::memcpy(block.data(), &head, sizeof head);
        std::memcpy(block.data() + sizeof head, text.c_str(), text.size() + 1);
        return server_->Exchange(host.user.value_or(""),
                                 reinterpret_cast<const Interface::VoyServerRequest*>(block.data()));
    }
    TestSupport::RecordingHost host;

  private:
    class NoRoutes : public Server::RouteSource {
        std::string Plan(std::string_view) override { return R"({"eid":-1})"; }
        std::string Nearest(std::string_view) override { return R"({"eid":-1})"; }
    };
    std::unique_ptr<Server::EmbeddedServer> server_;
};

}  // namespace Tarvik::Fleet

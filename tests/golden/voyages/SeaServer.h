// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/client/services/ServerLink.h"
#include "host/server/app/EmbeddedServer.h"

namespace Tarvik::Golden {

/// The voyage server in this process: a new data base in memory, routes from the shipped sea network, which
/// is read once for all servers.
class SeaServer : public Client::ServerLink {
  public:
    /// Throws std::runtime_error when the network cannot be read.
    SeaServer();
    bool Connect(std::string&) override { return true; }
    bool IsConnected() const override { return true; }
    std::string Exchange(const std::string& user, const Interface::VoyServerRequest& request) override;

  private:
    std::unique_ptr<Server::EmbeddedServer> server_;
};

/// Whether the shipped network uses a route point only when it is asked for, as the canals of Kiel and
/// Corinth.
bool IsShutUnlessAsked(const std::string& routePoint);

}  // namespace Tarvik::Golden

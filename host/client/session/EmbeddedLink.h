// SPDX-License-Identifier: MIT
#pragma once

#include <future>
#include <memory>
#include <string>

#include "host/client/services/ServerLink.h"
#include "host/server/api/RouteSource.h"
#include "host/server/app/EmbeddedServer.h"

namespace Tarvik::Client {

/// Routes from a network file that is read on a thread of its own; the first request waits for the end of the
/// reading.
class LateRouteSource : public Server::RouteSource {
  public:
    explicit LateRouteSource(const std::string& networkFile);
    std::string Plan(std::string_view requestJson) override;
    std::string Nearest(std::string_view requestJson) override;
    std::string PlanWith(std::string_view requestJson, const std::vector<Server::PlaceRecord>& own) override;
    std::string NearestWith(std::string_view requestJson,
                            const std::vector<Server::PlaceRecord>& own) override;
    /// Without a network every port counts as known, as nothing tells them apart.
    bool KnowsPort(const std::string& id) override;

  private:
    struct Loaded {
        std::unique_ptr<Server::RouteSource> source;
        std::string failure;  ///< reply to every request when there is no source
    };
    static Loaded Load(const std::string& networkFile);

    std::shared_future<std::shared_ptr<Loaded>> loaded_;
};

/// The voyage server inside the client: its data base in the person's folder, the shipped sea network.
class EmbeddedLink : public ServerLink {
  public:
    EmbeddedLink(std::string databaseFile, std::string networkFile);
    /// Opens the data base; the network is read beside it, on another thread, so that nobody waits for it
    /// before the first route is asked for.
    bool Connect(std::string& error) override;
    bool IsConnected() const override { return server_ != nullptr; }
    std::string Exchange(const std::string& user, const Interface::VoyServerRequest& request) override;

  private:
    std::string databaseFile_;
    std::string networkFile_;
    std::unique_ptr<Server::EmbeddedServer> server_;
};

}  // namespace Tarvik::Client

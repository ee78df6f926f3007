// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>

#include "host/server/app/EmbeddedServer.h"

namespace Tarvik::Server {

/// A host on the bus whose server is the real one, inside this process. It answers what the plug-in's
/// protocol asks of a host, from its making to its end.
class BusServer : public Core::TObject {
  public:
    /// A data base in memory unless a file is named; throws when it cannot be opened. Without `routes` every
    /// request for one is refused.
    explicit BusServer(const std::string& dbPath = ":memory:", std::unique_ptr<RouteSource> routes = nullptr);
    ~BusServer() override;
    BusServer(const BusServer&) = delete;
    BusServer& operator=(const BusServer&) = delete;

    std::string user = "ann";
    std::string zone = "China Standard Time";
    std::int64_t now = 1772323200;  ///< seconds since 1970-01-01 00:00:00 UTC
    /// Told of every exchange, when there is one to tell.
    std::function<void(const Interface::VoyServerRequest& request, const std::string& reply)> watch;

  private:
    template <auto Method>
    void Bind(const char* name);
    void* OnExchange(void* input);
    void* OnConnected(void* input);
    void* OnUser(void* input);
    void* OnZone(void* input);

    std::unique_ptr<EmbeddedServer> server_;
    std::vector<std::pair<const char*, std::unique_ptr<Core::TEvent>>> bindings_;
};

}  // namespace Tarvik::Server

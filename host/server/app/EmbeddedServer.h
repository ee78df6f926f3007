// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <tarvik/interface/ServerRequest.h>

#include "host/server/api/RouteSource.h"
#include "host/server/storage/contract/ServerTime.h"

namespace Tarvik::Server {

class SqliteStorage;
class VoyageService;

/// The user of a client that keeps its voyages by itself.
inline constexpr const char* kLocalUser = "local";

/// The whole voyage server inside one process, on one data base file.
class EmbeddedServer {
  public:
    ~EmbeddedServer();
    /// Opens or makes the data base; ":memory:" makes one that ends with the server. Null, with an English
    /// text in `error`, when that fails or `routes` is null. `clock` dates remarks.
    static std::unique_ptr<EmbeddedServer> Open(const std::string& dbPath,
                                                std::unique_ptr<RouteSource> routes, std::string& error,
                                                const ServerClock& clock = SystemSeconds);

    /// The reply text to one request block, whose payload may end with a NUL. A payload longer than
    /// kMaxPayloadBytes gets an error reply. Safe to call from any thread as far as the route source is;
    /// never throws.
    std::string Exchange(const std::string& user, const Interface::VoyServerRequest* request);

  private:
    EmbeddedServer(std::unique_ptr<SqliteStorage> storage, std::unique_ptr<RouteSource> routes,
                   const ServerClock& clock);

    std::unique_ptr<SqliteStorage> storage_;
    std::unique_ptr<RouteSource> routes_;
    std::unique_ptr<VoyageService> service_;
};

}  // namespace Tarvik::Server

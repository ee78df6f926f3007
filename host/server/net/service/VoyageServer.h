// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/api/RouteSource.h"
#include "host/server/api/VoyageService.h"
#include "host/server/net/http/HttpServer.h"
#include "host/server/net/service/ServerFront.h"
#include "host/server/net/settings/Settings.h"
#include "host/server/storage/contract/Storage.h"

namespace Tarvik::Server {

/// What a server is given besides its settings.
struct ServerParts {
    std::unique_ptr<RouteSource> routes;
    ServerClock clock = SystemSeconds;          ///< dates remarks
    ServerClock sessionClock = ForwardSeconds;  ///< ends sessions and waits for logins; never goes back
    PasswordCost passwordCost;
    std::function<void()>
        cutShort;             ///< told, from any thread, when the time for what was begun is nearly over
    ServerLog::Sink logSink;  ///< empty: standard error
};

/// What the settings grant the clients of the HTTP server.
HttpLimits HttpLimitsOf(const Settings& settings);

/// The whole server: data bases, voyage service, sessions, HTTP.
class VoyageServer {
  public:
    /// Opens the data bases and the port. Null, with an English text in `error`, when anything fails.
    static std::unique_ptr<VoyageServer> Open(const Settings& settings, ServerParts parts,
                                              std::string& error);
    VoyageServer(const VoyageServer&) = delete;
    VoyageServer& operator=(const VoyageServer&) = delete;

    std::uint16_t Port() const { return http_.Port(); }
    AccountStorage& Accounts() { return *accounts_; }
    const Metrics& Counts() const { return metrics_; }
    /// Lets SIGTERM and SIGINT stop the server.
    void StopOnSignals() { http_.StopOnSignals(); }
    /// Serves until it was stopped and what was begun is done.
    void Run();
    /// From any thread.
    void Stop() { http_.Stop(); }

  private:
    VoyageServer(const Settings& settings, ServerParts parts, std::unique_ptr<Storage> storage,
                 std::unique_ptr<AccountStorage> accounts);
    void CutShort(const std::function<void()>& tell);

    Settings settings_;
    ServerLog log_;
    Metrics metrics_;
    std::unique_ptr<RouteSource> routes_;
    std::unique_ptr<Storage> storage_;
    std::unique_ptr<AccountStorage> accounts_;
    VoyageService service_;
    Sessions sessions_;
    ServerFront front_;
    HttpServer http_;
};

}  // namespace Tarvik::Server

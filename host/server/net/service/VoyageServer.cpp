// SPDX-License-Identifier: MIT
#include "host/server/net/service/VoyageServer.h"

#include <utility>

#include "host/server/net/service/Resources.h"

namespace Tarvik::Server {

namespace {

LoginLimits LoginLimitsOf(const Settings& settings) {
    return {settings.loginAttemptsPerUser, settings.loginAttemptsPerAddress,
            std::int64_t{60} * settings.loginWindowMinutes};
}

std::int64_t SessionSeconds(const Settings& settings) {
    return std::int64_t{3600} * settings.sessionHours;
}

FrontOptions FrontOptionsOf(const Settings& settings) {
    return {std::uint64_t{1024} * static_cast<std::uint64_t>(settings.maxBodyKilobytes),
            SessionSeconds(settings), settings.logRequests};
}

ServerLog MakeLog(ServerLog::Sink sink) {
    return sink ? ServerLog::ToSink(std::move(sink)) : ServerLog::ToStandardError();
}

}  // namespace

HttpLimits HttpLimitsOf(const Settings& settings) {
    HttpLimits limits;
    limits.connections = static_cast<std::size_t>(settings.maxConnections);
    limits.connectionsPerAddress = static_cast<std::size_t>(settings.maxConnectionsPerAddress);
    limits.workers = static_cast<std::size_t>(settings.workers);
    limits.writers = static_cast<std::size_t>(WritersOf(settings));
    limits.queue = static_cast<std::size_t>(settings.maxQueue);
    limits.idle = std::chrono::seconds(settings.idleSeconds);
    limits.request = std::chrono::seconds(settings.requestSeconds);
    limits.stop = std::chrono::seconds(settings.stopSeconds);
    return limits;
}

VoyageServer::VoyageServer(const Settings& settings, ServerParts parts, std::unique_ptr<Storage> storage,
                           std::unique_ptr<AccountStorage> accounts)
    : settings_(settings),
      log_(MakeLog(std::move(parts.logSink))),
      routes_(std::move(parts.routes)),
      storage_(std::move(storage)),
      accounts_(std::move(accounts)),
      service_(*storage_, *routes_, parts.clock),
      sessions_(*accounts_, Passwords(parts.passwordCost), LoginLimitsOf(settings), SessionSeconds(settings),
                parts.sessionClock),
      front_({service_, sessions_, *storage_, *accounts_, metrics_, log_,
              [this, tell = std::move(parts.cutShort)] { CutShort(tell); }},
             FrontOptionsOf(settings)),
      http_(front_, HttpLimitsOf(settings)) {}

std::unique_ptr<VoyageServer> VoyageServer::Open(const Settings& settings, ServerParts parts,
                                                 std::string& error) {
    if (parts.routes == nullptr) {
        error = "there is no source of routes";
        return nullptr;
    }
    if (!PrepareDataFolder(settings, error)) {
        return nullptr;
    }
    auto accounts = OpenAccounts(settings, error);
    if (accounts == nullptr) {
        return nullptr;
    }
    auto storage = OpenVoyages(settings, error);
    if (storage == nullptr) {
        return nullptr;
    }
    if (const Status writable = storage->Check(); !writable) {
        error =
            "the data base " + DescribeData(settings) + " takes no changes: " + writable.GetFault().detail;
        return nullptr;
    }
    std::unique_ptr<VoyageServer> server(
        new VoyageServer(settings, std::move(parts), std::move(storage), std::move(accounts)));
    const TlsFiles tls{settings.tlsCertificate, settings.tlsKey};
    if (!server->http_.Listen(settings.address, settings.port, tls, error)) {
        return nullptr;
    }
    return server;
}

void VoyageServer::Run() {
    log_.Write(LogLevel::Info, "started",
               {{"address", settings_.address},
                {"port", std::to_string(Port())},
                {"tls", settings_.tlsCertificate.empty() ? "no" : "yes"},
                {"data", DescribeData(settings_)}});
    http_.Run();
    log_.Write(LogLevel::Info, "stopped");
}

void VoyageServer::CutShort(const std::function<void()>& tell) {
    log_.Write(LogLevel::Warning, "cut short");
    accounts_->GiveUp();
    storage_->GiveUp();
    if (tell) {
        tell();
    }
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/server/net/service/VoyageServer.h"

#include <utility>

namespace Tarvik::Server {

namespace {

HttpLimits HttpLimitsOf(const Settings& settings) {
    HttpLimits limits;
    limits.connections = static_cast<std::size_t>(settings.maxConnections);
    limits.workers = static_cast<std::size_t>(settings.workers);
    limits.queue = static_cast<std::size_t>(settings.maxQueue);
    limits.idle = std::chrono::seconds(settings.idleSeconds);
    limits.request = std::chrono::seconds(settings.requestSeconds);
    limits.stop = std::chrono::seconds(settings.stopSeconds);
    return limits;
}

LoginLimits LoginLimitsOf(const Settings& settings) {
    return {settings.loginAttemptsPerUser, settings.loginAttemptsPerAddress,
            std::int64_t{60} * settings.loginWindowMinutes};
}

std::int64_t SessionSeconds(const Settings& settings) {
    return std::int64_t{3600} * settings.sessionHours;
}

FrontOptions FrontOptionsOf(const Settings& settings) {
    return {std::uint64_t{1024} * static_cast<std::uint64_t>(settings.maxBodyKilobytes),
            settings.logRequests};
}

ServerLog MakeLog(ServerLog::Sink sink) {
    return sink ? ServerLog::ToSink(std::move(sink)) : ServerLog::ToStandardError();
}

}  // namespace

VoyageServer::VoyageServer(const Settings& settings, ServerParts parts, std::unique_ptr<Storage> storage,
                           std::unique_ptr<AccountStorage> accounts)
    : settings_(settings),
      log_(MakeLog(std::move(parts.logSink))),
      routes_(std::move(parts.routes)),
      storage_(std::move(storage)),
      accounts_(std::move(accounts)),
      service_(*storage_, *routes_, parts.clock),
      passwords_(parts.passwordCost),
      sessions_(*accounts_, passwords_, LoginLimitsOf(settings), SessionSeconds(settings), parts.clock),
      logins_(sessions_, SessionSeconds(settings)),
      exchange_(service_, sessions_),
      front_(
          logins_, exchange_, [this] { return Healthy(); }, metrics_, log_, FrontOptionsOf(settings)),
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

bool VoyageServer::Healthy() {
    return accounts_->FindUser({}).Succeeded() && storage_->Catalog().LoadCatalog({}).Succeeded();
}

}  // namespace Tarvik::Server

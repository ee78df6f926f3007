// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "host/server/net/http/HttpService.h"
#include "host/server/net/log/ServerLog.h"
#include "host/server/net/metrics/Metrics.h"
#include "host/server/net/service/Endpoints.h"

namespace Tarvik::Server {

/// What Settings.h says of requests.
struct FrontOptions {
    std::uint64_t maxBodyBytes = 0;
    std::int64_t sessionSeconds = 0;
    bool logRequests = true;
};

/// What a front leads to. Nothing is owned; everything outlives it.
struct FrontParts {
    VoyageService& service;
    Sessions& sessions;
    Storage& storage;
    AccountStorage& accounts;
    Metrics& metrics;
    ServerLog& log;
    std::function<void()> cutShort;  ///< ends what waits for others
};

/// Leads each request to its endpoint, counts it and logs it.
class ServerFront : public HttpService {
  public:
    ServerFront(const FrontParts& parts, const FrontOptions& options);

    std::optional<HttpReply> RefuseHead(const HttpRequest& head) const override;
    std::uint64_t BodyLimit(const HttpRequest& head) const override;
    std::optional<HttpReply> RefuseLarge(const HttpRequest& head) override;
    Place PlaceOf(const HttpRequest& request) override;
    HttpReply Answer(const HttpRequest& request) override;
    void Refused(const HttpRequest& request, int status) override;
    void ConnectionsChanged(std::size_t open) override { parts_.metrics.SetConnections(open); }
    void ConnectionRefused(const std::string& address) override;
    void Failed(const std::string& detail) override;
    void CutShort() override { parts_.cutShort(); }

  private:
    Answered Dispatch(const HttpRequest& request);
    void Note(const HttpRequest& request, const Answered& answered, double seconds);

    FrontParts parts_;
    FrontOptions options_;
    LoginEndpoint logins_;
    ExchangeEndpoint exchange_;
    HealthEndpoint health_;
};

}  // namespace Tarvik::Server

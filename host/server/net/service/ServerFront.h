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
    bool logRequests = true;
};

/// Leads each request to its endpoint, counts it and logs it.
class ServerFront : public HttpService {
  public:
    /// Nothing is owned; everything outlives this. `healthy` says whether the data bases answer.
    ServerFront(LoginEndpoint& logins, ExchangeEndpoint& exchange, std::function<bool()> healthy,
                Metrics& metrics, ServerLog& log, const FrontOptions& options);

    std::optional<HttpReply> RefuseHead(const HttpRequest& head) const override;
    std::uint64_t BodyLimit(const HttpRequest& head) const override;
    Lane LaneOf(const HttpRequest& head) const override;
    HttpReply Answer(const HttpRequest& request) override;
    void Refused(const HttpRequest& request, int status) override;
    void ConnectionsChanged(std::size_t open) override { metrics_.SetConnections(open); }
    void ConnectionRefused(const std::string& address) override;

  private:
    Answered Dispatch(const HttpRequest& request);
    Answered Health();
    void Note(const HttpRequest& request, const Answered& answered, double seconds);

    LoginEndpoint& logins_;
    ExchangeEndpoint& exchange_;
    std::function<bool()> healthy_;
    Metrics& metrics_;
    ServerLog& log_;
    FrontOptions options_;
};

}  // namespace Tarvik::Server

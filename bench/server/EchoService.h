// SPDX-License-Identifier: MIT
#pragma once

#include "bench/server/ChildProcess.h"
#include "host/server/net/http/HttpService.h"

namespace Bench {

/// Answers every request with its body: what the HTTP server costs without what stands behind it.
class EchoService : public Tarvik::Server::HttpService {
  public:
    /// `lane`: where it answers. The pool is where the voyage server answers exchanges.
    explicit EchoService(Tarvik::Server::Lane lane) : lane_(lane) {}

    std::optional<Tarvik::Server::HttpReply> RefuseHead(const Tarvik::Server::HttpRequest&) const override {
        return std::nullopt;
    }
    std::uint64_t BodyLimit(const Tarvik::Server::HttpRequest&) const override { return 1U << 20U; }
    std::optional<Tarvik::Server::HttpReply> RefuseLarge(const Tarvik::Server::HttpRequest&) override {
        return std::nullopt;
    }
    Tarvik::Server::Place PlaceOf(const Tarvik::Server::HttpRequest&) override { return {lane_, {}}; }
    Tarvik::Server::HttpReply Answer(const Tarvik::Server::HttpRequest& request) override {
        return {200, "application/octet-stream", request.body, {}};
    }
    void Refused(const Tarvik::Server::HttpRequest&, int) override {}
    void ConnectionsChanged(std::size_t) override {}
    void ConnectionRefused(const std::string&) override {}
    void Failed(const std::string&) override {}
    void CutShort() override {}

  private:
    Tarvik::Server::Lane lane_;
};

/// Serves echoes until SIGTERM.
void ServeEchoes(Tarvik::Server::Lane lane, const ChildProcess::Ready& ready);

}  // namespace Bench

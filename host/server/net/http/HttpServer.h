// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/server/net/http/HttpService.h"

namespace Tarvik::Server {

/// Certificate chain and key for TLS, both PEM files; both empty for none.
struct TlsFiles {
    std::string certificate;
    std::string key;
};

/// HTTP/1.1 with keep-alive, over TCP or TLS. One thread reads and writes; the threads of the lanes answer,
/// so that slow requests hold up no connection and no others.
class HttpServer {
  public:
    /// `service` is not owned and outlives this.
    HttpServer(HttpService& service, const HttpLimits& limits);
    ~HttpServer();
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// Opens the port (0 for any free one) at a numeric address. False, with an English text in `error`, when
    /// that or the TLS files fail.
    bool Listen(const std::string& address, std::uint16_t port, const TlsFiles& tls, std::string& error);
    /// The port that is open.
    std::uint16_t Port() const;
    /// Lets SIGTERM and SIGINT stop the server; a second signal ends the time for what was begun.
    void StopOnSignals();

    /// Serves until it was stopped and everything that was begun has been answered, or its time is over.
    void Run();
    /// Takes no more connections and requests, and lets those go on that have begun. From any thread.
    void Stop();

  private:
    class Core;
    std::unique_ptr<Core> core_;
};

}  // namespace Tarvik::Server

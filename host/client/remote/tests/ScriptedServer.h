// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <thread>

#include <openssl/ssl.h>

#include "host/server/net/tests/SilentListener.h"

namespace Tarvik::Client {

/// The other end of a scripted server's connection.
class Peer {
  public:
    Peer(int connection, SSL* session) : connection_(connection), session_(session) {}

    /// Sends a text; false when the other side has gone.
    bool operator()(const std::string& text) const;
    /// Waits until the other side has gone, at most so long.
    bool IsGoneWithin(int milliseconds) const;
    /// Sends bytes beside TLS, as somebody on the way could.
    bool Inject(const std::string& bytes) const { return Peer(connection_, nullptr)(bytes); }
    /// Ends the connection as a broken line does: nothing says that the answer is whole.
    void Cut() const;

  private:
    int connection_;
    SSL* session_;
};

/// PEM files that a scripted server shows over TLS; without them it talks plainly.
struct ShownCertificate {
    std::string certificate{};
    std::string key{};
};

/// A server that takes one connection, reads what comes first, and does what the test tells it to. Its script
/// ends when the client has gone, for no test may wait for it longer.
class ScriptedServer {
  public:
    using Script = std::function<void(const Peer&)>;

    explicit ScriptedServer(Script script, const ShownCertificate& shown = {});
    ~ScriptedServer();
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    std::string Url() const;

  private:
    void Serve(const Script& script) const;
    void Talk(const Script& script, int connection) const;

    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context_;
    std::unique_ptr<Server::SilentListener> listener_;
    std::thread thread_;
};

}  // namespace Tarvik::Client

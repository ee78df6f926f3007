// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "host/server/net/service/VoyageServer.h"
#include "host/server/net/tests/RawClient.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

/// The cheapest password hash there is: tests do not guard anything.
inline constexpr PasswordCost kCheap{1, 8192};

/// A whole server on a free port of this machine, with a clock of its own, serving on a thread.
class TestServer {
  public:
    using Change = std::function<void(Settings&)>;

    explicit TestServer(const Change& change = {}, std::unique_ptr<RouteSource> routes = nullptr);
    ~TestServer();
    TestServer(const TestServer&) = delete;
    TestServer& operator=(const TestServer&) = delete;

    std::uint16_t Port() const { return server_->Port(); }
    VoyageServer& Server() { return *server_; }
    std::string Url() const { return "http://127.0.0.1:" + std::to_string(Port()); }
    void AddUser(const std::string& name, const std::string& password);
    void AdvanceSeconds(std::int64_t seconds) { now_ += seconds; }
    /// Asks over a connection of its own.
    RawReply Ask(const std::string& method, const std::string& path, const std::string& body = {},
                 const std::string& token = {});
    RawReply LogIn(const std::string& name, const std::string& password);
    /// The token of a new login; empty when it is refused.
    std::string Token(const std::string& name, const std::string& password);
    /// Waits until the server has ended.
    void Join();
    std::vector<std::string> LogLines();
    /// Connections that the server has taken so far.
    std::uint64_t OpenedConnections() const;

  private:
    TempFolder folder_;
    std::atomic<std::int64_t> now_{1'800'000'000};
    std::mutex logMutex_;
    std::vector<std::string> log_;
    std::unique_ptr<VoyageServer> server_;
    std::thread thread_;
};

/// The body of a login.
std::string LoginBody(const std::string& name, const std::string& password);

/// The bytes of an exchange of the voyage module.
std::string EnvelopeBody(std::uint16_t command, const std::string& text);

/// The text in the bytes of a reply; empty when they are no envelope.
std::string EnvelopeText(const std::string& bytes);

}  // namespace Tarvik::Server

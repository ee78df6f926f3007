// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include <boost/asio/ssl/context.hpp>
#include <boost/asio/thread_pool.hpp>

#include "host/server/net/http/FairLine.h"
#include "host/server/net/http/HttpService.h"

namespace Tarvik::Server {

/// The server's side of TLS with a certificate chain and its key, both PEM files: TLS 1.2 with forward
/// secrecy and authenticated encryption only, and later. Null, with an English text in `error`, when a file
/// cannot be read, the certificate is over or not valid yet, the key is encrypted, or the two do not belong
/// together.
std::unique_ptr<boost::asio::ssl::context> MakeTlsContext(const std::string& certificateFile,
                                                          const std::string& keyFile, std::string& error);

/// The threads of a lane, and who waits for them where requests take turns.
struct HttpLane {
    boost::asio::thread_pool* threads = nullptr;
    std::optional<FairLine> line;  ///< none where the threads' own queue does
};

/// Counts a request among those that are with threads or wait for them, and gives its turn on when it is done
/// or given up.
struct LaneStay {
    LaneStay(HttpLane& inLane, std::size_t& allPending) : lane(inLane), pending(allPending) { ++pending; }
    ~LaneStay() {
        --pending;
        if (hasTurn) {
            lane.line->Leave();
        }
    }
    LaneStay(const LaneStay&) = delete;
    LaneStay& operator=(const LaneStay&) = delete;

    HttpLane& lane;
    std::size_t& pending;
    bool hasTurn = false;
};

/// A connection as the server knows it.
class OpenConnection {
  public:
    virtual ~OpenConnection() = default;
    /// Ends the connection when no request has begun on it.
    virtual void StopIfIdle() = 0;
};

/// What all connections of a server share; belongs to the thread that reads and writes. The service and the
/// threads are not owned; connections use the threads only while the server runs.
class HttpHost {
  public:
    HttpHost(HttpService& service, const HttpLimits& limits) : service_(service), limits_(limits) {}

    HttpService& Service() { return service_; }
    const HttpLimits& Limits() const { return limits_; }
    /// Not for Lane::Inline.
    HttpLane& LaneOf(Lane lane) { return lanes_[static_cast<std::size_t>(lane) - 1]; }
    /// Requests of all lanes that are with threads or wait for them.
    std::size_t& Pending() { return pending_; }
    bool Stopping() const { return stopping_; }
    /// Whether one more connection from the address is within the limits.
    bool HasRoom(const std::string& address) const;

    void Add(OpenConnection* connection, const std::string& address);
    void Remove(OpenConnection* connection, const std::string& address);
    /// Ends idle connections. `whenEmpty` is called when the last one has ended, which may be at once.
    void Stop(std::function<void()> whenEmpty);
    /// The server goes away; nobody waits for the last connection any more.
    void Abandon() { whenEmpty_ = nullptr; }

  private:
    HttpService& service_;
    HttpLimits limits_;
    std::array<HttpLane, kPooledLanes> lanes_;
    std::size_t pending_ = 0;
    bool stopping_ = false;
    std::set<OpenConnection*> open_;
    std::map<std::string, std::size_t> perAddress_;
    std::function<void()> whenEmpty_;
};

}  // namespace Tarvik::Server

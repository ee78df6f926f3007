// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Tarvik::Server {

/// What the HTTP server grants its clients.
struct HttpLimits {
    std::size_t connections = 1000;
    std::size_t workers = 2;                   ///< threads for exchanges
    std::size_t queue = 1000;                  ///< requests that may wait for or be in each pool
    std::chrono::milliseconds idle{60000};     ///< a connection may be silent for between two requests
    std::chrono::milliseconds request{30000};  ///< for reading a request, and for writing a reply
    std::chrono::milliseconds stop{20000};     ///< for what was begun when the server is told to stop
};

/// One request as the service sees it.
struct HttpRequest {
    std::string method;
    std::string target;         ///< path, and a query if there is one
    std::string authorization;  ///< the field as it stands, empty when there is none
    std::string body;
    std::string address;  ///< of the peer, without its port
};

/// One reply. The server adds length, connection and server fields.
struct HttpReply {
    int status = 200;
    std::string contentType;
    std::string body;
    std::vector<std::pair<std::string, std::string>> fields;  ///< further fields by name
};

/// Where a request is answered: at once on the thread that reads and writes, or in one of the two pools.
enum class Lane { Inline, Work, Login };

/// What stands behind the HTTP server.
class HttpService {
  public:
    virtual ~HttpService() = default;

    /// Looks at a request of which only the head was read. A reply refuses it without reading its body.
    virtual std::optional<HttpReply> RefuseHead(const HttpRequest& head) const = 0;
    /// Most bytes of body that this request may have.
    virtual std::uint64_t BodyLimit(const HttpRequest& head) const = 0;
    virtual Lane LaneOf(const HttpRequest& head) const = 0;
    /// Answers a whole request. Called from several threads at once; never throws.
    virtual HttpReply Answer(const HttpRequest& request) = 0;

    /// Told of every reply that the server gave without asking Answer: refused heads, malformed or oversized
    /// requests, a full queue. Called on the thread that reads and writes.
    virtual void Refused(const HttpRequest& request, int status) = 0;
    /// Told how many connections are open now.
    virtual void ConnectionsChanged(std::size_t open) = 0;
    /// Told of a connection that was closed because there were too many.
    virtual void ConnectionRefused(const std::string& address) = 0;
};

}  // namespace Tarvik::Server

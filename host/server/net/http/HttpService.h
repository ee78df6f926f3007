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

/// What the HTTP server grants its clients; Settings.h has the usual numbers.
struct HttpLimits {
    std::size_t connections = 0;
    std::size_t connectionsPerAddress = 0;  ///< of IPv6: its first 64 bits; 0 for no limit
    std::size_t workers = 1;                ///< threads that read
    std::size_t writers = 1;                ///< threads that change
    std::size_t queue = 0;                  ///< requests that may be with threads or wait for them
    std::chrono::milliseconds idle{};       ///< a connection may be silent for between two requests
    std::chrono::milliseconds request{};    ///< for reading a request, and for writing a reply
    std::chrono::milliseconds stop{};       ///< for what was begun when the server is told to stop
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

/// Where a request is answered: at once on the thread that reads and writes, or by threads of its lane, so
/// that who waits for a lock, a password hash or a long search keeps no thread from the others.
enum class Lane { Inline, Read, Write, Route, Login };
inline constexpr std::size_t kPooledLanes = 4;

/// A lane, and whose turn the request counts as where requests take turns (routes and logins).
struct Place {
    Lane lane = Lane::Inline;
    std::string turn;
};

/// What stands behind the HTTP server.
class HttpService {
  public:
    virtual ~HttpService() = default;

    /// Looks at a request of which only the head was read. A reply refuses it without reading its body.
    virtual std::optional<HttpReply> RefuseHead(const HttpRequest& head) const = 0;
    /// Most bytes of body that this request may have.
    virtual std::uint64_t BodyLimit(const HttpRequest& head) const = 0;
    /// Looks once more before a large body is read, and may ask who sends it. Called on a thread of
    /// Lane::Read.
    virtual std::optional<HttpReply> RefuseLarge(const HttpRequest& head) = 0;
    /// Where a whole request is answered.
    virtual Place PlaceOf(const HttpRequest& request) = 0;
    /// Answers a whole request. Called from several threads at once; never throws.
    virtual HttpReply Answer(const HttpRequest& request) = 0;

    /// Told of every reply that the server gave without asking Answer: refused heads, malformed or oversized
    /// requests, a full lane. Called on the thread that reads and writes.
    virtual void Refused(const HttpRequest& request, int status) = 0;
    /// Told how many connections are open now.
    virtual void ConnectionsChanged(std::size_t open) = 0;
    /// Told of a connection that was closed because there were too many.
    virtual void ConnectionRefused(const std::string& address) = 0;
    /// Told of what ended one connection, and nothing else, although nothing should have.
    virtual void Failed(const std::string& detail) = 0;
    /// Told when the time for what was begun is nearly over: who waits for others is to give up.
    virtual void CutShort() = 0;
};

}  // namespace Tarvik::Server

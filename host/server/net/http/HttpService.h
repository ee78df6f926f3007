// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "host/server/net/http/HttpMessage.h"

namespace Tarvik::Server {

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

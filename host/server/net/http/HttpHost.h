// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <utility>

#include <boost/asio/thread_pool.hpp>

#include "host/server/net/http/HttpService.h"

namespace Tarvik::Server {

/// Threads that answer requests, and how many requests are with them or wait for them. The count belongs to
/// the thread that reads and writes.
struct HttpPool {
    explicit HttpPool(std::size_t count) : threads(count) {}

    std::size_t pending = 0;
    boost::asio::thread_pool threads;
};

/// A connection as the server knows it.
class OpenConnection {
  public:
    virtual ~OpenConnection() = default;
    /// Ends the connection when no request has begun on it.
    virtual void StopIfIdle() = 0;
};

/// What all connections of a server share; belongs to the thread that reads and writes. The service and the
/// pools are not owned; connections use the pools only while the server runs.
class HttpHost {
  public:
    HttpHost(HttpService& service, const HttpLimits& limits, HttpPool& work, HttpPool& login)
        : service_(service), limits_(limits), work_(work), login_(login) {}

    HttpService& Service() { return service_; }
    const HttpLimits& Limits() const { return limits_; }
    HttpPool& Pool(Lane lane) { return lane == Lane::Login ? login_ : work_; }
    bool Stopping() const { return stopping_; }
    std::size_t OpenCount() const { return open_.size(); }

    void Add(OpenConnection* connection) {
        open_.insert(connection);
        service_.ConnectionsChanged(open_.size());
    }
    void Remove(OpenConnection* connection) {
        open_.erase(connection);
        service_.ConnectionsChanged(open_.size());
        if (whenEmpty_ && open_.empty()) {
            whenEmpty_();
        }
    }
    /// Ends idle connections. `whenEmpty` is called when the last one has ended, which may be at once.
    void Stop(std::function<void()> whenEmpty) {
        stopping_ = true;
        whenEmpty_ = std::move(whenEmpty);
        for (OpenConnection* connection : open_) {
            connection->StopIfIdle();
        }
        if (open_.empty()) {
            whenEmpty_();
        }
    }
    /// The server goes away; nobody waits for the last connection any more.
    void Abandon() { whenEmpty_ = nullptr; }

  private:
    HttpService& service_;
    HttpLimits limits_;
    HttpPool& work_;
    HttpPool& login_;
    bool stopping_ = false;
    std::set<OpenConnection*> open_;
    std::function<void()> whenEmpty_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include <boost/asio/thread_pool.hpp>

#include "host/server/net/http/HttpHost.h"

namespace Tarvik::Server {

/// Logins that may wait: a hash takes a tenth of a second or less, and who waits longer is better told.
inline constexpr std::size_t kMostLogins = 256;

/// The threads of all lanes. Routes have threads of their own, so that a long search keeps nobody from
/// loading; logins have one, since a password hash takes much memory.
class HttpThreads {
  public:
    explicit HttpThreads(HttpHost& host)
        : routes_(std::max<std::size_t>(1, host.Limits().workers / 2)),
          pools_{{{host.Limits().workers}, {host.Limits().writers}, {routes_}, {1}}} {
        for (const Lane lane : {Lane::Read, Lane::Write, Lane::Route, Lane::Login}) {
            host.LaneOf(lane).threads = &pools_[static_cast<std::size_t>(lane) - 1].threads;
        }
        host.LaneOf(Lane::Route).line.emplace(routes_, host.Limits().queue / 2);
        host.LaneOf(Lane::Login).line.emplace(1, kMostLogins);
    }

    void Stop() {
        for (Pool& pool : pools_) {
            pool.threads.stop();
        }
    }
    void Join() {
        for (Pool& pool : pools_) {
            pool.threads.join();
        }
    }

  private:
    struct Pool {
        Pool(std::size_t count) : threads(count) {}
        boost::asio::thread_pool threads;
    };

    std::size_t routes_;
    std::array<Pool, kPooledLanes> pools_;
};

}  // namespace Tarvik::Server

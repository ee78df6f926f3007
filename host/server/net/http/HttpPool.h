// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <boost/asio/thread_pool.hpp>

namespace Tarvik::Server {

/// Threads that answer requests, and how many requests are with them or wait for them. The count belongs to
/// the thread that reads and writes.
struct HttpPool {
    explicit HttpPool(std::size_t count) : threads(count) {}

    std::size_t pending = 0;
    boost::asio::thread_pool threads;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>

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

}  // namespace Tarvik::Server

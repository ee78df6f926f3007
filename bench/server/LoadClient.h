// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Bench {

/// What a load brought.
struct LoadResult {
    std::size_t requests = 0;  ///< all that were answered
    double requestsPerSecond = 0;
    double p50Ms = 0;
    double p99Ms = 0;
    std::size_t replyBytes = 0;  ///< mean of the replies' bodies
};

/// How the connections speak.
enum class Speech { Plain, Tls };

/// Connections that each send the requests in turn and wait for every reply, on one thread of this process.
/// Throws when a reply is not of status 200, or refuses. The first quarter of the time is not counted.
LoadResult RunLoad(std::uint16_t port, const std::vector<std::string>& requests, int connections,
                   std::chrono::milliseconds time, Speech speech = Speech::Plain);

}  // namespace Bench

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace Tarvik::Server {

// The server's times are seconds since 1970-01-01 00:00:00 UTC: dates of remarks, ends of sessions, the log.

/// Gives the present time in these seconds.
using ServerClock = std::function<std::int64_t()>;

/// The system clock's time.
std::int64_t SystemSeconds();

/// A time as "2026-11-21T07:30:00Z".
std::string UtcText(std::int64_t seconds);

}  // namespace Tarvik::Server

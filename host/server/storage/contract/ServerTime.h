// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <utility>

namespace Tarvik::Server {

// The server's times are seconds since 1970-01-01 00:00:00 UTC: dates of remarks, ends of sessions, the log.

/// Gives the present time in these seconds.
using ServerClock = std::function<std::int64_t()>;

/// The system clock's time.
std::int64_t SystemSeconds();

/// A clock that follows another one forward and never back: while that one is behind, it goes on as a steady
/// one does. Sessions and waits for logins are measured by it, so that a system clock that is set back
/// prolongs none. Safe to call from any thread.
class ForwardClock {
  public:
    /// `steady` counts seconds from any moment.
    ForwardClock(ServerClock followed, ServerClock steady)
        : followed_(std::move(followed)), steady_(std::move(steady)) {}

    std::int64_t Now();

  private:
    ServerClock followed_;
    ServerClock steady_;
    std::mutex mutex_;
    std::int64_t last_ = 0;
    std::int64_t lastSteady_ = 0;
};

/// The system clock's time as this process's ForwardClock has it.
std::int64_t ForwardSeconds();

/// A time as "2026-11-21T07:30:00Z".
std::string UtcText(std::int64_t seconds);

}  // namespace Tarvik::Server

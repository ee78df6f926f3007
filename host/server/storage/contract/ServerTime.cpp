// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/ServerTime.h"

#include <algorithm>
#include <chrono>
#include <ctime>

#include <fmt/format.h>

namespace Tarvik::Server {

std::int64_t SystemSeconds() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

std::int64_t ForwardClock::Now() {
    const std::scoped_lock lock(mutex_);
    const std::int64_t steady = steady_();
    last_ = std::max(followed_(), last_ + steady - lastSteady_);
    lastSteady_ = steady;
    return last_;
}

std::int64_t ForwardSeconds() {
    static ForwardClock clock(SystemSeconds, [] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        return std::int64_t{std::chrono::duration_cast<std::chrono::seconds>(now).count()};
    });
    return clock.Now();
}

std::string UtcText(std::int64_t seconds) {
    const std::time_t time = seconds;
    std::tm parts{};
    gmtime_r(&time, &parts);
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", parts.tm_year + 1900, parts.tm_mon + 1,
                       parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec);
}

}  // namespace Tarvik::Server

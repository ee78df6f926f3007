// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/ServerTime.h"

#include <chrono>
#include <ctime>

#include <fmt/format.h>

namespace Tarvik::Server {

std::int64_t SystemSeconds() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

std::string UtcText(std::int64_t seconds) {
    const std::time_t time = seconds;
    std::tm parts{};
    gmtime_r(&time, &parts);
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", parts.tm_year + 1900, parts.tm_mon + 1,
                       parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec);
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/server/net/log/ServerLog.h"

#include <chrono>
#include <cstdio>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "host/server/storage/contract/ServerTime.h"

namespace Tarvik::Server {

namespace {

const char* NameOf(LogLevel level) {
    switch (level) {
        case LogLevel::Info:
            return "info";
        case LogLevel::Warning:
            return "warning";
        case LogLevel::Error:
            return "error";
    }
    return "";
}

std::int64_t SystemMilliseconds() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace

ServerLog::ServerLog(Sink sink, Clock clock) : sink_(std::move(sink)), clock_(std::move(clock)) {}

ServerLog ServerLog::ToStandardError() {
    return {[](const std::string& line) { std::fputs((line + "\n").c_str(), stderr); }, SystemMilliseconds};
}

ServerLog ServerLog::ToSink(Sink sink) {
    return {std::move(sink), SystemMilliseconds};
}

void ServerLog::Write(LogLevel level, std::string_view event, std::initializer_list<Field> fields) {
    const std::int64_t now = clock_();
    std::string time = UtcText(now / 1000);
    time.insert(time.size() - 1, fmt::format(".{:03}", now % 1000));
    nlohmann::ordered_json line = {{"time", time}, {"level", NameOf(level)}, {"event", event}};
    for (const auto& [name, value] : fields) {
        if (!value.empty()) {
            line[std::string(name)] = value;
        }
    }
    const std::string text = line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    const std::scoped_lock lock(mutex_);
    sink_(text);
}

}  // namespace Tarvik::Server

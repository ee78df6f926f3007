// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

namespace Tarvik::Server {

enum class LogLevel { Info, Warning, Error };

/// Writes events as one JSON object a line: `time` (UTC), `level`, `event`, then the event's own fields that
/// are not empty.
/// Never give it passwords, tokens or texts of requests. Safe to call from any thread.
class ServerLog {
  public:
    using Field = std::pair<std::string_view, std::string>;
    /// Takes one whole line without its end.
    using Sink = std::function<void(const std::string&)>;
    /// Gives the present time in milliseconds since 1970-01-01 00:00:00 UTC.
    using Clock = std::function<std::int64_t()>;

    ServerLog(Sink sink, Clock clock);
    /// The log of the program: standard error, the system's clock.
    static ServerLog ToStandardError();
    /// A log with the system's clock.
    static ServerLog ToSink(Sink sink);

    void Write(LogLevel level, std::string_view event, std::initializer_list<Field> fields = {});

  private:
    Sink sink_;
    Clock clock_;
    std::mutex mutex_;
};

}  // namespace Tarvik::Server

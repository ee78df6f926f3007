// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Util {

/// How grave a line is.
enum class LogLevel { Debug, Info, Warning, Error };

/// Takes one line of the SDK's or the host's log; may be called on any thread.
using LogSink = std::function<void(LogLevel level, const std::string& text)>;

/// Hands a line to the sink in force; without one it is dropped.
TARVIK_API void Log(LogLevel level, const std::string& text);
/// Puts a sink in force; an empty function makes the log silent again.
TARVIK_API void SetLogSink(LogSink sink);

}  // namespace Tarvik::Util

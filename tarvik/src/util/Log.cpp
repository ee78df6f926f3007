// SPDX-License-Identifier: MIT
#include <mutex>
#include <utility>

#include <tarvik/util/Log.h>

namespace Tarvik::Util {

namespace {

struct SinkHolder {
    std::mutex mutex;
    LogSink sink;
};

// Never destroyed, so that static destructors of other libraries may still log.
SinkHolder& Holder() {
    static auto* holder = new SinkHolder;
    return *holder;
}

}  // namespace

void Log(LogLevel level, const std::string& text) {
    LogSink sink;
    {
        std::lock_guard lock(Holder().mutex);
        sink = Holder().sink;
    }
    if (sink) {
        sink(level, text);
    }
}

void SetLogSink(LogSink sink) {
    std::lock_guard lock(Holder().mutex);
    Holder().sink = std::move(sink);
}

}  // namespace Tarvik::Util

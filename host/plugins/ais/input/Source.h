// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "host/plugins/ais/input/InputAddress.h"

namespace boost::asio {
class io_context;
}

namespace Tarvik::Ais {

/// Takes what a source hears, on the thread that runs the source.
struct SourceTaker {
    std::function<void(std::string_view bytes)> bytes;
    std::function<void()> began;  ///< a new stream begins: what was cut is over
};

/// How a source is.
struct SourceState {
    bool open = false;      ///< bytes may come
    bool ended = false;     ///< a file was read to its end
    unsigned openings = 0;  ///< how often it was opened
    std::string error;      ///< why it failed last; empty while all is well
};

/// One input at work. All operations are called on the thread that runs the io_context; none waits.
class Source {
  public:
    virtual ~Source() = default;
    /// Does what is due at `now`, milliseconds of a clock that does not go back: call some times a second.
    virtual void Tick(std::int64_t now) = 0;
    /// Ends it; nothing more is heard.
    virtual void Close() = 0;
    virtual SourceState State() const = 0;

    /// The source of an address; it runs on `io` and begins with its first Tick.
    static std::shared_ptr<Source> Make(boost::asio::io_context& io, const InputAddress& address,
                                        SourceTaker taker);
};

}  // namespace Tarvik::Ais

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/plugins/ais/core/Decoder.h"
#include "host/plugins/ais/input/InputAddress.h"
#include "host/plugins/ais/input/Source.h"
#include "host/plugins/ais/store/Traffic.h"

namespace Tarvik::Ais {

/// How the inputs are, all together.
struct FeedStatus {
    std::uint64_t perMinute = 0;  ///< messages in the last minute
    std::uint64_t messages = 0;   ///< since the inputs were set
    std::uint64_t faults = 0;     ///< lines that were bad
    int inputs = 0;
    int open = 0;           ///< inputs that are connected, or read
    unsigned openings = 0;  ///< how often inputs were opened, all together
    std::string error;      ///< the last one, with the input that it is of; empty while all is well
};

/// Runs inputs on a thread of its own: bytes, sentences, messages, traffic. The caller's thread never waits
/// for an input.
class Feed {
  public:
    /// Seconds after 1970, UTC; asked on the feed's thread.
    using UtcClock = std::function<std::int64_t()>;

    /// The traffic outlives the feed.
    Feed(Traffic& traffic, UtcClock utcNow);
    ~Feed();
    Feed(const Feed&) = delete;
    Feed& operator=(const Feed&) = delete;

    /// Takes these inputs in place of those before. Each is the address and how a person wrote it.
    void SetInputs(const std::vector<std::pair<InputAddress, std::string>>& inputs);
    FeedStatus Status() const;
    /// Called on the feed's thread after each turn in which messages came; set before SetInputs.
    void OnMessages(std::function<void()> told);

  private:
    class Worker;
    std::unique_ptr<Worker> worker_;
};

}  // namespace Tarvik::Ais

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "host/server/storage/contract/RemarkStorage.h"

namespace Tarvik::Server {

/// Gives the present time in seconds since 1970-01-01 00:00:00 UTC.
using ServerClock = std::function<std::int64_t()>;

/// The remarks of one object. Operations give the reply of a success and throw Refusal.
class RemarkCommands {
  public:
    RemarkCommands(RemarkStorage& storage, ServerClock clock) : storage_(storage), clock_(std::move(clock)) {}

    /// Command 9 of the remark module: `optype` 1 add, 2 delete one, 3 change, 4 list.
    std::string Handle(const std::string& user, std::string_view text);

  private:
    RemarkStorage& storage_;
    ServerClock clock_;
};

}  // namespace Tarvik::Server

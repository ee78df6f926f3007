// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "host/server/storage/contract/ScheduleStorage.h"

namespace Tarvik::Server {

/// Port calls of a voyage. Operations give the reply of a success and throw Refusal.
class PortCallCommands {
  public:
    explicit PortCallCommands(ScheduleStorage& storage) : storage_(storage) {}

    /// Command 10: all port calls in the order of their numbers.
    std::string Load(const std::string& user, std::string_view text);
    /// Command 11: replaces all port calls.
    std::string Replace(const std::string& user, std::string_view text);

  private:
    ScheduleStorage& storage_;
};

}  // namespace Tarvik::Server

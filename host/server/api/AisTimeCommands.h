// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "host/server/storage/contract/ScheduleStorage.h"

namespace Tarvik::Server {

/// AIS modification times of a voyage. Operations give the reply of a success and throw Refusal.
class AisTimeCommands {
  public:
    explicit AisTimeCommands(ScheduleStorage& storage) : storage_(storage) {}

    /// Command 12: all times in the order of their addition.
    std::string Load(const std::string& user, std::string_view text);
    /// Command 13: adds a time.
    std::string Add(const std::string& user, std::string_view text);

  private:
    ScheduleStorage& storage_;
};

}  // namespace Tarvik::Server

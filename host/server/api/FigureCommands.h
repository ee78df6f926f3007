// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "host/server/storage/contract/CatalogStorage.h"

namespace Tarvik::Server {

/// The consumption figures of a voyage. Operations give the reply of a success and throw Refusal.
class FigureCommands {
  public:
    explicit FigureCommands(CatalogStorage& storage) : storage_(storage) {}

    /// Command 6: stores all seven figures, in kg/day.
    std::string Store(const std::string& user, std::string_view text);

  private:
    CatalogStorage& storage_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "host/server/storage/contract/CatalogStorage.h"

namespace Tarvik::Server {

/// The changes of voyages. Operations give the reply of a success and throw Refusal.
class VoyageCommands {
  public:
    explicit VoyageCommands(CatalogStorage& storage) : storage_(storage) {}

    /// Command 5: `type` 0 create, 1 rename, 2 to the recycle bin, 3 recover, 4 destroy, 5 change vessel, 6
    /// route display, 7 AIS tracing.
    std::string Change(const std::string& user, std::string_view text);

  private:
    CatalogStorage& storage_;
};

}  // namespace Tarvik::Server

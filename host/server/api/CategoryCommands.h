// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "host/server/storage/contract/CatalogStorage.h"

namespace Tarvik::Server {

/// The load of everything and the changes of categories. Operations give the reply of a success and throw
/// Refusal.
class CategoryCommands {
  public:
    explicit CategoryCommands(CatalogStorage& storage) : storage_(storage) {}

    /// Command 3: categories and voyages of the user that the request names, who must be `user`.
    std::string Load(const std::string& user, std::string_view text);
    /// Command 4: `type` 0 create, 1 to the recycle bin, 2 recover, 3 destroy, 4 rename.
    std::string Change(const std::string& user, std::string_view text);

  private:
    CatalogStorage& storage_;
};

}  // namespace Tarvik::Server

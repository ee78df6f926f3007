// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

/// Id of a record that the server has not named yet.
inline constexpr const char* kDefaultId = "1000000";

/// Deletion state of a category or a voyage, as the store and the server hold it.
enum DeletionState : int { InUse = 0, InRecycleBin = 1, Destroyed = 2 };

/// One node of the tree's first level. Its deletion state lives in the store.
struct VoyCategory {
    std::string ci = kDefaultId;
    std::string cn;
    int crk = 0;  ///< 1 when the category has at least one remark
};

}  // namespace Tarvik::Seaplan

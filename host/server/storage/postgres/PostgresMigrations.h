// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

namespace Tarvik::Server {

/// The steps that lead from an empty schema to the present tables; step i leads from version i to version
/// i + 1. A step that was released never changes.
const std::vector<std::string_view>& PostgresMigrations();

}  // namespace Tarvik::Server

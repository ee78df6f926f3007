// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace Tarvik::Server {

inline constexpr std::size_t kLeastPasswordBytes = 8;
inline constexpr std::size_t kMostPasswordBytes = 1024;

/// Whether a text can be a user's name: 1 to 64 letters, digits, ".", "_", "@" or "-" of ASCII.
bool IsUserName(const std::string& text);

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Client {

/// Folder in which the running program lies. What differs by system about it stands in this file alone.
std::string ProgramFolder();

}  // namespace Tarvik::Client

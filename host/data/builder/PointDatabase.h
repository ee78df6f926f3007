// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/data/builder/Sources.h"

namespace Tarvik::Data {

/// Writes the client's table of ports and route points, `t_point`, into a new SQLite file; returns an error
/// text, empty on success. An existing file is replaced.
std::string WritePointDatabase(const std::string& path, const Sources& sources);

}  // namespace Tarvik::Data

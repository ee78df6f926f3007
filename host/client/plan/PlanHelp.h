// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace Tarvik::Client {

/// What `--help` prints. `languages` are the codes that --lang may name.
std::string HelpText(const std::vector<std::string>& languages);

}  // namespace Tarvik::Client

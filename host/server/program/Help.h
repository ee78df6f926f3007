// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Server {

/// What `seaplan-server --help` says: commands, exit codes, every setting with its default.
std::string HelpText();

/// What `seaplan-server --version` says.
std::string VersionText();

}  // namespace Tarvik::Server

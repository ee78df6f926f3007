// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Client {

/// What `--help` prints.
extern const char* const kHelpText;

}  // namespace Tarvik::Client

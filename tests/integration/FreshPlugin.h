// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "tests/integration/TinyHost.h"

namespace Tarvik::Integration {

/// Runs `check` in a process of its own over a bus without names and over a copy of the library `file` that
/// nobody has loaded before. True when the check says so and the process ends as it should.
bool HoldsForFreshPlugin(const std::string& file, const std::function<bool(const LoadedPlugin&)>& check);

}  // namespace Tarvik::Integration

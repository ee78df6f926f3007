// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <tarvik/Export.h>

namespace Tarvik::Core {

/// Blocks that cross the bus and change owner are made and freed by this pair, so that no two run-time
/// libraries meet.
TARVIK_API void* AllocateBusBlock(std::size_t bytes);
/// Frees a block of AllocateBusBlock; null is allowed.
TARVIK_API void FreeBusBlock(void* block);

}  // namespace Tarvik::Core

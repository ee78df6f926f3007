// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <tarvik/Export.h>

/// What stands at the ends of the bus: owners of names, and memory that changes owner.
namespace Tarvik::Core {

/// Base of everything that owns services or events on the bus.
class TARVIK_API TObject {
  public:
    virtual ~TObject();
};

/// Makes a block of at least `bytes` bytes, not initialised; null when there is no memory. Blocks that cross
/// the bus and change owner are made and freed by this pair, so that no two run-time libraries meet. The bus
/// contract says where that is so.
TARVIK_API void* AllocateBusBlock(std::size_t bytes);
/// Frees a block of AllocateBusBlock; null is allowed. No destructor runs.
TARVIK_API void FreeBusBlock(void* block);

}  // namespace Tarvik::Core

// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/Export.h>

namespace Tarvik::Core {

/// What tests may do with the bus and nobody else: not installed, included by tests and what serves them
/// alone.
struct TARVIK_API BusTesting {
    /// Forgets every name and binding of the bus; what was bound need not be unbound any more.
    static void ForgetAll();
    /// Blocks made by AllocateBusBlock and not yet freed.
    static long LiveBlocks();
};

}  // namespace Tarvik::Core

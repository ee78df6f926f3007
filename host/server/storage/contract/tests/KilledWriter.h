// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/contract/Storage.h"

#include <functional>
#include <memory>
#include <random>

namespace Tarvik::Server {

/// What a writing process said before it was killed.
struct WriterWords {
    int begun = 0;        ///< writes that it set out to do
    int confirmed = 0;    ///< writes that the storage has confirmed
    bool killed = false;  ///< false when it ended by itself
};

/// Opens the storage within the writing process; null when that fails.
using StorageOpener = std::function<std::unique_ptr<Storage>()>;

/// Starts a process that runs the writes of the WriteScript from `number` on, and kills it at a random moment
/// behind its `writes`-th write.
WriterWords WriteAndKill(const StorageOpener& open, int number, int writes, std::mt19937& random);

}  // namespace Tarvik::Server

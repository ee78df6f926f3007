// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include "host/server/storage/contract/Storage.h"

namespace Tarvik::Server {

/// Opens the storage; null when that fails.
using StorageOpener = std::function<std::unique_ptr<Storage>()>;

/// Kills writing processes at random moments, at least 200 writes in all, and checks after each that every
/// confirmed change is stored and the last one wholly or not at all. `settled` returns when nothing of the
/// dead process is on its way any more.
void ExpectKilledWritersLeaveNoHalfChange(const StorageOpener& open, const std::function<void()>& settled);

/// The same with many that write at the same time in each process: all that was confirmed to any of them is
/// there.
void ExpectKilledGroupsLoseNothingConfirmed(const StorageOpener& open, const std::function<void()>& settled);

}  // namespace Tarvik::Server

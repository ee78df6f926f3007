// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

/// Whether the step is one of use to bin, bin to use, bin to destroyed; `unknown` is told of what is in no
/// state.
inline Status CheckMove(std::optional<DeletionState> from, DeletionState to, FaultReason unknown) {
    if (!from) {
        return unknown;
    }
    if (to == DeletionState::InBin) {
        return *from == DeletionState::InUse ? Status(Done{}) : Status(FaultReason::NotInUse);
    }
    return *from == DeletionState::InBin ? Status(Done{}) : Status(FaultReason::NotInBin);
}

}  // namespace Tarvik::Server

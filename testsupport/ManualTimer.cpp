// SPDX-License-Identifier: MIT
#include "testsupport/ManualTimer.h"

namespace Tarvik::TestSupport {

unsigned ManualTimer::Start(int periodMs, std::function<void()> callback) {
    lastPeriod_ = periodMs;
    running_[nextId_] = std::move(callback);
    return nextId_++;
}

void ManualTimer::Fire() {
    const auto due = running_;
    for (const auto& [id, callback] : due) {
        callback();
    }
}

}  // namespace Tarvik::TestSupport

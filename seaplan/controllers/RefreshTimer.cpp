// SPDX-License-Identifier: MIT
#include "seaplan/controllers/RefreshTimer.h"

#include <tarvik/util/Clock.h>

namespace Tarvik::Seaplan {

namespace {

constexpr int kPeriodMs = 100000;

}  // namespace

void RefreshTimer::Start() {
    Util::TimerService* timers = Util::TimerService::Current();
    if (id_ == 0 && timers != nullptr) {
        id_ = timers->Start(kPeriodMs, work_);
    }
}

void RefreshTimer::Stop() {
    Util::TimerService* timers = Util::TimerService::Current();
    if (id_ != 0 && timers != nullptr) {
        timers->Stop(id_);
    }
    id_ = 0;
}

}  // namespace Tarvik::Seaplan

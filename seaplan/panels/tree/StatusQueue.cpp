// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/StatusQueue.h"

#include <chrono>

#include <tarvik/util/Clock.h>

namespace Tarvik::Seaplan {

namespace {

/// A person takes this for at once, with the rows' being drawn behind it; whatever lasts longer gets the busy
/// sign.
constexpr int kFirstPieceMs = 80;
/// Pieces behind it, which must not be felt, and the rest for other events between them.
constexpr int kPieceMs = 50;
constexpr int kPauseMs = 20;

}  // namespace

void StatusQueue::Add(const std::string& vi, TreeRow row) {
    if (known_.insert(vi).second) {
        waiting_.emplace_back(vi, row);
    }
}

/// At least one voyage, so that a slow server does not keep the rest waiting for ever.
void StatusQueue::DoFor(int milliseconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    do {
        const auto [vi, row] = waiting_.front();
        waiting_.pop_front();
        known_.erase(vi);
        work_(vi, row);
    } while (!waiting_.empty() && std::chrono::steady_clock::now() < end);
}

void StatusQueue::Run() {
    if (waiting_.empty() || timer_ != 0) {
        return;
    }
    DoFor(kFirstPieceMs);
    Util::TimerService* timers = Util::TimerService::Current();
    if (timers != nullptr && !waiting_.empty()) {
        sign_.SetBusy(true);
        timer_ = timers->Start(kPauseMs, [this] { Tick(); });
    }
    while (timers == nullptr && !waiting_.empty()) {
        DoFor(kPieceMs);
    }
}

void StatusQueue::Tick() {
    if (!waiting_.empty()) {
        DoFor(kPieceMs);
    }
    if (waiting_.empty()) {
        Stop();
    }
}

void StatusQueue::Stop() {
    if (timer_ != 0) {
        StopTimer();
        sign_.SetBusy(false);
    }
}

void StatusQueue::StopTimer() {
    Util::TimerService* timers = timer_ != 0 ? Util::TimerService::Current() : nullptr;
    if (timers != nullptr) {
        timers->Stop(timer_);
    }
    timer_ = 0;
}

}  // namespace Tarvik::Seaplan

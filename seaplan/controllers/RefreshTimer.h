// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

namespace Tarvik::Seaplan {

/// The host's timer that keeps vessels and drawn voyages fresh, every 100 seconds while it runs. Without
/// timers of the host nothing starts. It ends with its owner.
class RefreshTimer {
  public:
    explicit RefreshTimer(std::function<void()> work) : work_(std::move(work)) {}
    ~RefreshTimer() { Stop(); }
    RefreshTimer(const RefreshTimer&) = delete;
    RefreshTimer& operator=(const RefreshTimer&) = delete;

    /// One timer at most; a second call changes nothing.
    void Start();
    void Stop();

  private:
    std::function<void()> work_;
    unsigned id_ = 0;
};

}  // namespace Tarvik::Seaplan

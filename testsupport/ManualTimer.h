// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>

#include <tarvik/util/Clock.h>

namespace Tarvik::TestSupport {

/// Timers that fire when the test says so. In force from its making to its end.
class ManualTimer final : public Util::TimerService {
  public:
    ManualTimer() { Set(this); }
    ~ManualTimer() override { Set(nullptr); }
    ManualTimer(const ManualTimer&) = delete;
    ManualTimer& operator=(const ManualTimer&) = delete;

    unsigned Start(int periodMs, std::function<void()> callback) override;
    void Stop(unsigned id) override { running_.erase(id); }
    /// Calls every running timer once.
    void Fire();
    std::size_t Running() const { return running_.size(); }
    /// Period of the timer started last, in ms.
    int LastPeriod() const { return lastPeriod_; }

  private:
    std::map<unsigned, std::function<void()>> running_;
    unsigned nextId_ = 1;
    int lastPeriod_ = 0;
};

}  // namespace Tarvik::TestSupport

// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/util/Clock.h>
#include <tarvik/util/DateTime.h>

namespace Tarvik::TestSupport {

/// A clock that stands until the test moves it. In force from its making to its end; local time is UTC
/// meanwhile.
class ManualClock final : public Util::Clock {
  public:
    /// Stands at 2024-03-01 00:00:00 UTC.
    ManualClock() : zoneBefore_(LocalZone()) {
        Set(this);
        SetLocalZone("UTC");
    }
    ~ManualClock() override {
        Set(nullptr);
        SetLocalZone(zoneBefore_);
    }
    ManualClock(const ManualClock&) = delete;
    ManualClock& operator=(const ManualClock&) = delete;

    std::int64_t NowUtcCsecs() const override { return csecs_; }
    /// Sets the present moment, told in UTC by its six parts.
    // NOLINTNEXTLINE(readability-function-size)
    void SetUtc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
        csecs_ = Util::_datetime_t(second, minute, hour, day, month, year).to_gmt_timer() * 100;
    }
    void AdvanceSeconds(std::int64_t seconds) { csecs_ += seconds * 100; }

  private:
    std::string zoneBefore_;
    std::int64_t csecs_ = INT64_C(170925120000);
};

}  // namespace Tarvik::TestSupport

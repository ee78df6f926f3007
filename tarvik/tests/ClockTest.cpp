// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <ctime>
#include <map>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <tarvik/util/Clock.h>
#include <tarvik/util/DateTime.h>

namespace Tarvik::Util {

namespace {

class FixedClock : public Clock {
  public:
    explicit FixedClock(std::int64_t csecs) : csecs_(csecs) {}
    std::int64_t NowUtcCsecs() const override { return csecs_; }

  private:
    std::int64_t csecs_;
};

class ManualTimers : public TimerService {
  public:
    unsigned Start(int, std::function<void()> callback) override {
        callbacks[++last] = std::move(callback);
        return last;
    }
    void Stop(unsigned id) override { callbacks.erase(id); }
    std::map<unsigned, std::function<void()>> callbacks;
    unsigned last = 0;
};

class ClockTest : public testing::Test {
  protected:
    void TearDown() override {
        Clock::Set(nullptr);
        Clock::SetLocalZone("");
        TimerService::Set(nullptr);
    }
    // 2024-07-01 12:00:00.50 UTC
    FixedClock fixed{171983520050};
};

TEST_F(ClockTest, SystemClockGoesForward) {
    const std::int64_t first = Clock::Current().NowUtcCsecs();
    EXPECT_GT(first, 160000000000);
    EXPECT_LT(first, 1000000000000) << "centiseconds, no milliseconds";
    EXPECT_GE(Clock::Current().NowUtcCsecs(), first);
}

TEST_F(ClockTest, OwnClockAndZoneRulePresentTime) {
    Clock::Set(&fixed);
    EXPECT_EQ(_datetime_t::gmt_now().fmt("%Y-%m-%d %H:%M:%S"), "2024-07-01 12:00:00");
    Clock::SetLocalZone("China Standard Time");
    EXPECT_EQ(Clock::LocalZone(), "China Standard Time");
    EXPECT_EQ(_datetime_t().fmt("%Y-%m-%d %H:%M:%S"), "2024-07-01 20:00:00");
    Clock::SetLocalZone("America/St_Johns");
    EXPECT_EQ(_datetime_t::now().fmt("%H:%M"), "09:30");
}

TEST_F(ClockTest, EmptyZoneIsTheMachines) {
    const char* before = getenv("TZ");
    const std::string saved = before != nullptr ? before : "";
    setenv("TZ", "XYZ-5:30", 1);
    tzset();
    Clock::Set(&fixed);
    EXPECT_EQ(_datetime_t::now().fmt("%H:%M"), "17:30");
    if (before != nullptr) {
        setenv("TZ", saved.c_str(), 1);
    } else {
        unsetenv("TZ");
    }
    tzset();
}

TEST_F(ClockTest, TimerServiceIsNullUntilSet) {
    EXPECT_EQ(TimerService::Current(), nullptr);
    ManualTimers timers;
    TimerService::Set(&timers);
    ASSERT_EQ(TimerService::Current(), &timers);
    int calls = 0;
    const unsigned id = TimerService::Current()->Start(1000, [&calls] { ++calls; });
    timers.callbacks.at(id)();
    TimerService::Current()->Stop(id);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(timers.callbacks.empty());
}

}  // namespace
}  // namespace Tarvik::Util

// SPDX-License-Identifier: MIT
#include <chrono>

#include <tarvik/util/Clock.h>

namespace Tarvik::Util {

namespace {

class SystemClock : public Clock {
  public:
    std::int64_t NowUtcCsecs() const override {
        const auto since = std::chrono::system_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::milliseconds>(since).count() / 10;
    }
};

const Clock* currentClock = nullptr;
TimerService* currentTimers = nullptr;

std::string& Zone() {
    static auto* zone = new std::string;
    return *zone;
}

}  // namespace

Clock::~Clock() = default;

const Clock& Clock::Current() {
    static const auto* systemClock = new SystemClock;
    return currentClock != nullptr ? *currentClock : *systemClock;
}

void Clock::Set(const Clock* clock) {
    currentClock = clock;
}

void Clock::SetLocalZone(const std::string& zone) {
    Zone() = zone;
}

std::string Clock::LocalZone() {
    return Zone();
}

TimerService::~TimerService() = default;

TimerService* TimerService::Current() {
    return currentTimers;
}

void TimerService::Set(TimerService* service) {
    currentTimers = service;
}

}  // namespace Tarvik::Util

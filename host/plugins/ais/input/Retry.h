// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

namespace Tarvik::Ais {

/// When a source that comes and goes is called: at once, and after each failure behind a pause that doubles
/// from one second to a minute. What stays silent for two minutes counts as failed. Times are milliseconds of
/// a clock that does not go back; nothing here waits.
class Retry {
  public:
    static constexpr std::int64_t kFirstPause = 1'000, kLongestPause = 60'000;
    static constexpr std::int64_t kLongestCall = 10'000;      ///< until the other side must have answered
    static constexpr std::int64_t kLongestSilence = 120'000;  ///< of an open source

    enum class State { Waiting, Calling, Open };

    /// Whether a call is due now.
    bool IsDue(std::int64_t now) const { return state_ == State::Waiting && now >= due_; }
    /// Whether a call or a silence has lasted too long.
    bool IsOverdue(std::int64_t now) const {
        return (state_ == State::Calling && now - since_ > kLongestCall) ||
               (state_ == State::Open && now - since_ > kLongestSilence);
    }
    void Called(std::int64_t now) { Go(State::Calling, now); }
    void Opened(std::int64_t now) {
        Go(State::Open, now);
        ++opened_;
    }
    /// Bytes came: the source is good, so the next pause is the first again.
    void Heard(std::int64_t now) {
        since_ = now;
        pause_ = kFirstPause;
        error_.clear();
    }
    void Failed(std::int64_t now, const std::string& error) {
        Go(State::Waiting, now);
        error_ = error;
        due_ = now + pause_;
        pause_ = std::min(pause_ * 2, kLongestPause);
    }
    State Now() const { return state_; }
    /// How often the source was opened.
    unsigned Openings() const { return opened_; }
    /// Why it failed last; empty once it was heard again.
    const std::string& Error() const { return error_; }

  private:
    void Go(State state, std::int64_t now) {
        state_ = state;
        since_ = now;
    }
    State state_ = State::Waiting;
    std::int64_t due_ = 0;
    std::int64_t since_ = 0;
    std::int64_t pause_ = kFirstPause;
    unsigned opened_ = 0;
    std::string error_;
};

}  // namespace Tarvik::Ais

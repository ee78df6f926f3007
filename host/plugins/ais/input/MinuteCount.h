// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <numeric>

namespace Tarvik::Ais {

/// How many things happened in the last minute, counted by seconds. Times are milliseconds of a clock that
/// does not go back.
class MinuteCount {
  public:
    void Add(std::int64_t now, std::uint64_t count) {
        Forget(now);
        counts_[static_cast<std::size_t>(second_ % kSeconds)] += count;
    }
    std::uint64_t At(std::int64_t now) {
        Forget(now);
        return std::accumulate(counts_.begin(), counts_.end(), std::uint64_t{0});
    }

  private:
    static constexpr std::int64_t kSeconds = 60;
    void Forget(std::int64_t now) {
        const std::int64_t second = now / 1000;
        for (std::int64_t i = 0; i < kSeconds && second_ < second; ++i) {
            ++second_;
            counts_[static_cast<std::size_t>(second_ % kSeconds)] = 0;
        }
        second_ = second > second_ ? second : second_;
    }
    std::array<std::uint64_t, kSeconds> counts_{};
    std::int64_t second_ = 0;
};

}  // namespace Tarvik::Ais

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tarvik::Ports {

/// How many typing errors lie between what was typed and the beginning of a word. An error is one character
/// too many, one missing, one wrong, or two neighbours in the wrong order.
class TypingDistance {
  public:
    /// The longest text that can be compared, in characters.
    static constexpr std::size_t kLongest = 64;

    /// `typed` is cut at the longest text.
    explicit TypingDistance(std::u32string_view typed);

    /// Fewest errors between the typed text and any beginning of `text`.
    std::size_t To(std::u32string_view text) const;

  private:
    std::uint64_t PlacesOf(char32_t c) const;

    std::size_t length_;
    std::array<std::uint64_t, 128> ascii_{};                  ///< a bit for each place, by character
    std::vector<std::pair<char32_t, std::uint64_t>> others_;  ///< the same of other characters
};

}  // namespace Tarvik::Ports

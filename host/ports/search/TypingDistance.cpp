// SPDX-License-Identifier: MIT
/// The table of edit distances by columns, a column as bits of one machine word: H. Hyyrö, "A bit-vector
/// algorithm for computing Levenshtein and Damerau edit distances", Nordic Journal of Computing 10 (2003).
/// A dozen operations for each character of the compared text, whatever was typed.
#include "host/ports/search/TypingDistance.h"

#include <algorithm>

namespace Tarvik::Ports {

TypingDistance::TypingDistance(std::u32string_view typed) : length_(std::min(typed.size(), kLongest)) {
    for (std::size_t i = 0; i < length_; ++i) {
        const std::uint64_t place = std::uint64_t{1} << i;
        const char32_t c = typed[i];
        if (c < ascii_.size()) {
            ascii_[c] |= place;
            continue;
        }
        const auto known =
            std::find_if(others_.begin(), others_.end(), [c](const auto& other) { return other.first == c; });
        if (known == others_.end()) {
            others_.emplace_back(c, place);
        } else {
            known->second |= place;
        }
    }
}

std::uint64_t TypingDistance::PlacesOf(char32_t c) const {
    if (c < ascii_.size()) {
        return ascii_[c];
    }
    for (const auto& [other, places] : others_) {
        if (other == c) {
            return places;
        }
    }
    return 0;
}

std::size_t TypingDistance::To(std::u32string_view text) const {
    if (length_ == 0) {
        return 0;
    }
    const std::uint64_t last = std::uint64_t{1} << (length_ - 1);
    // Where the column grows downwards by one, and where it falls by one.
    std::uint64_t grows = ~std::uint64_t{0};
    std::uint64_t falls = 0;
    std::uint64_t even = 0;
    std::uint64_t before = 0;
    std::size_t errors = length_;
    std::size_t fewest = length_;
    for (const char32_t c : text) {
        const std::uint64_t places = PlacesOf(c);
        const std::uint64_t swapped = (((~even) & places) << 1U) & before;
        even = (((places & grows) + grows) ^ grows) | places | falls | swapped;
        std::uint64_t right = falls | ~(even | grows);
        std::uint64_t left = even & grows;
        errors += (right & last) != 0 ? 1 : 0;
        errors -= (left & last) != 0 ? 1 : 0;
        fewest = std::min(fewest, errors);
        right = (right << 1U) | 1U;
        left <<= 1U;
        grows = left | ~(even | right);
        falls = right & even;
        before = places;
    }
    return fewest;
}

}  // namespace Tarvik::Ports

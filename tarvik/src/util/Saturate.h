// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>

namespace Tarvik::Util {

/// The least or greatest 64-bit number.
inline std::int64_t Limit(bool negative) {
    return negative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
}

/// a + b, clamped to 64 bits.
inline std::int64_t SaturatedAdd(std::int64_t a, std::int64_t b) {
    std::int64_t sum = 0;
    return __builtin_add_overflow(a, b, &sum) ? Limit(b < 0) : sum;
}

/// a - b, clamped to 64 bits.
inline std::int64_t SaturatedSubtract(std::int64_t a, std::int64_t b) {
    std::int64_t difference = 0;
    return __builtin_sub_overflow(a, b, &difference) ? Limit(b > 0) : difference;
}

}  // namespace Tarvik::Util

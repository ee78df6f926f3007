// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace Tarvik::Util {

/// Bytes of the well-formed UTF-8 sequence at `at`, 0 for a bad one. The text must end with a zero byte.
inline int Utf8SequenceLength(const char* at) {
    const auto byte = [at](int i) { return static_cast<std::uint8_t>(at[i]); };
    const auto follows = [&](int i) { return (byte(i) & 0xC0) == 0x80; };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead < 0xC2) return 0;
    if (lead < 0xE0) return follows(1) ? 2 : 0;
    if (lead < 0xF0) {
        // No overlong form, no surrogate.
        if (!follows(1) || !follows(2)) return 0;
        if ((lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F)) return 0;
        return 3;
    }
    if (lead > 0xF4 || !follows(1) || !follows(2) || !follows(3)) return 0;
    if ((lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F)) return 0;
    return 4;
}

}  // namespace Tarvik::Util

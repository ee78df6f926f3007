// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

/// Reading of single tokens of JSON. Every text ends with zero bytes, at least as many as a block holds.
namespace Tarvik::Util::Scan {

/// What a byte may be to the parser.
enum : std::uint8_t { kSpace = 1, kDigit = 2, kWordStart = 4, kTextStop = 8 };

constexpr std::array<std::uint8_t, 256> MakeClasses() {
    std::array<std::uint8_t, 256> classes{};
    for (const char c : {' ', '\t', '\n', '\r'}) {
        classes[static_cast<std::uint8_t>(c)] |= kSpace;
    }
    for (int c = '0'; c <= '9'; ++c) {
        classes[static_cast<std::size_t>(c)] |= kDigit;
    }
    for (int c = 'a'; c <= 'z'; ++c) {
        classes[static_cast<std::size_t>(c)] |= kWordStart;
    }
    for (int c = 'A'; c <= 'Z'; ++c) {
        classes[static_cast<std::size_t>(c)] |= kWordStart;
    }
    for (const char c : {'_', '$'}) {
        classes[static_cast<std::uint8_t>(c)] |= kWordStart;
    }
    for (std::size_t c = 128; c < 256; ++c) {
        classes[c] |= kTextStop;
    }
    for (const char c : {'"', '\\', '\0'}) {
        classes[static_cast<std::uint8_t>(c)] |= kTextStop;
    }
    return classes;
}

inline constexpr std::array<std::uint8_t, 256> kClasses = MakeClasses();

inline bool Is(char c, int classes) {
    return (kClasses[static_cast<std::uint8_t>(c)] & classes) != 0;
}

inline const char* SkipSpace(const char* at) {
    while (Is(*at, kSpace)) {
        ++at;
    }
    return at;
}

/// First quote, backslash, zero or non-ASCII byte.
inline const char* FindTextStop(const char* at) {
#if defined(__SSE2__)
    const __m128i quote = _mm_set1_epi8('"');
    const __m128i backslash = _mm_set1_epi8('\\');
    for (;; at += 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i hits =
            _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(block, quote), _mm_cmpeq_epi8(block, backslash)),
                         _mm_or_si128(_mm_cmpeq_epi8(block, _mm_setzero_si128()), block));
        const int mask = _mm_movemask_epi8(hits);
        if (mask != 0) {
            return at + __builtin_ctz(static_cast<unsigned>(mask));
        }
    }
#else
    while (!Is(*at, kTextStop)) {
        ++at;
    }
    return at;
#endif
}

inline int HexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Four hexadecimal digits, or -1.
inline int HexUnit(const char* at) {
    int unit = 0;
    for (int i = 0; i < 4; ++i) {
        const int digit = HexDigit(at[i]);
        if (digit < 0) {
            return -1;
        }
        unit = unit * 16 + digit;
    }
    return unit;
}

inline void AppendUtf8(std::string& out, std::uint32_t c) {
    const auto add = [&out](std::uint32_t byte) { out += static_cast<char>(byte); };
    if (c < 0x80) {
        return add(c);
    }
    if (c < 0x800) {
        add(0xC0 | c >> 6);
    } else {
        if (c < 0x10000) {
            add(0xE0 | c >> 12);
        } else {
            add(0xF0 | c >> 18);
            add(0x80 | (c >> 12 & 0x3F));
        }
        add(0x80 | (c >> 6 & 0x3F));
    }
    add(0x80 | (c & 0x3F));
}

inline const char* SkipDigits(const char* at) {
    while (Is(*at, kDigit)) {
        ++at;
    }
    return at;
}

/// Bytes of the well-formed UTF-8 sequence at `at`, 0 for a bad one. The text must end with a zero byte.
inline int Utf8SequenceLength(const char* at) {
    const auto byte = [at](int i) { return static_cast<std::uint8_t>(at[i]); };
    const auto follows = [&](int i) { return (byte(i) & 0xC0) == 0x80; };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80) {
        return 1;
    }
    if (lead < 0xC2) {
        return 0;
    }
    if (lead < 0xE0) {
        return follows(1) ? 2 : 0;
    }
    if (lead < 0xF0) {
        // No overlong form, no surrogate.
        if (!follows(1) || !follows(2)) {
            return 0;
        }
        if ((lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F)) {
            return 0;
        }
        return 3;
    }
    if (lead > 0xF4 || !follows(1) || !follows(2) || !follows(3)) {
        return 0;
    }
    if ((lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F)) {
        return 0;
    }
    return 4;
}

/// Why a text of JSON is bad.
inline constexpr const char* kOpenText = "text without closing quote";
inline constexpr const char* kBadUtf8 = "bad UTF-8";

/// Where a text is bad, and why.
struct JsonaFault {
    const char* at = nullptr;
    const char* text = "";
};

/// From where a text of JSON begins, behind its opening quote, to where the source ends in zero bytes.
struct JsonaTextRange {
    const char* begin;
    const char* end;
};

/// Appends to `arena` what a text with escapes means, whose first backslash is at `at`. The place of its
/// closing quote; null, with `fault` set and the arena of no use, for a text that is bad.
const char* DecodeText(const JsonaTextRange& range, const char* at, std::string& arena, JsonaFault& fault);

}  // namespace Tarvik::Util::Scan

// SPDX-License-Identifier: MIT
// The six-bit armour of AIS payloads: the characters "0" to "W" and "`" to "w" stand for 0 to 63 (ITU-R
// M.1371, IEC 61162-1). A table gives a character's value; a field is gathered from the few values that it
// touches.
#include "host/plugins/ais/core/SixBits.h"

#include <algorithm>

namespace Tarvik::Ais {

namespace {

constexpr std::uint8_t kBad = 0xFF;
constexpr unsigned kMostFillBits = 5;

constexpr std::array<std::uint8_t, 256> MakeValues() {
    std::array<std::uint8_t, 256> values{};
    for (auto& value : values) {
        value = kBad;
    }
    for (unsigned char letter = '0'; letter <= 'W'; ++letter) {
        values[letter] = static_cast<std::uint8_t>(letter - '0');
    }
    for (unsigned char letter = '`'; letter <= 'w'; ++letter) {
        values[letter] = static_cast<std::uint8_t>(letter - '`' + 40);
    }
    return values;
}

constexpr auto kValues = MakeValues();

}  // namespace

bool SixBits::Append(std::string_view payload, unsigned fillBits) {
    if (fillBits > kMostFillBits || characters_ + payload.size() > kMostCharacters ||
        (payload.empty() && fillBits > 0)) {
        return false;
    }
    // What an earlier piece left unused ends the message: bits cannot go on behind a gap.
    if (fill_ != 0) {
        return payload.empty();
    }
    unsigned bad = 0;
    std::uint8_t* to = values_.data() + characters_;
    for (const char letter : payload) {
        const std::uint8_t value = kValues[static_cast<unsigned char>(letter)];
        bad |= value;
        *to++ = value;
    }
    std::fill_n(to, kSlack, std::uint8_t{0});
    if (bad > 63) {
        return false;
    }
    characters_ += payload.size();
    fill_ = fillBits;
    return true;
}

std::uint32_t SixBits::Unsigned(std::size_t at, std::size_t count) const {
    if (at + count > kMostCharacters * 6) {
        return 0;
    }
    const std::size_t first = at / 6;
    const std::size_t last = (at + count + 5) / 6;
    std::uint64_t gathered = 0;
    for (std::size_t i = first; i < last; ++i) {
        gathered = gathered << 6 | (i < characters_ ? values_[i] : 0U);
    }
    const std::size_t behind = last * 6 - (at + count);
    return static_cast<std::uint32_t>(gathered >> behind & ((std::uint64_t{1} << count) - 1));
}

std::int32_t SixBits::Signed(std::size_t at, std::size_t count) const {
    const std::uint32_t value = Unsigned(at, count);
    const std::uint32_t sign = std::uint32_t{1} << (count - 1);
    return static_cast<std::int32_t>((value ^ sign) - sign);
}

void SixBits::Text(std::size_t at, std::size_t characters, std::string& text) const {
    text.clear();
    for (std::size_t i = 0; i < characters && at + i * 6 + 6 <= Size(); ++i) {
        const std::uint32_t value = Unsigned(at + i * 6, 6);
        if (value == 0) {
            break;
        }
        text.push_back(static_cast<char>(value < 32 ? value + 64 : value));
    }
    text.erase(text.find_last_not_of(' ') + 1);
}

}  // namespace Tarvik::Ais

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Tarvik::Ais {

/// The bits of one message, as they stand armoured in the payload of its sentences: six bits a character,
/// the highest first.
class SixBits {
  public:
    /// Characters of the longest message that the radio link carries (five slots, 1,192 bits) with room to
    /// spare; what is longer is no message.
    static constexpr std::size_t kMostCharacters = 256;

    /// Forgets what was taken.
    void Clear() { characters_ = fill_ = 0; }
    /// Takes the next piece of payload; `fillBits` of its last character, 0 to 5, do not count. False for a
    /// character outside the alphabet, more than five fill bits or a message that grows too long.
    bool Append(std::string_view payload, unsigned fillBits);
    /// Bits taken, without the fill bits.
    std::size_t Size() const { return characters_ * 6 - fill_; }

    /// `count` bits from bit `at` as a number without a sign; at most 32. Bits behind the end are 0.
    std::uint32_t Unsigned(std::size_t at, std::size_t count) const;
    /// The same in two's complement.
    std::int32_t Signed(std::size_t at, std::size_t count) const;
    /// Text of six-bit characters up to an "@" or the end, without blanks behind it.
    void Text(std::size_t at, std::size_t characters, std::string& text) const;

  private:
    static constexpr std::size_t kSlack = 8;  ///< zeros behind the end, so that reading needs no test
    std::array<std::uint8_t, kMostCharacters + kSlack> values_{};
    std::size_t characters_ = 0;
    std::size_t fill_ = 0;
};

}  // namespace Tarvik::Ais

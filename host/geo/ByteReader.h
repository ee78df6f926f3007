// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// What a person can do about a data file that is missing or damaged; ends the sentence that says so.
inline constexpr const char* kReinstallAdvice = ". Build or install the client again.";

/// Reads what `ByteWriter` wrote. Reading past the end gives zeros and makes `ok` false for good.
class ByteReader {
  public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

    bool Ok() const { return ok_; }
    bool AtEnd() const { return at_ == bytes_.size(); }

    std::uint8_t U8() { return static_cast<std::uint8_t>(Number(1)); }
    std::uint16_t U16() { return static_cast<std::uint16_t>(Number(2)); }
    std::uint32_t U32() { return static_cast<std::uint32_t>(Number(4)); }
    std::uint64_t U64() { return Number(8); }
    float F32() { return std::bit_cast<float>(U32()); }

    /// A count of items of at least `itemBytes` each; 0 and not ok when the rest cannot hold that many.
    std::size_t Count(std::size_t itemBytes) {
        const std::size_t n = U32();
        if (n > (bytes_.size() - at_) / itemBytes) {
            ok_ = false;
        }
        return ok_ ? n : 0;
    }
    std::string Text() {
        const std::size_t n = Count(1);
        std::string result(bytes_.substr(at_, n));
        at_ += n;
        return result;
    }
    GeoPoint Point() {
        const auto x = static_cast<std::int32_t>(U32());
        const auto y = static_cast<std::int32_t>(U32());
        return {x / 1e5, y / 1e5};
    }

  private:
    std::uint64_t Number(std::size_t width) {
        if (bytes_.size() - at_ < width) {
            ok_ = false;
            at_ = bytes_.size();
            return 0;
        }
        std::uint64_t v = 0;
        for (std::size_t i = 0; i < width; ++i) {
            v |= static_cast<std::uint64_t>(static_cast<std::uint8_t>(bytes_[at_ + i])) << (8 * i);
        }
        at_ += width;
        return v;
    }
    std::string_view bytes_;
    std::size_t at_ = 0;
    bool ok_ = true;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// What a person can do about a data file that is missing or damaged; ends the sentence that says so.
inline constexpr const char* kReinstallAdvice = ". Build or install the client again.";

/// Tables of numbers begin at multiples of this many bytes, so that they can be read in place.
inline constexpr std::size_t kRawAlignment = 8;

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

    /// Numbers as `ByteWriter::Raw` wrote them, where they lie: the text must begin at a multiple of
    /// `kRawAlignment` in memory and outlive them.
    template <typename T>
    std::span<const T> Raw() {
        static_assert(std::is_trivially_copyable_v<T> && alignof(T) <= kRawAlignment);
        const std::uint64_t n = U64();
        while (ok_ && at_ % kRawAlignment != 0) {
            ok_ = U8() == 0 && ok_;
        }
        if (!ok_ || n > (bytes_.size() - at_) / sizeof(T)) {
            ok_ = false;
            return {};
        }
        const std::span<const T> items(reinterpret_cast<const T*>(bytes_.data() + at_), n);
        at_ += n * sizeof(T);
        return items;
    }

  private:
    std::uint64_t Number(std::size_t width) {
        if (bytes_.size() - at_ < width) {
            ok_ = false;
            at_ = bytes_.size();
            return 0;
        }
        std::uint64_t v = 0;
        std::memcpy(&v, bytes_.data() + at_, width);
        at_ += width;
        return v;
    }
    static_assert(std::endian::native == std::endian::little, "the files hold little-endian numbers");
    std::string_view bytes_;
    std::size_t at_ = 0;
    bool ok_ = true;
};

}  // namespace Tarvik::Server

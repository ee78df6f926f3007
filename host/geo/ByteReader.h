// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// Reads what `ByteWriter` wrote. Reading past the end gives zeros and makes `ok` false for good.
class ByteReader {
  public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

    bool ok() const { return ok_; }
    bool atEnd() const { return at_ == bytes_.size(); }

    uint8_t u8() { return static_cast<uint8_t>(number(1)); }
    uint16_t u16() { return static_cast<uint16_t>(number(2)); }
    uint32_t u32() { return static_cast<uint32_t>(number(4)); }
    uint64_t u64() { return number(8); }
    float f32() { return std::bit_cast<float>(u32()); }

    /// A count of items of at least `itemBytes` each; 0 and not ok when the rest cannot hold that many.
    size_t count(size_t itemBytes) {
        const size_t n = u32();
        if (n > (bytes_.size() - at_) / itemBytes) ok_ = false;
        return ok_ ? n : 0;
    }
    std::string text() {
        const size_t n = count(1);
        std::string result(bytes_.substr(at_, n));
        at_ += n;
        return result;
    }
    GeoPoint point() {
        const auto x = static_cast<int32_t>(u32());
        const auto y = static_cast<int32_t>(u32());
        return {x / 1e5, y / 1e5};
    }

  private:
    uint64_t number(size_t width) {
        if (bytes_.size() - at_ < width) {
            ok_ = false;
            at_ = bytes_.size();
            return 0;
        }
        uint64_t v = 0;
        for (size_t i = 0; i < width; ++i)
            v |= static_cast<uint64_t>(static_cast<uint8_t>(bytes_[at_ + i])) << (8 * i);
        at_ += width;
        return v;
    }
    std::string_view bytes_;
    size_t at_ = 0;
    bool ok_ = true;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// Appends little-endian numbers, texts and positions to a byte text.
class ByteWriter {
  public:
    void u8(uint8_t v) { bytes_.push_back(static_cast<char>(v)); }
    void u16(uint16_t v) { number(v, 2); }
    void u32(uint32_t v) { number(v, 4); }
    void u64(uint64_t v) { number(v, 8); }
    void f32(float v) { u32(std::bit_cast<uint32_t>(v)); }
    void count(size_t n) { u32(static_cast<uint32_t>(n)); }
    void text(const std::string& t) {
        count(t.size());
        bytes_ += t;
    }
    void point(GeoPoint p) {
        u32(static_cast<uint32_t>(static_cast<int32_t>(std::lround(p.x * 1e5))));
        u32(static_cast<uint32_t>(static_cast<int32_t>(std::lround(p.y * 1e5))));
    }
    const std::string& bytes() const { return bytes_; }

  private:
    void number(uint64_t v, int width) {
        for (int i = 0; i < width; ++i) bytes_.push_back(static_cast<char>((v >> (8 * i)) & 0xFFU));
    }
    std::string bytes_;
};

}  // namespace Tarvik::Server

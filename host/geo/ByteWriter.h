// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>

#include "host/geo/ByteReader.h"
#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// Appends little-endian numbers, texts and positions to a byte text.
class ByteWriter {
  public:
    void U8(std::uint8_t v) { bytes_.push_back(static_cast<char>(v)); }
    void U16(std::uint16_t v) { Number(v, 2); }
    void U32(std::uint32_t v) { Number(v, 4); }
    void U64(std::uint64_t v) { Number(v, 8); }
    void F32(float v) { U32(std::bit_cast<std::uint32_t>(v)); }
    void Count(std::size_t n) { U32(static_cast<std::uint32_t>(n)); }
    void Text(const std::string& t) {
        Count(t.size());
        bytes_ += t;
    }
    void Point(GeoPoint p) {
        U32(static_cast<std::uint32_t>(static_cast<std::int32_t>(std::lround(p.x * 1e5))));
        U32(static_cast<std::uint32_t>(static_cast<std::int32_t>(std::lround(p.y * 1e5))));
    }
    /// A table of numbers as they lie in memory: how many (u64), zeros up to `kRawAlignment`, the numbers.
    template <typename T>
    void Raw(std::span<const T> items) {
        static_assert(std::is_trivially_copyable_v<T> && std::endian::native == std::endian::little);
        U64(items.size());
        bytes_.resize((bytes_.size() + kRawAlignment - 1) / kRawAlignment * kRawAlignment, '\0');
        bytes_.append(reinterpret_cast<const char*>(items.data()), items.size_bytes());
    }
    const std::string& Bytes() const { return bytes_; }

  private:
    void Number(std::uint64_t v, int width) {
        for (int i = 0; i < width; ++i) {
            bytes_.push_back(static_cast<char>((v >> (8 * i)) & 0xFFU));
        }
    }
    std::string bytes_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Util {

/// Growing byte buffer; `capacity` is only its first size.
class TARVIK_API CAutoBuffer {
  public:
    /// An empty buffer with room for `capacity` bytes.
    explicit CAutoBuffer(std::size_t capacity) { bytes_.reserve(capacity); }
    ///@{
    /// The content; valid until the buffer changes.
    const char* begin() const { return bytes_.data(); }
    const char* end() const { return bytes_.data() + bytes_.size(); }
    ///@}
    /// Bytes of content.
    std::size_t size() const { return bytes_.size(); }
    /// Drops the content.
    void clear() { bytes_.clear(); }
    /// Adds `count` bytes, which are copied.
    void append(const char* data, std::size_t count) { bytes_.append(data, count); }

  private:
    std::string bytes_;
};

/// printf-style formatting into a buffer.
class TARVIK_API CBlockBuffer {
  public:
    /// Replaces the buffer's content by the formatted text and its terminating NUL, which counts as content:
    /// the buffer holds strlen + 1 bytes. Nothing is truncated.
    static void format0(CAutoBuffer& buffer, const char* format, ...) __attribute__((format(printf, 2, 3)));
};

}  // namespace Tarvik::Util

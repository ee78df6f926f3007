// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace Tarvik::Server {

/// A file's bytes in memory, read-only and shared by all programs that have it open. Whoever writes the file
/// anew must put another in its place, as installing does, and not shorten this one.
class MappedFile {
  public:
    /// Nothing when there is no such file or it cannot be read.
    static std::shared_ptr<const MappedFile> Open(const std::string& path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    /// They begin at the beginning of a page.
    std::string_view Bytes() const { return {static_cast<const char*>(memory_), size_}; }

  private:
    MappedFile(void* memory, std::size_t size) : memory_(memory), size_(size) {}
    void* memory_;
    std::size_t size_;
};

}  // namespace Tarvik::Server

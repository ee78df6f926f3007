// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace Tarvik::Server {

/// SHA-256 over bytes that come piece by piece.
class Checksum {
  public:
    Checksum();
    ~Checksum();
    Checksum(const Checksum&) = delete;
    Checksum& operator=(const Checksum&) = delete;

    void Add(std::string_view bytes);
    /// 64 hexadecimal digits, of what was added so far; nothing can be added afterwards.
    std::string Finish();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace Tarvik::Server

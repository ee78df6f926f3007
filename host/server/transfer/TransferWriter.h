// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server {

/// Writes a file of exported users line by line: the head at its making, the end by End.
class TransferWriter {
  public:
    using Sink = std::function<void(std::string_view)>;

    /// `made` in seconds since 1970-01-01 00:00:00 UTC.
    TransferWriter(Sink sink, std::int64_t made);

    /// Throws what the JSON library throws when a text is no UTF-8.
    void User(const UserCopy& user);
    void End();

  private:
    void Write(const std::string& line);

    Sink sink_;
    Checksum checksum_;
    std::size_t lines_ = 0;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Bench {

/// Clients that have asked once and keep their connections without saying more.
class IdleClients {
  public:
    /// Each sends `request` and reads its reply; throws when one cannot connect.
    IdleClients(std::uint16_t port, int count, const std::string& request);
    ~IdleClients();
    IdleClients(const IdleClients&) = delete;
    IdleClients& operator=(const IdleClients&) = delete;

    /// Lets this process and its children have enough files open; false when the system grants too few.
    static bool AllowFiles(int count);

  private:
    std::vector<int> sockets_;
};

}  // namespace Bench

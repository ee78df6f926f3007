// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>

#include "host/server/storage/contract/ServerTime.h"

namespace Tarvik::Server {

/// How many failed logins are borne; Settings.h has the usual numbers.
struct LoginLimits {
    int perUser = 0;                 ///< of one user name from all addresses; 0 for no limit
    int perAddress = 0;              ///< from one address; 0 for no limit
    std::int64_t windowSeconds = 0;  ///< a count starts with its first failure and is forgotten after this
};

/// What counts as one address: an address of IPv4, the first 64 bits of one of IPv6, which are one
/// household's.
std::string AddressKey(const std::string& address);

/// Counts failed logins by user and by address (AddressKey). Counts live in this process. Safe to call
/// from any thread.
class LoginGuard {
  public:
    LoginGuard(const LoginLimits& limits, ServerClock clock);

    /// Counts an attempt as failed until Succeeded takes that back, so that attempts at the same time count
    /// too. Gives 0, or, with nothing counted, the seconds after which another attempt is heard.
    std::int64_t Begin(const std::string& user, const std::string& address);
    /// The attempt was right: the user's count is forgotten and the attempt taken off the address.
    void Succeeded(const std::string& user, const std::string& address);

  private:
    struct Count {
        int failures = 0;
        std::int64_t until = 0;
    };
    using Counts = std::map<std::string, Count>;

    static std::int64_t WaitOf(const Counts& counts, const std::string& key, int limit, std::int64_t now);
    void Add(Counts& counts, const std::string& key, std::int64_t now) const;
    static void MakeRoom(Counts& counts, std::int64_t now);

    LoginLimits limits_;
    ServerClock clock_;
    std::mutex mutex_;
    Counts users_;
    Counts addresses_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

namespace Tarvik::Server {

/// The sessions that were found in the present second, so that a busy client costs one search a second. What
/// another process ends stays open here until the second is over. Safe to call from any thread.
class SessionMemory {
  public:
    /// The user of a session that was found in this second. `now` is in seconds since 1970-01-01 00:00:00
    /// UTC.
    std::optional<std::string> UserOf(const std::string& hash, std::int64_t now);
    /// The user that a session was last found to be of, in whatever second, for what gives no right; empty
    /// where that is forgotten.
    std::string LastUserOf(const std::string& hash);
    /// To be asked for before the search whose result goes to Keep.
    std::uint64_t Generation();
    /// Keeps what a search has found, unless anything was forgotten since `generation`.
    void Keep(const std::string& hash, const std::string& user, std::int64_t now, std::uint64_t generation);
    /// Forgets every session; to be called when one has been ended.
    void Forget();

  private:
    static constexpr std::size_t kMostLastUsers = 10'000;

    void Enter(std::int64_t now);

    std::mutex mutex_;
    std::unordered_map<std::string, std::string> userOfHash_;
    std::unordered_map<std::string, std::string> lastUserOfHash_;
    std::int64_t second_ = 0;
    std::uint64_t generation_ = 0;
};

}  // namespace Tarvik::Server

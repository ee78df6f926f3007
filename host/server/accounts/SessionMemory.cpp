// SPDX-License-Identifier: MIT
#include "host/server/accounts/SessionMemory.h"

namespace Tarvik::Server {

void SessionMemory::Enter(std::int64_t now) {
    if (now == second_) {
        return;
    }
    userOfHash_.clear();
    second_ = now;
}

std::optional<std::string> SessionMemory::UserOf(const std::string& hash, std::int64_t now) {
    const std::lock_guard lock(mutex_);
    Enter(now);
    const auto found = userOfHash_.find(hash);
    return found == userOfHash_.end() ? std::nullopt : std::optional(found->second);
}

std::string SessionMemory::LastUserOf(const std::string& hash) {
    const std::lock_guard lock(mutex_);
    const auto found = lastUserOfHash_.find(hash);
    return found == lastUserOfHash_.end() ? std::string() : found->second;
}

std::uint64_t SessionMemory::Generation() {
    const std::lock_guard lock(mutex_);
    return generation_;
}

void SessionMemory::Keep(const std::string& hash, const std::string& user, std::int64_t now,
                         std::uint64_t generation) {
    const std::lock_guard lock(mutex_);
    Enter(now);
    if (generation != generation_) {
        return;
    }
    userOfHash_[hash] = user;
    if (lastUserOfHash_.size() >= kMostLastUsers) {
        lastUserOfHash_.clear();
    }
    lastUserOfHash_[hash] = user;
}

void SessionMemory::Forget() {
    const std::lock_guard lock(mutex_);
    userOfHash_.clear();
    ++generation_;
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/server/accounts/LoginGuard.h"

#include <algorithm>
#include <arpa/inet.h>
#include <utility>
#include <vector>

namespace Tarvik::Server {

namespace {

constexpr std::size_t kMostCounts = 20000;

}  // namespace

std::string AddressKey(const std::string& address) {
    in6_addr wide{};
    if (inet_pton(AF_INET6, address.c_str(), &wide) != 1) {
        return address;
    }
    const auto* bytes = reinterpret_cast<const char*>(&wide);
    const std::size_t length = IN6_IS_ADDR_V4MAPPED(&wide) ? sizeof(wide) : sizeof(wide) / 2;
    return {bytes, length};
}

LoginGuard::LoginGuard(const LoginLimits& limits, ServerClock clock)
    : limits_(limits), clock_(std::move(clock)) {}

std::int64_t LoginGuard::Begin(const std::string& user, const std::string& address) {
    const std::string from = AddressKey(address);
    const std::scoped_lock lock(mutex_);
    const std::int64_t now = clock_();
    const std::int64_t wait = std::max(WaitOf(users_, user, limits_.perUser, now),
                                       WaitOf(addresses_, from, limits_.perAddress, now));
    if (wait > 0) {
        return wait;
    }
    Add(users_, user, now);
    Add(addresses_, from, now);
    return 0;
}

void LoginGuard::Succeeded(const std::string& user, const std::string& address) {
    const std::scoped_lock lock(mutex_);
    users_.erase(user);
    const auto found = addresses_.find(AddressKey(address));
    if (found != addresses_.end() && --found->second.failures <= 0) {
        addresses_.erase(found);
    }
}

std::int64_t LoginGuard::WaitOf(const Counts& counts, const std::string& key, int limit, std::int64_t now) {
    if (limit == 0) {
        return 0;
    }
    const auto found = counts.find(key);
    if (found == counts.end() || found->second.failures < limit) {
        return 0;
    }
    return std::max<std::int64_t>(0, found->second.until - now);
}

void LoginGuard::Add(Counts& counts, const std::string& key, std::int64_t now) const {
    if (counts.size() >= kMostCounts) {
        MakeRoom(counts, now);
    }
    Count& count = counts[key];
    if (count.until <= now) {
        count = {0, now + limits_.windowSeconds};
    }
    ++count.failures;
}

/// Takes out what is over; when nothing is, the older half of the counts.
void LoginGuard::MakeRoom(Counts& counts, std::int64_t now) {
    const auto drop = [&counts](std::int64_t until) {
        return std::erase_if(counts, [until](const auto& entry) { return entry.second.until <= until; }) > 0;
    };
    if (drop(now)) {
        return;
    }
    std::vector<std::int64_t> ends;
    for (const auto& [key, count] : counts) {
        ends.push_back(count.until);
    }
    const auto middle = ends.begin() + static_cast<std::ptrdiff_t>(ends.size() / 2);
    std::nth_element(ends.begin(), middle, ends.end());
    drop(*middle);
}

}  // namespace Tarvik::Server

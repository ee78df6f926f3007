// SPDX-License-Identifier: MIT
#include <array>
#include <cinttypes>
#include <cstdio>

#include <sodium.h>

#include "host/server/accounts/Credentials.h"

namespace Tarvik::Server {

Passwords::Passwords(PasswordCost cost) : cost_(cost) {
    decoy_ = Hash("nobody has this password");
}

std::string Passwords::Hash(const std::string& password) const {
    std::array<char, crypto_pwhash_STRBYTES> text{};
    if (sodium_init() < 0) {
        return {};
    }
    if (crypto_pwhash_str(text.data(), password.data(), password.size(), cost_.passes, cost_.memoryBytes) !=
        0) {
        return {};
    }
    return text.data();
}

bool Passwords::Matches(const std::string& hash, const std::string& password) const {
    if (hash.empty() || hash.size() >= crypto_pwhash_STRBYTES) {
        return false;
    }
    return crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

void Passwords::Pretend(const std::string& password) const {
    static_cast<void>(Matches(decoy_, password));
}

bool IsBearableHash(const std::string& hash) {
    constexpr std::uint64_t kTimes = 4;
    const PasswordCost usual;
    std::uint64_t kibibytes = 0;
    std::uint64_t passes = 0;
    std::uint64_t lanes = 0;
    const std::size_t place = hash.find("$m=");
    if (place == std::string::npos) {
        return true;
    }
    if (std::sscanf(hash.c_str() + place, "$m=%20" SCNu64 ",t=%20" SCNu64 ",p=%20" SCNu64, &kibibytes,
                    &passes, &lanes) != 3) {
        return false;
    }
    return kibibytes <= kTimes * usual.memoryBytes / 1024 && passes <= kTimes * usual.passes &&
           lanes <= kTimes;
}

bool Passwords::IsOutdated(const std::string& hash) const {
    return hash.size() < crypto_pwhash_STRBYTES &&
           crypto_pwhash_str_needs_rehash(hash.c_str(), cost_.passes, cost_.memoryBytes) == 1;
}

}  // namespace Tarvik::Server

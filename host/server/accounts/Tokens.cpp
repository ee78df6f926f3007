// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include <sodium.h>

#include "host/server/accounts/Credentials.h"

namespace Tarvik::Server {

namespace {

constexpr int kEncoding = sodium_base64_VARIANT_URLSAFE_NO_PADDING;
constexpr std::string_view kScheme = "bearer ";

bool IsTokenSign(char sign) {
    return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z') || (sign >= '0' && sign <= '9') ||
           sign == '-' || sign == '_';
}

char Lower(char sign) {
    return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign + ('a' - 'A')) : sign;
}

}  // namespace

std::string MakeToken() {
    if (sodium_init() < 0) {
        return {};
    }
    std::array<unsigned char, 32> bytes{};
    randombytes_buf(bytes.data(), bytes.size());
    std::array<char, kTokenLength + 1> text{};
    static_assert(sodium_base64_ENCODED_LEN(32, sodium_base64_VARIANT_URLSAFE_NO_PADDING) ==
                  kTokenLength + 1);
    return sodium_bin2base64(text.data(), text.size(), bytes.data(), bytes.size(), kEncoding);
}

std::string HashToken(const std::string& token) {
    std::array<unsigned char, crypto_hash_sha256_BYTES> hash{};
    crypto_hash_sha256(hash.data(), reinterpret_cast<const unsigned char*>(token.data()), token.size());
    std::array<char, 2 * crypto_hash_sha256_BYTES + 1> text{};
    return sodium_bin2hex(text.data(), text.size(), hash.data(), hash.size());
}

std::string TokenOf(const std::string& authorization) {
    if (authorization.size() != kScheme.size() + kTokenLength) {
        return {};
    }
    const bool bearer = std::equal(kScheme.begin(), kScheme.end(), authorization.begin(),
                                   [](char expected, char sign) { return expected == Lower(sign); });
    std::string token = authorization.substr(kScheme.size());
    return bearer && std::all_of(token.begin(), token.end(), IsTokenSign) ? token : std::string();
}

}  // namespace Tarvik::Server

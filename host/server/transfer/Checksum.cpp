// SPDX-License-Identifier: MIT
#include <array>

#include <sodium.h>

#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server {

struct Checksum::State {
    crypto_hash_sha256_state hash;
};

Checksum::Checksum() : state_(std::make_unique<State>()) {
    crypto_hash_sha256_init(&state_->hash);
}

Checksum::~Checksum() = default;

void Checksum::Add(std::string_view bytes) {
    crypto_hash_sha256_update(&state_->hash, reinterpret_cast<const unsigned char*>(bytes.data()),
                              bytes.size());
}

std::string Checksum::Finish() {
    std::array<unsigned char, crypto_hash_sha256_BYTES> hash{};
    crypto_hash_sha256_final(&state_->hash, hash.data());
    std::array<char, 2 * crypto_hash_sha256_BYTES + 1> text{};
    return sodium_bin2hex(text.data(), text.size(), hash.data(), hash.size());
}

}  // namespace Tarvik::Server

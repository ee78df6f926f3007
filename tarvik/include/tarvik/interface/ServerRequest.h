// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstdint>

namespace Tarvik::Interface {

/// Head of a request and of a reply on TRV_S_SYNCREQBISERVER, little-endian; the payload follows at offset 8.
/// The sender makes and frees the request block; the reply is a bus block (BusBlock.h) that the caller frees.
struct VoyServerRequest {
    std::uint32_t length;
    std::uint16_t command;
    std::uint16_t moduleWord;

    const char* Payload() const { return reinterpret_cast<const char*>(this + 1); }
    char* Payload() { return reinterpret_cast<char*>(this + 1); }
};
static_assert(sizeof(VoyServerRequest) == 8);
static_assert(std::endian::native == std::endian::little, "the head is read and written in place");

/// Largest payload that either side takes, in bytes.
inline constexpr std::uint32_t kMaxPayloadBytes = 16U * 1024 * 1024;

}  // namespace Tarvik::Interface

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Tarvik::Server {

/// The exchange envelope as it crosses the network: 8 bytes of head, little-endian on every machine, then the
/// text, in general with a NUL at its end.
struct Envelope {
    std::uint16_t command = 0;
    std::uint16_t moduleWord = 0;
    std::string_view text;  ///< without the NUL; points into the bytes that were read
};

/// Nothing when the bytes are no envelope: shorter than a head, or of another length than the head says.
std::optional<Envelope> ReadEnvelope(std::string_view bytes);

/// The bytes of an envelope; a NUL is put behind the text and counted.
std::string WriteEnvelope(const Envelope& envelope);

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/server/wire/Envelope.h"

namespace Tarvik::Server {

namespace {

constexpr std::size_t kHeadBytes = 8;

std::uint32_t ReadWord(std::string_view bytes, std::size_t at, std::size_t width) {
    std::uint32_t value = 0;
    for (std::size_t i = width; i > 0; --i) {
        value = (value << 8U) | static_cast<unsigned char>(bytes[at + i - 1]);
    }
    return value;
}

void WriteWord(std::string& bytes, std::uint32_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
        bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFFU));
    }
}

}  // namespace

std::optional<Envelope> ReadEnvelope(std::string_view bytes) {
    if (bytes.size() < kHeadBytes) {
        return std::nullopt;
    }
    if (ReadWord(bytes, 0, 4) != bytes.size() - kHeadBytes) {
        return std::nullopt;
    }
    std::string_view text = bytes.substr(kHeadBytes);
    if (text.ends_with('\0')) {
        text.remove_suffix(1);
    }
    return Envelope{static_cast<std::uint16_t>(ReadWord(bytes, 4, 2)),
                    static_cast<std::uint16_t>(ReadWord(bytes, 6, 2)), text};
}

std::string WriteEnvelope(const Envelope& envelope) {
    std::string bytes;
    bytes.reserve(kHeadBytes + envelope.text.size() + 1);
    WriteWord(bytes, static_cast<std::uint32_t>(envelope.text.size() + 1), 4);
    WriteWord(bytes, envelope.command, 2);
    WriteWord(bytes, envelope.moduleWord, 2);
    bytes.append(envelope.text).push_back('\0');
    return bytes;
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
// The decoder of AIS sentences: whatever the bytes and however they are cut, it ends, and what it tells is in
// range.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/plugins/ais/core/Decoder.h"

namespace {

void Hold(bool rule) {
    if (!rule) {
        std::abort();
    }
}

void Check(const Tarvik::Ais::Message& message) {
    Hold(message.mmsi > 0 && message.mmsi <= 999'999'999);
    if (message.moves) {
        const auto& movement = message.movement;
        Hold(movement.longitude >= -180 && movement.longitude <= 180);
        Hold(movement.latitude >= -90 && movement.latitude <= 90);
        Hold(movement.course >= -1 && movement.course < 360 && movement.heading >= -1 &&
             movement.heading < 360);
        Hold(movement.speed == -1 || (movement.speed >= 0 && movement.speed <= 102.2));
    }
    Hold(message.particulars.name.size() <= 20 && message.particulars.destination.size() <= 20);
    Hold(message.particulars.callSign.size() <= 7);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    // The first byte says how the rest is cut.
    const std::size_t piece = data[0] + std::size_t{1};
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    Tarvik::Ais::Decoder decoder(Check);
    std::int64_t now = 0;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
        decoder.Take(bytes.substr(at, piece), now += 100);
    }
    return 0;
}

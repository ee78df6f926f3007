// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "host/plugins/ais/core/Message.h"

namespace Tarvik::Ais {

/// A position report; `time` is the tag block's, 0 without one.
inline Message PositionOf(std::uint32_t mmsi, double longitude, double latitude, std::int64_t time = 0) {
    Message message;
    message.type = 1;
    message.mmsi = mmsi;
    message.time = time;
    message.moves = true;
    message.movement = {longitude, latitude, true, 12.5, 90, 91, 0, 30};
    return message;
}

/// A report of a name.
inline Message NameOf(std::uint32_t mmsi, const std::string& name) {
    Message message;
    message.type = 24;
    message.mmsi = mmsi;
    message.tellsName = true;
    message.particulars.name = name;
    return message;
}

}  // namespace Tarvik::Ais

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "host/plugins/ais/store/Vessels.h"

namespace Tarvik::Ais {

/// What a vessel's card tells. Empty texts, 0 and -1 are not known.
struct CardFacts {
    std::string name;
    std::uint32_t mmsi = 0;
    bool hasFix = false;
    Fix fix;
    bool planned = false;  ///< the place is the plan's, as nothing was heard of the vessel
    std::string callSign;
    std::string destination;
    std::string firstPort;  ///< of the voyage that the card was opened from
    std::string lastPort;
    std::int32_t cursorX = 0;  ///< pixels of the screen, where the card is opened
    std::int32_t cursorY = 0;
};

/// Shows a card in place of the one before.
using CardShower = std::function<void(const CardFacts& facts)>;

}  // namespace Tarvik::Ais

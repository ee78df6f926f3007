// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "host/plugins/ais/core/Sentence.h"
#include "host/plugins/ais/core/SixBits.h"

namespace Tarvik::Ais {

/// Where a vessel is and how it moves. What is not available has the value named at the field.
struct Movement {
    double longitude = 0;  ///< degrees east, -180 to 180; meaningful with hasPlace
    double latitude = 0;   ///< degrees north, -90 to 90; the same
    bool hasPlace = false;
    double speed = -1;   ///< knots over ground, 102.2 for that or more; -1 not available
    double course = -1;  ///< degrees over ground, below 360; -1 not available
    int heading = -1;    ///< degrees, 0 to 359; -1 not available
    int status = -1;     ///< navigational status 0 to 15; -1 where the type has none
    int second = -1;     ///< of the UTC minute, 0 to 59; -1 not available
};

/// What a vessel is and where it is bound; an empty text and 0 say nothing.
struct Particulars {
    std::string name;
    std::string callSign;
    std::string destination;
    std::uint32_t imo = 0;
    int shipType = 0;
    int toBow = 0, toStern = 0, toPort = 0, toStarboard = 0;  ///< metres from the antenna
    double draught = 0;                                       ///< metres
    int etaMonth = 0, etaDay = 0, etaHour = 24, etaMinute = 60;
};

/// One decoded message of the types 1, 2, 3, 5, 18, 19, 24 or 27.
struct Message {
    int type = 0;
    std::uint32_t mmsi = 0;
    std::int64_t time = 0;  ///< seconds after 1970 of the tag block; 0 without one
    bool own = false;       ///< the receiver's own ship
    bool moves = false;     ///< `movement` was sent
    Movement movement;
    bool tellsName = false;        ///< `particulars.name` was sent
    bool tellsKind = false;        ///< call sign, ship type and size were sent
    bool tellsVoyage = false;      ///< IMO number, destination, draught and ETA were sent
    bool tellsSizeOfShip = false;  ///< the four distances were sent
    Particulars particulars;
};

/// Decodes the bits of a whole message. Cause::Message, OtherType, or TooShort for fewer bits than the type
/// has. `time` and `own` are the caller's.
Cause DecodeMessage(const SixBits& bits, Message& message);

}  // namespace Tarvik::Ais

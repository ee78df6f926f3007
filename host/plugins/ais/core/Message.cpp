// SPDX-License-Identifier: MIT
// Fields of AIS messages by their place in bits, as ITU-R M.1371-5 gives them. A place or a rate with the
// value for "not available" is left out, one outside its range too.
#include "host/plugins/ais/core/Message.h"

#include <tarvik/util/Geodesy.h>

namespace Tarvik::Ais {

namespace {

constexpr double kFineMinutes = 600000;  ///< ten-thousandths of a minute in a degree
constexpr double kCoarseMinutes = 600;   ///< tenths of a minute in a degree
constexpr unsigned kNoSpeed = 1023, kNoCoarseSpeed = 63;
constexpr unsigned kFullCircle = 360;
constexpr std::uint32_t kLastMmsi = 999'999'999;

/// Bits of the place: where longitude begins, how wide the numbers are, and what a degree counts.
struct PlaceAt {
    std::size_t at;
    std::size_t longitudeBits;
    std::size_t latitudeBits;
    double perDegree;
};

void ReadPlace(const SixBits& bits, const PlaceAt& place, Movement& movement) {
    const double x = bits.Signed(place.at, place.longitudeBits) / place.perDegree;
    const double y = bits.Signed(place.at + place.longitudeBits, place.latitudeBits) / place.perDegree;
    movement.hasPlace = Util::IsOnEarth(x, y);
    movement.longitude = movement.hasPlace ? x : 0;
    movement.latitude = movement.hasPlace ? y : 0;
}

/// Speed, place, course, heading and second, which follow each other from bit `at` on in four types.
void ReadFineMovement(const SixBits& bits, std::size_t at, Movement& movement) {
    const unsigned speed = bits.Unsigned(at, 10);
    movement.speed = speed == kNoSpeed ? -1 : speed / 10.0;
    ReadPlace(bits, {at + 11, 28, 27, kFineMinutes}, movement);
    const unsigned course = bits.Unsigned(at + 66, 12);
    movement.course = course >= kFullCircle * 10 ? -1 : course / 10.0;
    const unsigned heading = bits.Unsigned(at + 78, 9);
    movement.heading = heading >= kFullCircle ? -1 : static_cast<int>(heading);
    const unsigned second = bits.Unsigned(at + 87, 6);
    movement.second = second >= 60 ? -1 : static_cast<int>(second);
}

void ReadSize(const SixBits& bits, std::size_t at, Message& message) {
    message.tellsSizeOfShip = true;
    message.particulars.toBow = static_cast<int>(bits.Unsigned(at, 9));
    message.particulars.toStern = static_cast<int>(bits.Unsigned(at + 9, 9));
    message.particulars.toPort = static_cast<int>(bits.Unsigned(at + 18, 6));
    message.particulars.toStarboard = static_cast<int>(bits.Unsigned(at + 24, 6));
}

Cause DecodeClassA(const SixBits& bits, Message& message) {
    if (bits.Size() < 168) {
        return Cause::TooShort;
    }
    message.moves = true;
    message.movement.status = static_cast<int>(bits.Unsigned(38, 4));
    ReadFineMovement(bits, 50, message.movement);
    return Cause::Message;
}

/// Type 5; receivers cut its last bits, which carry nothing that is read.
Cause DecodeVoyage(const SixBits& bits, Message& message) {
    if (bits.Size() < 420) {
        return Cause::TooShort;
    }
    Particulars& told = message.particulars;
    message.tellsName = message.tellsKind = message.tellsVoyage = true;
    told.imo = bits.Unsigned(40, 30);
    bits.Text(70, 7, told.callSign);
    bits.Text(112, 20, told.name);
    told.shipType = static_cast<int>(bits.Unsigned(232, 8));
    ReadSize(bits, 240, message);
    told.etaMonth = static_cast<int>(bits.Unsigned(274, 4));
    told.etaDay = static_cast<int>(bits.Unsigned(278, 5));
    told.etaHour = static_cast<int>(bits.Unsigned(283, 5));
    told.etaMinute = static_cast<int>(bits.Unsigned(288, 6));
    told.draught = bits.Unsigned(294, 8) / 10.0;
    bits.Text(302, 20, told.destination);
    return Cause::Message;
}

Cause DecodeClassB(const SixBits& bits, Message& message) {
    if (bits.Size() < 168) {
        return Cause::TooShort;
    }
    message.moves = true;
    ReadFineMovement(bits, 46, message.movement);
    return Cause::Message;
}

Cause DecodeClassBExtended(const SixBits& bits, Message& message) {
    if (bits.Size() < 312) {
        return Cause::TooShort;
    }
    message.moves = message.tellsName = true;
    ReadFineMovement(bits, 46, message.movement);
    bits.Text(143, 20, message.particulars.name);
    message.particulars.shipType = static_cast<int>(bits.Unsigned(263, 8));
    ReadSize(bits, 271, message);
    return Cause::Message;
}

/// Part A tells the name, part B the rest. Tenders (98...) send their mother ship's number in place of a
/// size.
Cause DecodeStaticParts(const SixBits& bits, Message& message) {
    const unsigned part = bits.Unsigned(38, 2);
    if (bits.Size() < (part == 0 ? 160U : 162U)) {
        return Cause::TooShort;
    }
    if (part == 0) {
        message.tellsName = true;
        bits.Text(40, 20, message.particulars.name);
        return Cause::Message;
    }
    if (part != 1) {
        return Cause::OtherType;
    }
    message.tellsKind = true;
    message.particulars.shipType = static_cast<int>(bits.Unsigned(40, 8));
    bits.Text(90, 7, message.particulars.callSign);
    constexpr std::uint32_t kTenders = 98, kTenderShare = 10'000'000;
    if (message.mmsi / kTenderShare != kTenders) {
        ReadSize(bits, 132, message);
    }
    return Cause::Message;
}

Cause DecodeLongRange(const SixBits& bits, Message& message) {
    if (bits.Size() < 95) {
        return Cause::TooShort;
    }
    Movement& movement = message.movement;
    message.moves = true;
    movement.status = static_cast<int>(bits.Unsigned(40, 4));
    ReadPlace(bits, {44, 18, 17, kCoarseMinutes}, movement);
    const unsigned speed = bits.Unsigned(79, 6);
    movement.speed = speed == kNoCoarseSpeed ? -1.0 : speed;
    const unsigned course = bits.Unsigned(85, 9);
    movement.course = course >= kFullCircle ? -1.0 : course;
    movement.heading = movement.second = -1;
    return Cause::Message;
}

}  // namespace

Cause DecodeMessage(const SixBits& bits, Message& message) {
    message.moves = message.tellsName = message.tellsKind = message.tellsVoyage = message.tellsSizeOfShip =
        false;
    message.type = static_cast<int>(bits.Unsigned(0, 6));
    message.mmsi = bits.Unsigned(8, 30);
    message.movement.status = -1;
    if (bits.Size() < 38 || message.mmsi == 0 || message.mmsi > kLastMmsi) {
        return Cause::TooShort;
    }
    switch (message.type) {
        case 1:
        case 2:
        case 3:
            return DecodeClassA(bits, message);
        case 5:
            return DecodeVoyage(bits, message);
        case 18:
            return DecodeClassB(bits, message);
        case 19:
            return DecodeClassBExtended(bits, message);
        case 24:
            return DecodeStaticParts(bits, message);
        case 27:
            return DecodeLongRange(bits, message);
        default:
            return Cause::OtherType;
    }
}

}  // namespace Tarvik::Ais

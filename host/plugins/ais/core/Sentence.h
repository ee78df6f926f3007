// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Tarvik::Ais {

/// What came of a line. Everything but a message, a part and another type is a fault of the line.
enum class Cause : std::uint8_t {
    Message,      ///< a message was decoded
    Part,         ///< one part of several; the others are still to come
    OtherType,    ///< a whole message of a type that is not decoded
    NotAis,       ///< no AIVDM or AIVDO sentence: other NMEA, comments, garbage
    TooLong,      ///< longer than any sentence
    Cut,          ///< ends before its checksum
    BadChecksum,  ///< the checksum is another one
    BadFields,    ///< fields missing, too many or of another form
    BadPayload,   ///< a character outside the alphabet, wrong fill bits, too many bits
    TooShort,     ///< fewer bits than its type has, or a vessel number that none has
    LostPart      ///< a part whose others were lost, came too late or did not fit
};
/// How many causes there are.
inline constexpr std::size_t kCauses = 11;

/// One AIVDM or AIVDO sentence; the payload points into the line that was read.
struct Sentence {
    std::int64_t tagTime = 0;   ///< seconds after 1970 of the tag block; 0 without one
    bool own = false;           ///< AIVDO: the receiver's own ship
    std::uint8_t parts = 1;     ///< sentences of the message, 1 to 9
    std::uint8_t part = 1;      ///< this one's number, 1 to parts
    std::int8_t sequence = -1;  ///< 0 to 9; -1 without one
    char channel = 0;           ///< "A", "B", "1", "2", …; 0 without one
    std::uint8_t fillBits = 0;  ///< 0 to 5
    std::string_view payload;   ///< armoured bits
};

/// Characters of the longest line that is read, tag block included.
inline constexpr std::size_t kLongestLine = 512;

/// Reads a line without its end. Legal: "!AIVDM,1,1,,B,177KQJ5000G?tO`K>RA1wUbN0TKH,0*5C", any two letters of
/// a talker, VDO in place of VDM, a tag block "\\c:1600000000*52\\" before it, blanks behind it. `sentence`
/// is whole only when the answer is Cause::Message.
Cause ParseSentence(std::string_view line, Sentence& sentence);

}  // namespace Tarvik::Ais

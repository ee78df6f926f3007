// SPDX-License-Identifier: MIT
// Sentences of NMEA 0183 that carry AIS (IEC 61162-1), with tag blocks of NMEA 4 before them. One pass over
// the line, nothing is copied. Cost: some 50 ns a line.
#include "host/plugins/ais/core/Sentence.h"

#include <algorithm>
#include <array>

namespace Tarvik::Ais {

namespace {

constexpr std::size_t kHead = 7;            ///< "!AIVDM,"
constexpr std::size_t kChecksumLength = 3;  ///< "*5C"
/// Times of tag blocks beyond this are milliseconds.
constexpr std::int64_t kLastSecond = 100'000'000'000;

int HexDigit(char letter) {
    if (letter >= '0' && letter <= '9') {
        return letter - '0';
    }
    const char upper = static_cast<char>(letter & ~0x20);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

bool IsCapital(char letter) {
    return letter >= 'A' && letter <= 'Z';
}

/// `text` ends in "*" and two digits that fit all before the star; it is cut to that. Some receivers put a
/// comma and words of their own behind, which do not count.
Cause CheckSum(std::string_view& text) {
    const std::size_t star = text.rfind('*');
    if (star == std::string_view::npos || star + kChecksumLength > text.size()) {
        return Cause::Cut;
    }
    const int high = HexDigit(text[star + 1]);
    const int low = HexDigit(text[star + 2]);
    if (high < 0 || low < 0 ||
        (text.size() > star + kChecksumLength && text[star + kChecksumLength] != ',')) {
        return Cause::BadChecksum;
    }
    text = text.substr(0, star);
    unsigned char sum = 0;
    for (const char letter : text) {
        sum = static_cast<unsigned char>(sum ^ static_cast<unsigned char>(letter));
    }
    return sum == high * 16 + low ? Cause::Message : Cause::BadChecksum;
}

/// The time "c:..." among the comma separated fields of a tag block, in seconds; 0 without a good one.
std::int64_t TagTime(std::string_view fields) {
    while (!fields.empty()) {
        const std::size_t end = std::min(fields.find(','), fields.size());
        const std::string_view field = fields.substr(0, end);
        fields.remove_prefix(std::min(end + 1, fields.size()));
        if (field.substr(0, 2) != "c:") {
            continue;
        }
        std::int64_t time = 0;
        for (const char letter : field.substr(2)) {
            if (!IsDigit(letter) || time > kLastSecond * 1000) {
                return 0;
            }
            time = time * 10 + (letter - '0');
        }
        return time > kLastSecond ? time / 1000 : time;
    }
    return 0;
}

/// Takes a tag block off the line's beginning.
Cause TakeTagBlock(std::string_view& line, Sentence& sentence) {
    sentence.tagTime = 0;
    if (line.empty() || line.front() != '\\') {
        return Cause::Message;
    }
    const std::size_t end = line.find('\\', 1);
    if (end == std::string_view::npos) {
        return Cause::Cut;
    }
    std::string_view block = line.substr(1, end - 1);
    line.remove_prefix(end + 1);
    const Cause sum = CheckSum(block);
    if (sum == Cause::Message) {
        sentence.tagTime = TagTime(block);
    }
    return sum;
}

bool IsHead(std::string_view line) {
    return line.size() > kHead && line[0] == '!' && IsCapital(line[1]) && IsCapital(line[2]) &&
           line[3] == 'V' && line[4] == 'D' && (line[5] == 'M' || line[5] == 'O') && line[6] == ',';
}

/// One digit or nothing, followed by a comma; moves `at` behind it. -1 for nothing, -2 for anything else.
int DigitField(std::string_view text, std::size_t& at) {
    if (at < text.size() && text[at] == ',') {
        ++at;
        return -1;
    }
    if (at + 1 >= text.size() || !IsDigit(text[at]) || text[at + 1] != ',') {
        return -2;
    }
    at += 2;
    return text[at - 2] - '0';
}

/// "1,1,,B,payload,0", all behind the head and before the checksum.
Cause ReadFields(std::string_view text, Sentence& sentence) {
    std::size_t at = 0;
    const int parts = DigitField(text, at);
    const int part = parts > 0 ? DigitField(text, at) : -2;
    const int sequence = part > 0 ? DigitField(text, at) : -2;
    if (sequence < -1 || part > parts) {
        return Cause::BadFields;
    }
    sentence.parts = static_cast<std::uint8_t>(parts);
    sentence.part = static_cast<std::uint8_t>(part);
    sentence.sequence = static_cast<std::int8_t>(sequence);
    sentence.channel = 0;
    if (at < text.size() && text[at] != ',') {
        sentence.channel = text[at++];
    }
    if (at >= text.size() || text[at] != ',') {
        return Cause::BadFields;
    }
    const std::size_t end = text.find(',', ++at);
    if (end == std::string_view::npos) {
        return Cause::BadFields;
    }
    sentence.payload = text.substr(at, end - at);
    const std::string_view fill = text.substr(end + 1);
    if (fill.size() != 1 || !IsDigit(fill[0])) {
        return Cause::BadFields;
    }
    sentence.fillBits = static_cast<std::uint8_t>(fill[0] - '0');
    return Cause::Message;
}

}  // namespace

Cause ParseSentence(std::string_view line, Sentence& sentence) {
    if (line.size() > kLongestLine) {
        return Cause::TooLong;
    }
    while (!line.empty() && (line.back() == ' ' || line.back() == '\t')) {
        line.remove_suffix(1);
    }
    if (const Cause tag = TakeTagBlock(line, sentence); tag != Cause::Message) {
        return tag;
    }
    if (!IsHead(line)) {
        return Cause::NotAis;
    }
    sentence.own = line[5] == 'O';
    line.remove_prefix(1);
    if (const Cause sum = CheckSum(line); sum != Cause::Message) {
        return sum;
    }
    return line.size() < kHead ? Cause::BadFields : ReadFields(line.substr(kHead - 1), sentence);
}

}  // namespace Tarvik::Ais

// SPDX-License-Identifier: MIT
#include "host/plugins/ais/core/SentenceWriter.h"

#include <algorithm>
#include <cstdio>

namespace Tarvik::Ais {

namespace {

/// The value of a letter in the six-bit alphabet, which has capitals alone. What it lacks becomes "?".
int SixBitsOf(char letter) {
    const bool isSmall = letter >= 'a' && letter <= 'z';
    const int capital = isSmall ? letter - 'a' + 'A' : letter;
    if (capital < ' ' || capital > '_') {
        return '?';
    }
    return capital >= '@' ? capital - '@' : capital;
}

}  // namespace

BitWriter& BitWriter::Number(std::int64_t value, int count) {
    for (int bit = count - 1; bit >= 0; --bit) {
        bits_.push_back((value >> bit & 1) != 0);
    }
    return *this;
}

BitWriter& BitWriter::Text(const std::string& text, int characters) {
    for (int i = 0; i < characters; ++i) {
        const char letter = i < static_cast<int>(text.size()) ? text[static_cast<std::size_t>(i)] : '@';
        Number(SixBitsOf(letter), 6);
    }
    return *this;
}

std::string BitWriter::Armoured(int& fillBits) const {
    std::string payload;
    fillBits = static_cast<int>((6 - bits_.size() % 6) % 6);
    for (std::size_t at = 0; at < bits_.size(); at += 6) {
        int value = 0;
        for (std::size_t i = at; i < at + 6; ++i) {
            value = value * 2 + (i < bits_.size() && bits_[i] ? 1 : 0);
        }
        payload.push_back(static_cast<char>(value < 40 ? value + '0' : value - 40 + '`'));
    }
    return payload;
}

std::string Checked(const std::string& body) {
    unsigned sum = 0;
    for (const char letter : body) {
        sum ^= static_cast<unsigned char>(letter);
    }
    char digits[4];
    std::snprintf(digits, sizeof digits, "*%02X", sum & 0xFFU);
    return "!" + body + digits;
}

std::vector<std::string> Sentences(const BitWriter& bits, int sequence, char channel) {
    constexpr std::size_t kPiece = 60;
    int fill = 0;
    const std::string payload = bits.Armoured(fill);
    const std::size_t parts = std::max<std::size_t>(1, (payload.size() + kPiece - 1) / kPiece);
    std::vector<std::string> lines;
    for (std::size_t part = 0; part < parts; ++part) {
        const std::string id = sequence < 0 ? "" : std::to_string(sequence);
        lines.push_back(Checked("AIVDM," + std::to_string(parts) + "," + std::to_string(part + 1) + "," + id +
                                "," + channel + "," + payload.substr(part * kPiece, kPiece) + "," +
                                std::to_string(part + 1 == parts ? fill : 0)));
    }
    return lines;
}

BitWriter ClassA(const RawMovement& movement) {
    BitWriter bits;
    bits.Number(movement.type, 6).Number(0, 2).Number(movement.mmsi, 30).Number(movement.status, 4);
    bits.Number(0, 8).Number(movement.speed, 10).Number(0, 1);
    bits.Number(movement.longitude, 28).Number(movement.latitude, 27);
    bits.Number(movement.course, 12).Number(movement.heading, 9).Number(movement.second, 6);
    return bits.Number(0, 25);
}

BitWriter ClassB(const RawMovement& movement) {
    BitWriter bits;
    bits.Number(18, 6)
        .Number(0, 2)
        .Number(movement.mmsi, 30)
        .Number(0, 8)
        .Number(movement.speed, 10)
        .Number(0, 1);
    bits.Number(movement.longitude, 28).Number(movement.latitude, 27);
    bits.Number(movement.course, 12).Number(movement.heading, 9).Number(movement.second, 6);
    return bits.Number(0, 29);
}

BitWriter LongRange(const RawMovement& movement) {
    BitWriter bits;
    bits.Number(27, 6).Number(0, 2).Number(movement.mmsi, 30).Number(0, 2).Number(movement.status, 4);
    bits.Number(movement.longitude, 18).Number(movement.latitude, 17);
    return bits.Number(movement.speed, 6).Number(movement.course, 9).Number(0, 2);
}

BitWriter VoyageData(std::int64_t mmsi, const std::string& name, const std::string& callSign,
                     const std::string& destination) {
    BitWriter bits;
    bits.Number(5, 6).Number(0, 2).Number(mmsi, 30).Number(0, 2).Number(9134270, 30);
    bits.Text(callSign, 7)
        .Text(name, 20)
        .Number(70, 8)
        .Number(225, 9)
        .Number(70, 9)
        .Number(1, 6)
        .Number(31, 6);
    bits.Number(1, 4).Number(5, 4).Number(15, 5).Number(16, 5).Number(0, 6).Number(122, 8);
    return bits.Text(destination, 20).Number(0, 2);
}

}  // namespace Tarvik::Ais

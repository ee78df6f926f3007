// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Tarvik::Ais {

/// Bits of a message under construction, the inverse of what is read.
class BitWriter {
  public:
    BitWriter& Number(std::int64_t value, int count);
    /// Six-bit text, filled up with "@". Small letters become capitals, what the alphabet lacks becomes "?".
    BitWriter& Text(const std::string& text, int characters);
    /// Payload of all bits; `fillBits` takes how many were added.
    std::string Armoured(int& fillBits) const;

  private:
    std::vector<bool> bits_;
};

/// The sentence "!<body>*<checksum>" without a line end.
std::string Checked(const std::string& body);
/// The sentences of a message, at most 60 characters of payload in each. `sequence` -1 leaves it out.
std::vector<std::string> Sentences(const BitWriter& bits, int sequence = -1, char channel = 'A');

/// Raw values of a class A position report.
struct RawMovement {
    int type = 1;
    std::int64_t mmsi = 0;
    int status = 0, speed = 0, course = 0, heading = 0, second = 0;
    std::int64_t longitude = 0, latitude = 0;  ///< ten-thousandths of a minute
};
BitWriter ClassA(const RawMovement& movement);
/// Type 18.
BitWriter ClassB(const RawMovement& movement);
/// Type 27; places in tenths of a minute, whole knots and degrees.
BitWriter LongRange(const RawMovement& movement);
/// Type 5.
BitWriter VoyageData(std::int64_t mmsi, const std::string& name, const std::string& callSign,
                     const std::string& destination);

}  // namespace Tarvik::Ais

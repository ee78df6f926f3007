// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Tarvik::Ais {

/// From where sentences come.
enum class InputKind { Tcp, Udp, Serial, File, Gpsd };

/// One input. As a text, which a person types and the settings keep:
///
///     tcp://host:port              a receiver or server that is called
///     udp://:port                  datagrams sent to this computer's port; udp://address:port takes them at
///     that
///                                  address alone
///     serial:/dev/ttyUSB0?baud=38400
///     file:/path/log.nmea?pace=10  a log by the times of its tag blocks, here ten times as fast; pace 0 as
///     fast as
///                                  it goes
///     gpsd://host:port             a gpsd, whose receivers are asked for their sentences
///
/// Without them the port is 10110, gpsd's 2947, the baud rate 38400 and the pace 1.
struct InputAddress {
    InputKind kind = InputKind::Tcp;
    std::string place;  ///< host or address, device or file
    std::uint16_t port = 0;
    unsigned baud = 38400;
    double pace = 1;

    /// Reads a text of that form; blanks around it do not count. Nothing for any other.
    static std::optional<InputAddress> Parse(std::string_view text);
    bool operator==(const InputAddress&) const = default;
};

}  // namespace Tarvik::Ais

// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "host/plugins/ais/input/InputAddress.h"

namespace Tarvik::Ais {

namespace {

TEST(InputAddressTest, EachKindIsRead) {
    EXPECT_EQ(InputAddress::Parse(" tcp://ais.example:4001 "),
              (InputAddress{InputKind::Tcp, "ais.example", 4001}));
    EXPECT_EQ(InputAddress::Parse("tcp://[::1]:4001"), (InputAddress{InputKind::Tcp, "::1", 4001}));
    EXPECT_EQ(InputAddress::Parse("tcp://ais.example")->port, 10110);
    EXPECT_EQ(InputAddress::Parse("udp://:10111"), (InputAddress{InputKind::Udp, "", 10111}));
    EXPECT_EQ(InputAddress::Parse("udp://")->port, 10110);
    EXPECT_EQ(InputAddress::Parse("gpsd://localhost"), (InputAddress{InputKind::Gpsd, "localhost", 2947}));
    EXPECT_EQ(InputAddress::Parse("serial:/dev/ttyUSB0?baud=4800"),
              (InputAddress{InputKind::Serial, "/dev/ttyUSB0", 0, 4800}));
    EXPECT_EQ(InputAddress::Parse("serial:/dev/ttyUSB0")->baud, 38400U);
    EXPECT_EQ(InputAddress::Parse("file:/logs/a b.nmea?pace=2.5"),
              (InputAddress{InputKind::File, "/logs/a b.nmea", 0, 38400, 2.5}));
    EXPECT_EQ(InputAddress::Parse("file:/logs/x?pace=0")->pace, 0);
}

TEST(InputAddressTest, OthersAreRefused) {
    for (const char* text :
         {"", " ", "ais.example:4001", "http://x", "tcp://", "tcp://:10", "tcp://x:0", "tcp://x:65536",
          "tcp://x:1a", "tcp://x/y", "udp://:x", "serial:", "serial:/dev/x?baud=1", "serial:/dev/x?pace=1",
          "file:", "file:/x?pace=-1", "file:/x?pace=nan", "file:/x?baud=1"}) {
        EXPECT_FALSE(InputAddress::Parse(text)) << text;
    }
}

}  // namespace
}  // namespace Tarvik::Ais

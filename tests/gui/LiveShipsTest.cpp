// SPDX-License-Identifier: MIT
// The AIS plug-in in the client, on a real display, with a receiver of the test's own.
#include <filesystem>
#include <fstream>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>
#include <gtest/gtest.h>

#include "host/plugins/ais/core/SentenceWriter.h"
#include "tests/gui/Display.h"
#include "tests/gui/Picture.h"
#include "tests/gui/Sitting.h"

namespace Tarvik::Programs {

namespace {

namespace asio = boost::asio;

/// A receiver on this computer, and one who calls it.
class Receiver {
  public:
    Receiver() { acceptor_.non_blocking(true); }

    std::string Address() const {
        return "tcp://127.0.0.1:" + std::to_string(acceptor_.local_endpoint().port());
    }
    void AwaitCaller() {
        AwaitOrThrow(
            [this] {
                boost::system::error_code error;
                acceptor_.accept(peer_, error);
                return !error;
            },
            "the client calls the receiver");
        peer_.non_blocking(false);
    }
    /// Returns when the caller has taken all of it.
    void Send(const std::string& lines) { asio::write(peer_, asio::buffer(lines)); }
    void HangUp() { peer_.close(); }

  private:
    asio::io_context io_;
    asio::ip::tcp::acceptor acceptor_{io_, {asio::ip::address_v4::loopback(), 0}};
    asio::ip::tcp::socket peer_{io_};
};

/// What a ship at a place says, in degrees.
std::string Report(int mmsi, int longitude, int latitude) {
    constexpr int kPerDegree = 600'000;
    Ais::RawMovement raw{1, mmsi};
    raw.longitude = longitude * kPerDegree;
    raw.latitude = latitude * kPerDegree;
    raw.heading = 90;
    return Ais::Sentences(Ais::ClassA(raw)).front() + "\r\n";
}

std::string Flood(int sentences) {
    constexpr int kFirstShip = 201'000'000;
    constexpr int kShips = 5'000;
    std::string lines;
    for (int i = 0; i < sentences; ++i) {
        lines += Report(kFirstShip + i % kShips, i % 360 - 180, i % 120 - 60);
    }
    return lines;
}

TEST(LiveShips, SailOnTheChartWhateverTheReceiverDoes) {
    constexpr int kShip = 636091201;
    const Display display;
    ASSERT_NE(display.Name(), "");
    const Person person{display.Name()};
    const ClientTree client;
    Receiver receiver;
    std::filesystem::create_directories(client.Data("businessdata/ais"));
    std::ofstream(client.Data("businessdata/ais/settings.json"))
        << R"({"inputs": [")" << receiver.Address() << R"("], "showShips": true})";
    Sitting sitting(client, person, display.Name());
    receiver.AwaitCaller();
    // The chart without tools, status line and scale bar.
    const auto chart = [&] { return Cut(person.Look(sitting.main), 200, 60, 1000, 600); };
    const auto awaitOther = [&chart](const std::string& before) {
        std::string now;
        AwaitOrThrow([&] { return (now = chart()) != before; }, "the chart changes");
        return now;
    };
    const std::string empty = chart();
    ASSERT_NE(empty, "");
    receiver.Send(Report(kShip, 0, 0));
    const std::string first = awaitOther(empty);
    receiver.Send("garbage\r\n!AIVDM,1,1,,A,cut\r\n" + Report(kShip, 40, -20));
    awaitOther(first);
    receiver.HangUp();
    receiver.AwaitCaller();
    const std::string back = chart();
    receiver.Send(Flood(100'000));
    awaitOther(back);
    sitting.OpenVoyages();
    const Ended ended = sitting.Leave();
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
}

}  // namespace
}  // namespace Tarvik::Programs

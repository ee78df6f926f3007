// SPDX-License-Identifier: MIT
// Sources over loopback. Source and peer run on one context, so that each step of a test waits for an event;
// what depends on time is told by Tick.
#include <array>
#include <functional>
#include <memory>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ip/udp.hpp>
#include <boost/asio/write.hpp>
#include <gtest/gtest.h>

#include "host/plugins/ais/input/Retry.h"
#include "host/plugins/ais/input/Source.h"

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;
using asio::ip::tcp;
using asio::ip::udp;

class SourceTest : public testing::Test {
  protected:
    /// Runs the context until the condition holds; a bound keeps a failing test from hanging.
    void Until(const std::function<bool()>& holds) {
        const auto bound = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        io.restart();
        while (!holds() && std::chrono::steady_clock::now() < bound) {
            io.run_one_for(std::chrono::seconds(1));
            io.restart();
        }
        EXPECT_TRUE(holds());
    }
    void Start(InputKind kind, std::uint16_t at) {
        InputAddress address;
        address.kind = kind;
        address.place = "127.0.0.1";
        address.port = at;
        source = Source::Make(io, address,
                              {[this](std::string_view bytes) { heard += bytes; }, [this] { ++began; }});
        source->Tick(now);
    }
    /// The next caller of the acceptor.
    std::shared_ptr<tcp::socket> Accepted() {
        auto peer = std::make_shared<tcp::socket>(io);
        bool done = false;
        acceptor.async_accept(*peer, [&done](boost::system::error_code error) { done = !error; });
        Until([&done] { return done; });
        return peer;
    }
    void Say(const std::shared_ptr<tcp::socket>& peer, const std::string& text) {
        const auto kept = std::make_shared<std::string>(text);
        asio::async_write(*peer, asio::buffer(*kept),
                          [peer, kept](boost::system::error_code, std::size_t) {});
    }
    void TearDown() override {
        if (source) {
            source->Close();
        }
        io.restart();
        io.poll();
    }

    asio::io_context io;
    tcp::acceptor acceptor{io, {asio::ip::address_v4::loopback(), 0}};
    std::uint16_t port = acceptor.local_endpoint().port();
    std::shared_ptr<Source> source;
    std::string heard;
    int began = 0;
    std::int64_t now = 1'000'000;
};

TEST_F(SourceTest, TcpBytesAreHeard) {
    Start(InputKind::Tcp, port);
    const auto peer = Accepted();
    Say(peer, "!AIVDM");
    Until([this] { return heard == "!AIVDM"; });
    EXPECT_TRUE(source->State().open);
    EXPECT_EQ(source->State().openings, 1U);
    EXPECT_EQ(source->State().error, "");
}

TEST_F(SourceTest, ClosedTcpSourceIsCalledAgainAfterAPause) {
    Start(InputKind::Tcp, port);
    auto peer = Accepted();
    Say(peer, "first");
    Until([this] { return heard == "first"; });
    peer->close();
    Until([this] { return !source->State().open; });
    EXPECT_EQ(source->State().error, "closed by the other side");
    source->Tick(now + Retry::kFirstPause - 1);
    io.restart();
    io.poll();
    EXPECT_FALSE(source->State().open);
    source->Tick(now + Retry::kFirstPause);
    peer = Accepted();
    Say(peer, "second");
    Until([this] { return heard == "firstsecond"; });
    EXPECT_EQ(began, 2);
    EXPECT_EQ(source->State().openings, 2U);
    EXPECT_EQ(source->State().error, "");
}

TEST_F(SourceTest, RefusedCallIsAnErrorAndIsTriedAgain) {
    acceptor.close();
    Start(InputKind::Tcp, port);
    Until([this] { return !source->State().error.empty(); });
    EXPECT_FALSE(source->State().open);
    acceptor = tcp::acceptor(io, {asio::ip::address_v4::loopback(), port});
    source->Tick(now + Retry::kFirstPause);
    Accepted();
    Until([this] { return source->State().open; });
}

TEST_F(SourceTest, StalledSourceIsCalledAgain) {
    Start(InputKind::Tcp, port);
    const auto peer = Accepted();
    Until([this] { return source->State().open; });
    source->Tick(now + Retry::kLongestSilence);
    EXPECT_TRUE(source->State().open);
    source->Tick(now + Retry::kLongestSilence + 1);
    EXPECT_FALSE(source->State().open);
    EXPECT_EQ(source->State().error, "nothing heard for two minutes");
    source->Tick(now + Retry::kLongestSilence + 1 + Retry::kFirstPause);
    Accepted();
    Until([this] { return source->State().open; });
    EXPECT_EQ(began, 2);
}

TEST_F(SourceTest, FloodIsHeardWhole) {
    Start(InputKind::Tcp, port);
    const auto peer = Accepted();
    std::string flood;
    for (int i = 0; i < 100'000; ++i) {
        flood += "!AIVDM,1,1,,B,177KQJ5000G?tO`K>RA1wUbN0TKH,0*5C\r\n";
    }
    Say(peer, flood);
    Until([&] { return heard.size() >= flood.size(); });
    EXPECT_EQ(heard, flood);
}

TEST_F(SourceTest, ClosedSourceHearsNothingMore) {
    Start(InputKind::Tcp, port);
    const auto peer = Accepted();
    Until([this] { return source->State().open; });
    source->Close();
    source.reset();
    Say(peer, "late");
    io.restart();
    io.poll();
    EXPECT_EQ(heard, "");
}

TEST_F(SourceTest, GpsdIsAskedForItsSentences) {
    Start(InputKind::Gpsd, port);
    const auto peer = Accepted();
    std::array<char, 200> asked{};
    std::size_t size = 0;
    peer->async_read_some(asio::buffer(asked),
                          [&size](boost::system::error_code, std::size_t got) { size = got; });
    Until([&size] { return size > 0; });
    EXPECT_EQ(std::string(asked.data(), size), "?WATCH={\"enable\":true,\"raw\":1};\n");
}

TEST_F(SourceTest, DatagramsAreHeardAsLines) {
    udp::socket finder(io, {asio::ip::address_v4::loopback(), 0});
    const std::uint16_t free = finder.local_endpoint().port();
    finder.close();
    Start(InputKind::Udp, free);
    ASSERT_TRUE(source->State().open) << source->State().error;
    udp::socket peer(io, udp::v4());
    for (const std::string text : {"one", "two\n"}) {
        peer.send_to(asio::buffer(text), {asio::ip::address_v4::loopback(), free});
    }
    Until([this] { return heard.size() >= 8; });
    EXPECT_EQ(heard, "one\ntwo\n");
}

TEST_F(SourceTest, MissingSerialLineIsAnError) {
    InputAddress address;
    address.kind = InputKind::Serial;
    address.place = "/dev/no-such-receiver";
    source = Source::Make(io, address, {[](std::string_view) {}, [] {}});
    source->Tick(now);
    EXPECT_FALSE(source->State().open);
    EXPECT_FALSE(source->State().error.empty());
}

}  // namespace
}  // namespace Tarvik::Ais

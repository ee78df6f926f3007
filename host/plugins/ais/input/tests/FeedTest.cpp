// SPDX-License-Identifier: MIT
// The whole way from a TCP server to the traffic, on the feed's own thread. A test waits for what it expects,
// with a bound.
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <random>
#include <string>
#include <thread>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/read_until.hpp>
#include <boost/asio/write.hpp>
#include <gtest/gtest.h>

#include "host/plugins/ais/core/SentenceWriter.h"
#include "host/plugins/ais/input/Feed.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;
using asio::ip::tcp;

constexpr std::int64_t kNow = 1'700'000'000;

class FeedTest : public testing::Test {
  protected:
    FeedTest() {
        feed.OnMessages([this] {
            const std::lock_guard lock(mutex);
            changed.notify_all();
        });
    }
    /// Looks again after each turn with messages, at the latest after a short while.
    template <class Condition>
    void Until(const Condition& holds) {
        std::unique_lock lock(mutex);
        for (int i = 0; i < 3000 && !holds(); ++i) {
            changed.wait_for(lock, std::chrono::milliseconds(10));
        }
        EXPECT_TRUE(holds());
    }
    void Connect(InputKind kind = InputKind::Tcp) {
        InputAddress address{kind, "127.0.0.1", acceptor.local_endpoint().port()};
        feed.SetInputs({{address, "tcp://here"}});
    }
    static std::string Report(std::uint32_t mmsi, int step = 0) {
        RawMovement raw{1, mmsi};
        raw.longitude = 600000 * 5 + step;
        raw.latitude = 600000 * 50;
        return Sentences(ClassA(raw))[0] + "\r\n";
    }

    TestSupport::DataFolder folder;
    asio::io_context io;
    tcp::acceptor acceptor{io, {asio::ip::address_v4::loopback(), 0}};
    Traffic traffic{(folder.Path() / "ais.db").string(), kNow};
    std::mutex mutex;
    std::condition_variable changed;
    std::atomic<std::int64_t> utc{kNow};
    Feed feed{traffic, [this] { return utc.load(); }};
};

TEST_F(FeedTest, MessagesReachTheTraffic) {
    Connect();
    tcp::socket peer = acceptor.accept();
    asio::write(peer, asio::buffer(Report(123456789)));
    Until([this] { return traffic.Find(123456789).has_value(); });
    EXPECT_DOUBLE_EQ(traffic.Find(123456789)->last.longitude, 5);
    EXPECT_EQ(traffic.Find(123456789)->last.time, kNow);
    Until([this] { return feed.Status().perMinute == 1; });
    EXPECT_EQ(feed.Status().open, 1);
    EXPECT_EQ(feed.Status().error, "");
}

/// What a gpsd says around the sentences, and may say beside them, is passed over.
TEST_F(FeedTest, GpsdGivesItsReceiversSentencesBetweenItsOwnLines) {
    Connect(InputKind::Gpsd);
    tcp::socket peer = acceptor.accept();
    asio::write(peer,
                asio::buffer(std::string(
                    R"({"class":"VERSION","release":"3.22","rev":"3.22","proto_major":3,"proto_minor":14})"
                    "\r\n")));
    std::string asked;
    asio::read_until(peer, asio::dynamic_buffer(asked), '\n');
    EXPECT_NE(asked.find("?WATCH={\"enable\":true"), std::string::npos) << asked;
    asio::write(
        peer,
        asio::buffer(
            R"({"class":"DEVICES","devices":[{"class":"DEVICE","path":"/dev/ttyUSB0","driver":"AIVDM"}]})"
            "\r\n"
            R"({"class":"WATCH","enable":true,"json":false,"nmea":false,"raw":1,"scaled":false})"
            "\r\n" +
            Report(123456789) +
            R"({"class":"AIS","device":"/dev/ttyUSB0","type":1,"mmsi":987654321,"lon":3000000})"
            "\r\n" +
            Report(123456790)));
    Until([this] { return traffic.Find(123456790).has_value(); });
    EXPECT_TRUE(traffic.Find(123456789).has_value());
    EXPECT_FALSE(traffic.Find(987654321).has_value()) << "sentences alone are read";
    Until([this] { return feed.Status().perMinute == 2; });
    EXPECT_EQ(feed.Status().error, "");
}

TEST_F(FeedTest, ServerThatClosesIsCalledAgain) {
    Connect();
    {
        tcp::socket peer = acceptor.accept();
        asio::write(peer, asio::buffer(Report(1)));
        Until([this] { return traffic.Find(1).has_value(); });
    }
    Until([this] { return !feed.Status().error.empty(); });
    EXPECT_EQ(feed.Status().error, "tcp://here: closed by the other side");
    tcp::socket peer = acceptor.accept();
    asio::write(peer, asio::buffer(Report(2)));
    Until([this] { return traffic.Find(2).has_value(); });
    Until([this] { return feed.Status().error.empty(); });
    EXPECT_EQ(feed.Status().openings, 2U);
}

TEST_F(FeedTest, FloodAndGarbageLeaveTheAskingThreadFree) {
    Connect();
    tcp::socket peer = acceptor.accept();
    std::thread flood([&peer] {
        std::mt19937 random(1);
        std::string all;
        for (std::uint32_t i = 0; i < 100'000; ++i) {
            all += Report(200'000'000 + i % 1000, static_cast<int>(i));
        }
        std::string garbage(1'000'000, ' ');
        for (char& letter : garbage) {
            letter = static_cast<char>(random());
        }
        asio::write(peer, asio::buffer(all));
        asio::write(peer, asio::buffer(garbage));
        asio::write(peer, asio::buffer("\n" + Report(42)));
    });
    auto longest = std::chrono::steady_clock::duration::zero();
    Until([&] {
        const auto before = std::chrono::steady_clock::now();
        traffic.HeardSince(0);
        feed.Status();
        longest = std::max(longest, std::chrono::steady_clock::now() - before);
        return traffic.Find(42).has_value();
    });
    flood.join();
    Until([this] { return feed.Status().messages >= 100'001; });
    EXPECT_EQ(traffic.HeardSince(0).size(), 1001U);
    EXPECT_GT(feed.Status().faults, 0U);
    RecordProperty("longestMs",
                   static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(longest).count()));
    EXPECT_LT(longest, std::chrono::seconds(10)) << "a bound for a machine that does much else";
}

TEST_F(FeedTest, OtherInputsReplaceThoseBefore) {
    Connect();
    tcp::socket peer = acceptor.accept();
    Until([this] { return feed.Status().open == 1; });
    feed.SetInputs({});
    char byte = 0;
    boost::system::error_code error;
    peer.read_some(asio::buffer(&byte, 1), error);
    EXPECT_TRUE(error);
    Until([this] { return feed.Status().inputs == 0; });
}

}  // namespace
}  // namespace Tarvik::Ais

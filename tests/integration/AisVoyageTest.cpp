// SPDX-License-Identifier: MIT
// The voyage plug-in follows its ship over the bus: sentences go through a TCP server, the AIS plug-in's
// input, decoder, store and services to the controllers.
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>

#include "host/plugins/ais/core/SentenceWriter.h"
#include "host/plugins/ais/input/Feed.h"
#include "host/plugins/ais/services/VesselServices.h"
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

namespace asio = boost::asio;

constexpr int kMmsi = 412000000;
/// First departure of the sample voyage, 14:00 in the plan's zone, as a GMT timer value.
constexpr std::int64_t kDeparture = 1709272800;

/// The AIS plug-in's parts and a server that feeds them. They stand before the recording host, which
/// therefore leaves their services to them.
class FeedUnderTest {
  public:
    FeedUnderTest() {
        feed_.OnMessages([this] {
            const std::lock_guard lock(mutex_);
            heard_.notify_all();
        });
        Ais::InputAddress address{Ais::InputKind::Tcp, "127.0.0.1", acceptor_.local_endpoint().port()};
        feed_.SetInputs({{address, "tcp"}});
        peer_ = acceptor_.accept();
    }
    /// Sends a report of the ship at a time and waits until it is there.
    void Report(std::int64_t time, double longitude, double latitude) {
        Ais::RawMovement raw{1, kMmsi};
        raw.longitude = static_cast<std::int64_t>(longitude * 600000);
        raw.latitude = static_cast<std::int64_t>(latitude * 600000);
        utc_ = time;
        asio::write(peer_, asio::buffer(Ais::Sentences(Ais::ClassA(raw))[0] + "\r\n"));
        std::unique_lock lock(mutex_);
        const auto arrived = [&] {
            const auto vessel = traffic_.Find(kMmsi);
            return vessel && vessel->hasFix && vessel->last.time == time;
        };
        for (int i = 0; i < 3000 && !arrived(); ++i) {
            heard_.wait_for(lock, std::chrono::milliseconds(10));
        }
        ASSERT_TRUE(arrived());
    }

  private:
    std::atomic<std::int64_t> utc_{kDeparture};
    asio::io_context io_;
    asio::ip::tcp::acceptor acceptor_{io_, {asio::ip::address_v4::loopback(), 0}};
    asio::ip::tcp::socket peer_{io_};
    std::mutex mutex_;
    std::condition_variable heard_;
    Ais::Traffic traffic_{"", kDeparture};
    Ais::VesselServices services_{traffic_, [](const Ais::CardFacts&) {}};
    Ais::Feed feed_{traffic_, [this] { return utc_.load(); }};
};

class AisVoyageTest : public FeedUnderTest, public ScheduleFixture {
  protected:
    AisVoyageTest() {
        clock.SetUtc(2024, 3, 2);
        ReplySchedule();
        voyages.LoadSchedule("9", rows, -1);
        Voyage().vsi = "s";
        Voyage().vsn = "Ship";
        Voyage().vsmsi = kMmsi;
        host.chartCalls.clear();
    }
};

TEST_F(AisVoyageTest, RefreshTakesTheNewestPositionOverTcp) {
    EXPECT_EQ(voyages.RefreshVesselPositions(), -1) << "nothing was heard yet";
    Report(kDeparture + 60, 0.25, 0.125);
    EXPECT_EQ(voyages.RefreshVesselPositions(), 0);
    EXPECT_EQ(Voyage().lastPosText, "0.250,0.125");
    EXPECT_EQ(Voyage().lastPosTime, kDeparture + 60);
    Report(kDeparture + 120, 0.375, 0.125);
    EXPECT_EQ(voyages.RefreshVesselPositions(), 0);
    EXPECT_EQ(Voyage().lastPosText, "0.375,0.125");
}

TEST_F(AisVoyageTest, TraceDrawsTheVoyagesTrackAndTakesItsNewestFix) {
    EXPECT_EQ(voyages.RefreshTrace("9"), -5) << "no track yet";
    Report(kDeparture - 3600, -1, 0);
    for (int i = 1; i <= 3; ++i) {
        Report(kDeparture + i * 600, 0.125 * i, 0.25);
    }
    EXPECT_EQ(voyages.RefreshTrace("9"), 0);
    EXPECT_EQ(Voyage().lastPosText, "0.375,0.250");
    EXPECT_EQ(Voyage().lastPosTime, kDeparture + 1800);
    const auto lines = host.ChartCallsOf("TRV_MAP_ADD_LINE");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].points,
              (std::vector<std::string>{"0.12500,0.25000", "0.25000,0.25000", "0.37500,0.25000"}));
    EXPECT_EQ(voyages.HideAisTrack("9"), 0);
    EXPECT_FALSE(host.ChartCallsOf("TRV_MAP_DEL_OBJECTS").empty());
}

}  // namespace
}  // namespace Tarvik::Seaplan

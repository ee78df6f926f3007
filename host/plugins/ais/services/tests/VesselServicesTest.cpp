// SPDX-License-Identifier: MIT
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/ChartRecords.h>

#include "host/plugins/ais/services/VesselServices.h"
#include "host/plugins/ais/store/tests/Reports.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Ais {

namespace {

using Interface::VesselPosition;

class VesselServicesTest : public testing::Test {
  protected:
    VesselServicesTest() {
        chart.Keep(
            Interface::Offer(Interface::Bus::MapAddLine,
                             [this](const Interface::TrvMapLineParams& line) { lines.push_back(line); }));
        chart.Keep(Interface::Offer(
            Interface::Bus::MapDeleteObjects,
            [this](const Interface::TrvMapObjectList& list) { deleted.push_back(list.objects[0].id); }));
    }
    std::vector<VesselPosition> Positions(const std::vector<std::string>& vessels) {
        const auto* answer = Interface::Call(Interface::Bus::VesselPositions, &vessels);
        return answer == nullptr ? std::vector<VesselPosition>() : *answer;
    }
    std::string Trace(std::int64_t begin, std::int64_t end, std::int32_t mmsi = 123456789) {
        const Interface::VesselTraceRequest request{"9", mmsi, static_cast<std::int32_t>(begin),
                                                    static_cast<std::int32_t>(end)};
        const std::string* answer = Interface::Call(Interface::Bus::VesselTrace, &request);
        return answer == nullptr ? "" : *answer;
    }
    void Hear(std::int64_t after, double longitude) {
        traffic.Take(PositionOf(123456789, longitude, -20), now + after);
    }

    TestSupport::ManualClock clock;
    const std::int64_t now = UtcNow();
    std::vector<Interface::TrvMapLineParams> lines;
    std::vector<std::string> deleted;
    Interface::BindingList chart;
    std::optional<CardFacts> card;
    Traffic traffic{"", now};
    VesselServices services{traffic, [this](const CardFacts& facts) { card = facts; }};
};

TEST_F(VesselServicesTest, PositionsOfVesselsThatWereHeardAreTold) {
    Hear(0, 10.5);
    const auto answer = Positions({"9|123456789", "8|987654321", "7|0", "6"});
    ASSERT_EQ(answer.size(), 1U);
    EXPECT_EQ(answer[0].vesselId, "9");
    EXPECT_EQ(answer[0].vsmsi, 123456789);
    EXPECT_EQ(answer[0].time, now);
    EXPECT_EQ(answer[0].x, 10.5);
    EXPECT_EQ(answer[0].y, -20);
}

TEST_F(VesselServicesTest, NumberThatIsNotGivenIsTheFleets) {
    const std::vector<Interface::FleetEntry> fleet{{"8", "B", 0}, {"9", "A", 123456789}};
    const auto binding = Interface::Offer(Interface::Bus::AllVessels, [&fleet] { return &fleet; });
    Hear(0, 10.5);
    const auto answer = Positions({"9|0", "8|0"});
    ASSERT_EQ(answer.size(), 1U);
    EXPECT_EQ(answer[0].vsmsi, 123456789);
}

TEST_F(VesselServicesTest, TraceDrawsTheTrackAndTellsItsNewestFix) {
    Positions({"9|123456789"});
    for (int i = 0; i < 4; ++i) {
        Hear(i * 60 - 240, 10 + i);
    }
    EXPECT_EQ(Trace(now - 180, now), std::to_string(now - 60) + "|13.000000|-20.000000|123456789");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].points,
              (std::vector<std::string>{"11.00000,-20.00000", "12.00000,-20.00000", "13.00000,-20.00000"}));
    EXPECT_EQ(lines[0].ref.id, "9");
    EXPECT_EQ(lines[0].ref.layer, TrackLayer::kLayer);
}

TEST_F(VesselServicesTest, TraceWithoutATrackTellsNothing) {
    Hear(0, 10);
    EXPECT_EQ(Trace(0, now, 0), "") << "nobody knows the vessel's number";
    EXPECT_EQ(Trace(0, now - 1), "");
    EXPECT_EQ(Trace(now + 1, now + 1000), "");
    EXPECT_EQ(Trace(0, now, 987654321), "");
    EXPECT_TRUE(lines.empty());
}

TEST_F(VesselServicesTest, FixAheadOfTheClockIsNoPlaceOfTheShip) {
    Hear(0, 10);
    Hear(7200, 11);
    EXPECT_EQ(Trace(now - 100, now + 100'000).substr(0, 21), std::to_string(now) + "|10.000000|");
}

TEST_F(VesselServicesTest, HidingTakesTheLineOff) {
    Hear(0, 10);
    Trace(0, now);
    for (const std::string vessel : {"9|123456789", "9|123456789", "5|1"}) {
        Interface::Call(Interface::Bus::HideAisTrack, &vessel);
    }
    EXPECT_EQ(deleted, (std::vector<std::string>{"9"}));
}

TEST_F(VesselServicesTest, TrackOnTheChartGrowsWithTheFeed) {
    Hear(-60, 10);
    Trace(0, now + 3600);
    services.RefreshTracks();
    EXPECT_EQ(lines.size(), 1U) << "nothing new";
    Hear(0, 11);
    services.RefreshTracks();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1].points.back(), "11.00000,-20.00000");
    services.RefreshTracks();
    EXPECT_EQ(lines.size(), 2U);
}

TEST_F(VesselServicesTest, CardTellsTheFeedsFixAndTheVoyagesPorts) {
    Hear(0, 10.5);
    traffic.Take(NameOf(123456789, "OTHER NAME"), now);
    Positions({"9|123456789"});
    Interface::VesselCard record;
    record.vi = "1";
    record.vsi = "9";
    record.vsn = "My ship";
    record.vessel.x = 1;
    record.vessel.y = 2;
    record.vessel.firstPortName = "Rotterdam";
    record.vessel.lastPortName = "Shanghai";
    record.cursorX = 12;
    record.cursorY = 34;
    Interface::Call(Interface::Bus::ShowVesselCard, &std::as_const(record));
    ASSERT_TRUE(card);
    EXPECT_EQ(card->name, "My ship");
    EXPECT_EQ(card->mmsi, 123456789U);
    EXPECT_EQ(card->fix.longitude, 10.5);
    EXPECT_EQ(card->fix.speed, 12.5);
    EXPECT_FALSE(card->planned);
    EXPECT_EQ(card->firstPort, "Rotterdam");
    EXPECT_EQ(card->lastPort, "Shanghai");
    EXPECT_EQ(card->cursorX, 12);
    EXPECT_EQ(card->cursorY, 34);
}

TEST_F(VesselServicesTest, CardOfAVesselThatWasNotHeardTellsThePlannedPlace) {
    Interface::VesselCard record;
    record.vsi = "9";
    record.vsn = "My ship";
    record.vessel.x = 1;
    record.vessel.y = 2;
    record.vessel.time = 1000;
    Interface::Call(Interface::Bus::ShowVesselCard, &std::as_const(record));
    ASSERT_TRUE(card && card->hasFix);
    EXPECT_TRUE(card->planned);
    EXPECT_EQ(card->fix.longitude, 1);
    EXPECT_EQ(card->fix.time, 1000);
    EXPECT_EQ(card->mmsi, 0U);
    record.vessel.x = record.vessel.y = 361;
    Interface::Call(Interface::Bus::ShowVesselCard, &std::as_const(record));
    EXPECT_FALSE(card->hasFix);
}

TEST_F(VesselServicesTest, CardOfAFeedShipNeedsNoVoyage) {
    Hear(0, 10.5);
    EXPECT_TRUE(services.ShowHeard(123456789, 1, 2));
    EXPECT_EQ(card->mmsi, 123456789U);
    EXPECT_FALSE(services.ShowHeard(1, 1, 2));
}

}  // namespace
}  // namespace Tarvik::Ais

// SPDX-License-Identifier: MIT
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

class VesselTrackTest : public ScheduleFixture {
  protected:
    VesselTrackTest() {
        ReplySchedule();
        voyages.LoadSchedule("9", rows, -1);
        Voyage().vsi = "s";
        Voyage().vsn = "Ship";
        Voyage().vsmsi = 55;
        host.requests.clear();
    }
};

TEST_F(VesselTrackTest, TrackIsAskedForBetweenFirstDepartureAndLastArrival) {
    host.track = "1709280000|120.12345|-30.5|55";
    EXPECT_EQ(voyages.RefreshTrace("9"), 0);
    ASSERT_EQ(host.trackQueries.size(), 1U);
    EXPECT_EQ(host.trackQueries[0].vsi, "s");
    EXPECT_EQ(host.trackQueries[0].vsmsi, 55);
    EXPECT_EQ(host.trackQueries[0].begin, 1709272800) << "14:00 in the plan's zone";
    EXPECT_EQ(host.trackQueries[0].end, 1709272800 + 6 * 3600 + 38);
    EXPECT_EQ(Voyage().lastPosTime, 1709280000);
    EXPECT_EQ(Voyage().lastPosText, "120.123,-30.500");
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(VesselTrackTest, OlderTimeOrSamePlaceChangesNothing) {
    host.track = "1709280000|1.0|2.0|55";
    voyages.RefreshTrace("9");
    host.track = "1709280001|1.0001|2.0|55";
    EXPECT_EQ(voyages.RefreshTrace("9"), 0);
    EXPECT_EQ(Voyage().lastPosTime, 1709280000) << "the same place as text";
    host.track = "1709279999|3.0|4.0|55";
    EXPECT_EQ(voyages.RefreshTrace("9"), 0);
    EXPECT_EQ(Voyage().lastPosText, "1.000,2.000");
}

TEST_F(VesselTrackTest, FirstNumberIsSavedAlsoWithoutANewerPlace) {
    Voyage().vsmsi = 0;
    host.track = "0|1.0|2.0|412000000";
    EXPECT_EQ(voyages.RefreshTrace("9"), -8) << "the server does not answer";
    EXPECT_EQ(Voyage().vsmsi, 0);
    host.Reply(5, "{eid:0}");
    host.positions = {{"s", 412000000, 0, 100, 1.0, 2.0}};
    EXPECT_EQ(voyages.RefreshTrace("9"), 0);
    EXPECT_EQ(host.TextsOf(5).back(), R"({vi:"9",type:"5",vsi:"s",vsn:"Ship",vsmsi:"412000000"})");
    EXPECT_EQ(Voyage().vsmsi, 412000000);
}

TEST_F(VesselTrackTest, OnlyAFirstNumberIsSaved) {
    host.track = "1709280000|1.0|2.0|66";
    EXPECT_EQ(voyages.RefreshTrace("9"), 0);
    EXPECT_EQ(Voyage().vsmsi, 55) << "a known number stays";
    Voyage().vsmsi = 0;
    for (const char* text : {"1709280001|3.0|4.0|0", "1709280002|5.0|6.0|-1"}) {
        host.track = text;
        EXPECT_EQ(voyages.RefreshTrace("9"), 0) << text;
        EXPECT_EQ(Voyage().vsmsi, 0);
    }
    EXPECT_EQ(Voyage().lastPosText, "5.000,6.000");
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(VesselTrackTest, EveryFailureHasItsNumber) {
    EXPECT_EQ(voyages.RefreshTrace(""), -1);
    EXPECT_EQ(voyages.RefreshTrace("x"), -2);
    EXPECT_EQ(voyages.RefreshTrace("9"), -5) << "nobody answers";
    host.track = "";
    EXPECT_EQ(voyages.RefreshTrace("9"), -5);
    host.track = "|||";
    EXPECT_EQ(voyages.RefreshTrace("9"), -6);
    for (const char* text : {"1|2|3", "1|2|3|4|5"}) {
        host.track = text;
        EXPECT_EQ(voyages.RefreshTrace("9"), -7) << text;
    }
    Voyage().portCalls.resize(1);
    EXPECT_EQ(voyages.RefreshTrace("9"), -4);
    Voyage().vsi.clear();
    EXPECT_EQ(voyages.RefreshTrace("9"), -3);
    EXPECT_EQ(Voyage().lastPosText, "");
}

TEST_F(VesselTrackTest, HidingNamesVesselAndNumber) {
    EXPECT_EQ(voyages.HideAisTrack(""), -1);
    EXPECT_EQ(voyages.HideAisTrack("x"), -2);
    EXPECT_EQ(voyages.HideAisTrack("9"), 0);
    EXPECT_EQ(host.hiddenTracks, std::vector<std::string>{"s|55"});
    Voyage().vsi.clear();
    EXPECT_EQ(voyages.HideAisTrack("9"), 0);
    EXPECT_EQ(host.hiddenTracks.size(), 1U);
}

}  // namespace
}  // namespace Tarvik::Seaplan

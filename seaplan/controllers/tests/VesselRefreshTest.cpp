// SPDX-License-Identifier: MIT
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

class VesselRefreshTest : public ScheduleFixture {
  protected:
    VesselRefreshTest() { Voyage().vsi = "s"; }
};

TEST_F(VesselRefreshTest, WithoutVesselsOrRecordsItEnds) {
    EXPECT_EQ(voyages.RefreshVesselPositions(), -1) << "nobody answers";
    host.positions.emplace();
    EXPECT_EQ(voyages.RefreshVesselPositions(), -1) << "no records";
    Voyage().vsi.clear();
    host.positionQueries.clear();
    EXPECT_EQ(voyages.RefreshVesselPositions(), -1);
    EXPECT_TRUE(host.positionQueries.empty());
}

TEST_F(VesselRefreshTest, VesselsAreAskedForOnceWithTheFirstKnownNumber) {
    store.voyages["8"].vi = "8";
    store.voyages["8"].vsi = "s";
    Voyage().vsmsi = 55;
    store.voyages["91"].vi = "91";
    store.voyages["91"].vsi = "s";
    store.voyages["91"].vsmsi = 66;
    voyages.RefreshVesselPositions();
    EXPECT_EQ(host.positionQueries, (std::vector<Texts>{{"s|55"}}));
}

TEST_F(VesselRefreshTest, NewerPositionIsTakenOver) {
    Voyage().vsmsi = 55;
    host.positions = {{"s", 55, 0, 100, 120.12345, -30.5}};
    EXPECT_EQ(voyages.RefreshVesselPositions(), 0);
    EXPECT_EQ(Voyage().lastPosText, "120.123,-30.500");
    EXPECT_EQ(Voyage().lastPosTime, 100);
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(VesselRefreshTest, OlderOrEqualTimeAndSamePlaceChangeNothing) {
    Voyage().vsmsi = 55;
    Voyage().lastPosTime = 100;
    Voyage().lastPosText = "1.000,2.000";
    host.positions = {{"s", 55, 0, 100, 3.0, 4.0}};
    voyages.RefreshVesselPositions();
    EXPECT_EQ(Voyage().lastPosText, "1.000,2.000");
    host.positions = {{"s", 55, 0, 200, 1.0, 2.0}};
    voyages.RefreshVesselPositions();
    EXPECT_EQ(Voyage().lastPosTime, 100) << "the same place as text leaves the time alone";
}

TEST_F(VesselRefreshTest, TimesBeyond2038AreLater) {
    Voyage().vsmsi = 55;
    Voyage().lastPosTime = INT32_MAX;
    host.positions = {{"s", 55, 0, INT32_MIN, 3.0, 4.0}};
    voyages.RefreshVesselPositions();
    EXPECT_EQ(Voyage().lastPosTime, INT32_MIN);
}

TEST_F(VesselRefreshTest, FirstNumberIsSavedAndTheNestedRefreshStops) {
    Voyage().vsn = "Ship";
    host.Reply(5, "{eid:0}");
    host.positions = {{"s", 412000000, 0, 100, 1.0, 2.0}};
    EXPECT_EQ(voyages.RefreshVesselPositions(), 0);
    EXPECT_EQ(host.Texts(), Texts{R"(5 {vi:"9",type:"5",vsi:"s",vsn:"Ship",vsmsi:"412000000"})"});
    EXPECT_EQ(Voyage().vsmsi, 412000000);
    EXPECT_EQ(Voyage().lastPosText, "1.000,2.000");
    EXPECT_EQ(host.positionQueries.size(), 2U);
}

TEST_F(VesselRefreshTest, NumberThatCannotBeSavedLeavesThisVoyageAndGoesOn) {
    store.voyages["91"].vi = "91";
    store.voyages["91"].vsi = "t";
    store.voyages["91"].vsmsi = 66;
    host.positions = {{"s", 412000000, 0, 100, 1.0, 2.0}, {"t", 66, 0, 100, 1.0, 2.0}};
    EXPECT_EQ(voyages.RefreshVesselPositions(), 0);
    EXPECT_EQ(Voyage().vsmsi, 0);
    EXPECT_EQ(Voyage().lastPosText, "");
    EXPECT_EQ(store.voyages["91"].lastPosText, "1.000,2.000");
}

TEST_F(VesselRefreshTest, KnownNumberIsNotOverwrittenByZero) {
    Voyage().vsmsi = 55;
    host.positions = {{"s", 0, 0, 100, 1.0, 2.0}};
    voyages.RefreshVesselPositions();
    EXPECT_EQ(Voyage().vsmsi, 55);
    EXPECT_EQ(Voyage().lastPosTime, 100);
}

TEST_F(VesselRefreshTest, OtherNumberComesWithANewerPositionAndIsNotSaved) {
    Voyage().vsmsi = 55;
    host.positions = {{"s", 66, 0, 100, 1.0, 2.0}};
    voyages.RefreshVesselPositions();
    EXPECT_EQ(Voyage().vsmsi, 66);
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(VesselRefreshTest, FirstNumberNeedsANewerPosition) {
    Voyage().lastPosTime = 100;
    Voyage().lastPosText = "1.000,2.000";
    for (const auto& [time, x] : {std::pair{100, 3.0}, std::pair{200, 1.0}}) {
        host.positions = {{"s", 412000000, 0, time, x, 2.0}};
        EXPECT_EQ(voyages.RefreshVesselPositions(), 0);
        EXPECT_EQ(Voyage().vsmsi, 0) << time;
    }
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(VesselRefreshTest, PositionOfAVesselWithoutNumberIsTakenWithoutSaving) {
    host.positions = {{"s", 0, 0, 100, 1.0, 2.0}};
    EXPECT_EQ(voyages.RefreshVesselPositions(), 0);
    EXPECT_EQ(Voyage().lastPosText, "1.000,2.000");
    EXPECT_EQ(Voyage().vsmsi, 0);
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(VesselRefreshTest, CorrectedVoyageLearnsItsNewestCorrection) {
    Voyage().vsmsi = 55;
    Voyage().modais = 2;
    Voyage().lastPosTime = 500;
    host.positions = {{"s", 55, 0, 100, 1.0, 2.0}};
    voyages.RefreshVesselPositions();
    EXPECT_EQ(Voyage().lastAisModTime, 0) << "the times cannot be read";
    host.Reply(12, R"({times:["2024-01-01 00:00:00","2023-01-01 00:00:00"]})");
    voyages.RefreshVesselPositions();
    EXPECT_EQ(Voyage().lastAisModTime, 1704067200);
    voyages.RefreshVesselPositions();
    EXPECT_EQ(host.TextsOf(12).size(), 2U) << "a known time is not asked for again";
}

}  // namespace
}  // namespace Tarvik::Seaplan

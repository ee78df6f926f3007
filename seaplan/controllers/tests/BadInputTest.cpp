// SPDX-License-Identifier: MIT
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>

#include "seaplan/calculation/LegCacheText.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/CorrectionFixture.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

/// Input that no sound server, file or neighbour gives.
class BadInputTest : public CorrectionFixture {
  protected:
    /// The record of a voyage whose book has this position in its middle.
    void Place(const std::string& position) {
        Voyage().positionBook.points[1].position = position;
        host.chartCalls.clear();
    }
    /// A data base that holds nothing.
    void EmptyDatabase() const {
        std::filesystem::remove(folder.PointsFile());
        std::ofstream(folder.PointsFile()).close();
    }
};

TEST_F(BadInputTest, PositionWithoutCommaFailsEveryUseOfTheBookAndChangesNothing) {
    const float miles = Voyage().portCalls[1].distance;
    for (const char* position : {"", "nowhere", "1.0 2.0"}) {
        Place(position);
        EXPECT_EQ(voyages.LoadSchedule("9", rows, 1), -5) << position;
        EXPECT_EQ(voyages.SplitAisRows("9", before, after), -3) << position;
        ReplyWay();
        EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -9) << position;
        EXPECT_EQ(Voyage().portCalls[1].distance, miles);
        EXPECT_EQ(Voyage().modais, 0);
        EXPECT_EQ(Positions().size(), 3U);
        EXPECT_TRUE(host.chartCalls.empty());
    }
}

TEST_F(BadInputTest, PositionOfTextsReadsAsZeroAndNeverAsNoNumber) {
    for (const char* position : {"x,y", "nan,nan", "inf,-inf", "0x10,1e", " , "}) {
        Place(position);
        EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), 0) << position;
        EXPECT_TRUE(std::isfinite(rows[1].distance)) << position;
        EXPECT_TRUE(std::isfinite(rows[1].psp)) << position;
    }
    Place("nan,0");
    EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), 0);
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F) << "from 0 to 0 and on to 1 degree";
}

TEST_F(BadInputTest, SpeedOfZeroInTheBookFailsTheScheduleAndTheDrawing) {
    Voyage().positionBook.points[1].psp = 0;
    EXPECT_EQ(voyages.LoadSchedule("9", rows, 1), -5);
    EXPECT_EQ(voyages.SplitAisRows("9", before, after), -3);
    EXPECT_TRUE(host.chartCalls.empty());
    clock.SetUtc(2024, 3, 1, 15);
    EXPECT_EQ(module.DrawPlannedProgress(Voyage()), -12);
    EXPECT_TRUE(host.ChartCallsOf("TRV_MAP_ADD_LINE").empty());
}

TEST_F(BadInputTest, WeatherOfOneFailsTheScheduleAndTheDrawing) {
    Voyage().portCalls[1].pw = 1.0F;
    EXPECT_EQ(voyages.LoadSchedule("9", rows, 1), -5);
    clock.SetUtc(2024, 3, 1, 15);
    EXPECT_EQ(module.DrawPlannedProgress(Voyage()), -13);
    Voyage().aisModTimes = {"2024-03-01 14:00:00"};
    EXPECT_EQ(module.DrawAisProgress(Voyage()), -3);
    EXPECT_TRUE(host.ChartCallsOf("TRV_MAP_ADD_LINE").empty());
}

TEST_F(BadInputTest, WeatherOfOneEndsACalculationWithTheTableAsItWas) {
    module.Pending().Take(RouteStops(2));
    PortCallRows typed = TypedRows();
    typed[1].pw = 1.0F;
    host.Reply(1, kRouteAb);
    EXPECT_EQ(voyages.CalculatePortCalls(typed, rows), -2);
    EXPECT_TRUE(rows.empty());
    EXPECT_TRUE(module.Pending().Stops()[0].point_cd.empty()) << "the pending route is the old one";
    EXPECT_TRUE(host.chartCalls.empty());
}

TEST_F(BadInputTest, PortThatTheDictionaryLacksIsSentWithoutIdAndItsRefusalEndsTheCalculation) {
    PortCallRows typed = TypedRows();
    typed[1].ppn = "nowhere";
    typed[1].ppi.clear();
    voyages.ResolvePortIds(typed);
    host.Reply(1, R"({eid:1,emsg:"no such point"})");
    EXPECT_EQ(voyages.CalculatePortCalls(typed, rows), -1);
    EXPECT_EQ(host.TextsOf(1),
              Texts{R"({"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"40001#"})"});
    EXPECT_TRUE(host.chartCalls.empty());
    EXPECT_FALSE(module.Pending().IsThere());
}

TEST_F(BadInputTest, NextPortThatTheDictionaryLacksEndsACorrectionWithoutARequest) {
    Voyage().portCalls[1].ppn = "nowhere";
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -7);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(Positions().size(), 3U);
}

TEST_F(BadInputTest, WayWithAPointThatIsNoPositionLeavesTheBook) {
    ReplyWay("0.4,0.1|nowhere|1,0");
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -7);
    EXPECT_EQ(Positions(), (Texts{"0.000,0.000", "0.500,0.000", "1.000,0.000"}));
}

TEST_F(BadInputTest, VesselPositionThatIsNoNumberIsNotTaken) {
    Voyage().lastPosTime = 100;
    for (const double number : {kNan, std::numeric_limits<double>::infinity()}) {
        host.positions = {{"s", 55, 0, 200, number, 1.0}, {"s", 55, 0, 200, 1.0, number}};
        EXPECT_EQ(voyages.RefreshVesselPositions(), 0);
    }
    EXPECT_EQ(Voyage().lastPosText, "0.400,0.100");
    EXPECT_EQ(Voyage().lastPosTime, 100);
}

TEST_F(BadInputTest, TrackWithoutNumbersForTimeOrPlaceIsNotTaken) {
    Voyage().lastPosTime = 100;
    for (const char* text : {"nan|1|2|55", "200|nan|2|55", "200|1|x|55", "200||2|55"}) {
        host.track = text;
        EXPECT_EQ(voyages.RefreshTrace("9"), -6) << text;
    }
    EXPECT_EQ(Voyage().lastPosText, "0.400,0.100");
    host.track = "200|1|2|";
    EXPECT_EQ(voyages.RefreshTrace("9"), 0) << "a number of the vessel may be missing";
    EXPECT_EQ(Voyage().lastPosText, "1.000,2.000");
}

TEST_F(BadInputTest, DatabaseWithoutTheTableEndsWhatNeedsItAndKeepsThePendingRoute) {
    EmptyDatabase();
    module.Pending().Take(RouteStops(2));
    host.Reply(1, kRouteAb);
    EXPECT_EQ(voyages.CalculatePortCalls(TypedRows(), rows), -3);
    EXPECT_EQ(module.Pending().Stops().size(), 2U);
    EXPECT_TRUE(module.Pending().Stops()[1].point_cd.empty());
    std::vector<RoutePointRow> ports;
    EXPECT_EQ(module.PortPositions(TypedRows(), ports), -1);
    EXPECT_TRUE(host.chartCalls.empty());
    EXPECT_EQ(std::filesystem::file_size(folder.PointsFile()), 0U);
}

// The file has one gigabyte of holes: whoever reads it into one line runs for long and out of memory.
TEST_F(BadInputTest, CacheFileOfOneEndlessLineIsNoCacheAndStaysAsItWas) {
    constexpr std::uintmax_t kGigabyte = 1024UL * 1024 * 1024;
    std::filesystem::create_directories(folder.LegCacheFile().parent_path());
    std::ofstream(folder.LegCacheFile()).close();
    std::filesystem::resize_file(folder.LegCacheFile(), kGigabyte);
    LegCache cache;
    EXPECT_EQ(module.LoadCache("", cache), 0);
    EXPECT_TRUE(cache.empty());
    RouteStops stops;
    EXPECT_EQ(module.GetStopsByCache(TypedRows(), stops), -3) << "the server does not answer";
    EXPECT_EQ(std::filesystem::file_size(folder.LegCacheFile()), kGigabyte);
}

}  // namespace
}  // namespace Tarvik::Seaplan

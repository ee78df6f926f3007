// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <tarvik/interface/ValueDictionary.h>
#include <tarvik/util/Geodesy.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

/// Names every port "port <id>".
class PortNames : public Interface::ValueDictionary {
  public:
    PortNames() { Set(this); }
    ~PortNames() override { Set(nullptr); }
    std::string KeyOfValue(const std::string&, const std::string&, int) const override { return ""; }
    std::string ValueOfKey(const std::string& path, const std::string& key, int language) const override {
        return path == "/points" && language == 1033 ? "port " + key : "";
    }
};

RouteStops Route() {
    RouteStops stops(3);
    stops[0].point_cd = "40389";
    stops[1].point_cd = "40208";
    stops[1].routes = {{"1", "40389", "131", "0,0|1,0|2,0", 0}, {"2", "131", "40208", "2,0|3,0", 0}};
    stops[2].point_cd = "40300";
    stops[2].routes = {{"3", "40208", "1310", "3,0|4,0", 0}, {"4", "1310", "40300", "4,0|5.50,0", 0}};
    return stops;
}

PointMap RoutePoints() {
    return {{"131", {"131", "Cape", "2,0"}}, {"1310", {"1310", "Strait", "4,0"}}};
}

TEST(BookFromStops, NamesPortsAndRoutePoints) {
    const PortNames names;
    BookPoints rows;
    ASSERT_EQ(BookFromStops(Route(), RoutePoints(), rows), 0);
    EXPECT_EQ(Positions(rows), "0,0|1,0|2,0|3,0|4,0|5.50,0");
    EXPECT_EQ(rows[0].pointId, "40389");
    EXPECT_EQ(rows[0].psn, "port 40389");
    EXPECT_EQ(rows[0].psp, 0);
    const int kinds[] = {PortPoint, PlainPoint, ShortIdRoutePoint, PortPoint, LongIdRoutePoint, PortPoint};
    const char* const psn[] = {"port 40389", "", "Cape", "port 40208", "Strait", "port 40300"};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].pst, kinds[i]) << i;
        EXPECT_EQ(rows[i].psn, psn[i]) << i;
        EXPECT_EQ(rows[i].psr, "GC") << i;
        EXPECT_EQ(rows[i].pli, 5) << i;
        EXPECT_EQ(rows[i].psp, i == 0 ? 0.0F : 10.0F) << i;
    }
    EXPECT_EQ(rows[1].pointId, "");
    EXPECT_EQ(rows[4].pointId, "1310");
}

TEST(BookFromStops, NeedsTwoStops) {
    BookPoints rows(2);
    EXPECT_EQ(BookFromStops({}, {}, rows), 0);
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(BookFromStops({RouteStop{}}, {}, rows), -1);
}

TEST(BookFromStops, FailureLeavesNoRows) {
    const PortNames names;
    for (const auto* pointset : {"", "0,0", "0,0|"}) {
        auto stops = Route();
        stops[2].routes[1].pointset = pointset;
        BookPoints rows;
        EXPECT_EQ(BookFromStops(stops, RoutePoints(), rows), -4) << pointset;
        EXPECT_TRUE(rows.empty());
    }
    BookPoints rows;
    EXPECT_EQ(BookFromStops(Route(), {}, rows), -5);
    EXPECT_EQ(BookFromStops(Route(), {{"131", {}}}, rows), -6);
    EXPECT_TRUE(rows.empty());
}

TEST(LegDistance, IsGreatCircleOrRhumbLineInNauticalMiles) {
    float greatCircle = 0;
    float rhumbLine = 0;
    ASSERT_EQ(LegDistance("140.5,35", "-125,48.25", "GC", greatCircle), 0);
    ASSERT_EQ(LegDistance("140.5,35", "-125,48.25", "RL", rhumbLine), 0);
    EXPECT_FLOAT_EQ(greatCircle, static_cast<float>(
                                     Util::CircleLineUtl::CalculateDistance(140.5, 35, -125, 48.25) / 1.852));
    EXPECT_FLOAT_EQ(rhumbLine,
                    static_cast<float>(Util::CircleLineUtl::CalRhumbDist(140.5, 35, -125, 48.25) / 1.852));
    EXPECT_LT(greatCircle, rhumbLine);
}

TEST(LegDistance, RefusesATextWithoutCommaBehindItsFirstCharacter) {
    for (const auto* bad : {"", "1", ",1"}) {
        float nm = -1;
        EXPECT_EQ(LegDistance(bad, "1,1", "GC", nm), -1) << bad;
        EXPECT_EQ(LegDistance("1,1", bad, "GC", nm), -1) << bad;
        EXPECT_EQ(nm, -1);
    }
}

/// Three ports on the equator with a waypoint before the last.
BookPoints EquatorBook() {
    return {Port("0,0", 0), Port("1,0"), Point("2,0"), Port("3,0", 20)};
}

double HoursOf(double degrees, double speed, double weather) {
    return Util::CircleLineUtl::CalRhumbDist(0, 0, degrees, 0) / 1.852 / ((1 - weather) * speed);
}

double Since(const Util::_datetime_t& start, const Util::_datetime_t& time) {
    return static_cast<double>(time.total_csecs() - start.total_csecs()) / 360000;
}

TEST(ComputeBookTimes, StaysAndWeatherComeFromThePortAhead) {
    const PortCallRows ports{Call("A", 0, 10, 0.9F, 2), Call("B", 0, 10, 0.5F, 3),
                             Call("C", 0, 10, 0.25F, 4)};
    auto rows = EquatorBook();
    const auto start = At(1, 0);
    ASSERT_EQ(ComputeBookTimes(start, ports, rows), 0);
    EXPECT_EQ(rows[0].eta, start);
    EXPECT_EQ(rows[0].etd, At(1, 2));
    double expected = 2 + HoursOf(1, 10, 0.5);
    EXPECT_NEAR(Since(start, rows[1].eta), expected, 1e-4);
    expected += 3;
    EXPECT_NEAR(Since(start, rows[1].etd), expected, 1e-4);
    expected += HoursOf(1, 10, 0.25);
    EXPECT_NEAR(Since(start, rows[2].eta), expected, 1e-4);
    EXPECT_EQ(rows[2].eta, rows[2].etd);
    expected += HoursOf(1, 20, 0.25);
    EXPECT_NEAR(Since(start, rows[3].eta), expected, 1e-4);
    EXPECT_NEAR(Since(start, rows[3].etd), expected + 4, 1e-4);
}

TEST(ComputeBookTimes, OnePortLeavesNoStayBehindIt) {
    auto rows = EquatorBook();
    ASSERT_EQ(ComputeBookTimes(At(1, 0), {Call("A", 0, 10, 0.9F, 2)}, rows), 0);
    EXPECT_EQ(rows[1].eta, rows[1].etd);
    EXPECT_NEAR(Since(rows[0].etd, rows[1].eta), HoursOf(1, 10, 0), 1e-4);
}

TEST(ComputeBookTimes, BehindTheLastPortItsStayAndWeatherGoOn) {
    const PortCallRows ports{Call("A", 0, 10, 0, 2), Call("B", 0, 10, 0.5F, 3)};
    auto rows = EquatorBook();
    ASSERT_EQ(ComputeBookTimes(At(1, 0), ports, rows), 0);
    EXPECT_NEAR(Since(rows[1].etd, rows[2].eta), HoursOf(1, 10, 0.5), 1e-4);
    EXPECT_NEAR(Since(rows[3].eta, rows[3].etd), 3, 1e-4) << "a port row that no port call stands for";
}

TEST(ComputeBookTimes, TellsWhichStepFailed) {
    const float infinity = std::numeric_limits<float>::infinity();
    const PortCallRows ports{Call("A", 0), Call("B", 0)};
    BookPoints none;
    EXPECT_EQ(ComputeBookTimes(At(1, 0), ports, none), -1);
    auto rows = EquatorBook();
    EXPECT_EQ(ComputeBookTimes(At(1, 0), {}, rows), -1);
    EXPECT_EQ(ComputeBookTimes(At(1, 0), {Call("A", 0, 10, 0, infinity)}, rows), -2);
    rows[2].position = "nowhere";
    EXPECT_EQ(ComputeBookTimes(At(1, 0), ports, rows), -3);
    rows = EquatorBook();
    rows[1].psp = 0.00001F;
    EXPECT_EQ(ComputeBookTimes(At(1, 0), ports, rows), -4);
    rows = EquatorBook();
    EXPECT_EQ(ComputeBookTimes(At(1, 0), {Call("A", 0), Call("B", 0, 10, 1)}, rows), -5);
    EXPECT_EQ(ComputeBookTimes(At(1, 0), {Call("A", 0), Call("B", 0, 10, 0, infinity)}, rows), -6);
    EXPECT_EQ(Positions(rows), Positions(EquatorBook()));
}

TEST(GroupBookByPort, EndsAGroupBehindEachPort) {
    std::map<int, BookPoints> groups;
    auto rows = EquatorBook();
    rows.push_back(Point("9,0"));
    ASSERT_EQ(GroupBookByPort(rows, groups), 0);
    ASSERT_EQ(groups.size(), 4);
    EXPECT_EQ(Positions(groups[0]), "0,0");
    EXPECT_EQ(Positions(groups[1]), "1,0");
    EXPECT_EQ(Positions(groups[2]), "2,0|3,0");
    EXPECT_EQ(Positions(groups[3]), "9,0");
    EXPECT_EQ(GroupBookByPort({Port("0,0")}, groups), -1);
    EXPECT_TRUE(groups.empty());
}

}  // namespace
}  // namespace Tarvik::Seaplan

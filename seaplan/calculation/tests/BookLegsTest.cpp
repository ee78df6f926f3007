// SPDX-License-Identifier: MIT
#include <random>

#include <gtest/gtest.h>

#include <tarvik/util/Geodesy.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

double rhumbMiles(double degrees) {
    return Util::CircleLineUtl::CalRhumbDist(0, 0, degrees, 0) / 1.852;
}

VoyPositionBook book(BookPoints points) {
    VoyPositionBook result;
    result.eta = at(5, 0);
    result.points = std::move(points);
    return result;
}

/// Two legs: one pair at 10 knots, then one at 10 and one at 20.
BookPoints twoLegs() {
    return {port("0,0", 0), port("1,0"), point("2,0"), port("3,0", 20)};
}

PortCallRows threePorts() {
    return {call("A", 1, 0, 0, 2), call("B", 1, 1), call("C", 1, 1)};
}

TEST(LegTotalsFromBook, GivesDistanceAndAverageSpeed) {
    auto ports = threePorts();
    ASSERT_EQ(LegTotalsFromBook(book(twoLegs()), ports), 0);
    EXPECT_EQ(ports[0].eta, at(5, 0));
    EXPECT_EQ(ports[0].etd, at(5, 2));
    EXPECT_EQ(ports[0].distance, 1) << "the first port's own distance is left alone";
    EXPECT_FLOAT_EQ(ports[1].distance, static_cast<float>(rhumbMiles(1)));
    EXPECT_FLOAT_EQ(ports[1].psp, 10);
    EXPECT_FLOAT_EQ(ports[2].distance, static_cast<float>(2 * rhumbMiles(1)));
    EXPECT_FLOAT_EQ(ports[2].psp, static_cast<float>(2 / (1 / 10.0 + 1 / 20.0)));
    EXPECT_FLOAT_EQ(ports[1].steamTime, static_cast<float>(rhumbMiles(1) / 10));
}

TEST(LegTotalsFromBook, GreatCircleRowsAreMeasuredSo) {
    auto ports = PortCallRows{call("A", 0), call("B", 0)};
    ASSERT_EQ(LegTotalsFromBook(book({port("140,35"), port("-125,48", 10, "GC")}), ports), 0);
    EXPECT_FLOAT_EQ(ports[1].distance,
                    static_cast<float>(Util::CircleLineUtl::CalculateDistance(140, 35, -125, 48) / 1.852));
}

TEST(LegTotalsFromBook, WeatherPlaysNoPartInTheSums) {
    auto ports = threePorts();
    ports[1].pw = 0.5F;
    ASSERT_EQ(LegTotalsFromBook(book(twoLegs()), ports), 0);
    EXPECT_FLOAT_EQ(ports[1].psp, 10);
    EXPECT_FLOAT_EQ(ports[1].steamTime, static_cast<float>(rhumbMiles(1) / 5));
}

TEST(LegTotalsFromBook, FailureLeavesThePortsUntouched) {
    const auto code = [](BookPoints points, PortCallRows ports) {
        const auto before = ports;
        const int result = LegTotalsFromBook(book(std::move(points)), ports);
        for (std::size_t i = 0; i < ports.size(); ++i) {
            EXPECT_EQ(ports[i].ppi, before[i].ppi);
            EXPECT_EQ(ports[i].distance, before[i].distance);
            EXPECT_EQ(ports[i].eta, before[i].eta);
        }
        return result;
    };
    EXPECT_EQ(code(twoLegs(), {call("A", 0)}), -1);
    EXPECT_EQ(code({port("0,0"), port("1,0"), point("2,0")}, threePorts()), -2);
    auto rows = twoLegs();
    rows[2].position = "nowhere";
    EXPECT_EQ(code(rows, threePorts()), -4);
    rows = twoLegs();
    rows[3].psp = 0.00009F;
    EXPECT_EQ(code(rows, threePorts()), -5);
    rows = twoLegs();
    rows[1].position = "0,0";
    EXPECT_EQ(code(rows, threePorts()), -6);
    auto ports = threePorts();
    ports[2].pw = 1;
    EXPECT_EQ(code(twoLegs(), ports), -7);
}

// Sums run in double over the rows and are rounded once, as a port's distance and speed.
TEST(LegTotalsFromBook, SumsAreRoundedOnce) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> speed(1, 30);
    for (int round = 0; round < 50; ++round) {
        BookPoints rows{port("0,50")};
        double distance = 0;
        double time = 0;
        for (int i = 1; i <= 20; ++i) {
            const bool GreatCircle = random() % 2 == 0;
            rows.push_back(point(std::to_string(i) + ",50", i == 20 ? PortPoint : PlainPoint, speed(random),
                                 GreatCircle ? "GC" : "RL"));
            const double step = (GreatCircle ? Util::CircleLineUtl::CalculateDistance(i - 1, 50, i, 50)
                                             : Util::CircleLineUtl::CalRhumbDist(i - 1, 50, i, 50)) /
                                1.852;
            distance += step;
            time += step / static_cast<double>(rows.back().psp);
        }
        PortCallRows ports{call("A", 0), call("B", 0)};
        ASSERT_EQ(LegTotalsFromBook(book(rows), ports), 0);
        ASSERT_EQ(ports[1].distance, static_cast<float>(distance));
        ASSERT_EQ(ports[1].psp, static_cast<float>(distance / time));
    }
}

TEST(LegTotalsFromBook, FurtherPortsOfTheBookPlayNoPart) {
    auto ports = threePorts();
    ports.pop_back();
    ASSERT_EQ(LegTotalsFromBook(book(twoLegs()), ports), 0);
    EXPECT_FLOAT_EQ(ports[1].distance, static_cast<float>(rhumbMiles(1)));
    EXPECT_EQ(ports[1].ppi, "") << "recomputed rows have no ids";
}

TEST(RescaleBookSpeeds, CarriesPortSpeedsIntoTheirLegs) {
    auto ports = threePorts();
    ports[1].psp = 15;
    ports[2].psp = 20;
    auto rows = twoLegs();
    rows[0].psp = 3;
    ASSERT_EQ(RescaleBookSpeeds(ports, rows), 0);
    EXPECT_EQ(rows[0].psp, 3) << "no leg ends at the first row";
    EXPECT_FLOAT_EQ(rows[1].psp, 15);
    EXPECT_FLOAT_EQ(rows[2].psp, 15);
    EXPECT_FLOAT_EQ(rows[3].psp, 30);
}

TEST(RescaleBookSpeeds, EqualSpeedsStayAsTheyAre) {
    auto ports = threePorts();
    ASSERT_EQ(LegTotalsFromBook(book(twoLegs()), ports), 0);
    ports[1].psp += 0.000005F;
    auto rows = twoLegs();
    ASSERT_EQ(RescaleBookSpeeds(ports, rows), 0);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].psp, twoLegs()[i].psp) << i;
    }
}

TEST(RescaleBookSpeeds, SmallestDifferenceThatCountsIsCarriedOver) {
    auto ports = threePorts();
    ASSERT_EQ(LegTotalsFromBook(book(twoLegs()), ports), 0);
    for (const float step : {0.00003F, -0.00003F}) {
        auto changed = ports;
        changed[1].psp += step;
        auto rows = twoLegs();
        ASSERT_EQ(RescaleBookSpeeds(changed, rows), 0);
        EXPECT_EQ(rows[1].psp, changed[1].psp) << step;
        EXPECT_NE(rows[1].psp, 10) << step;
        EXPECT_EQ(rows[2].psp, 10) << "the other leg stays";
    }
}

TEST(RescaleBookSpeeds, FailureLeavesTheRowsUntouched) {
    auto rows = BookPoints{port("0,0")};
    EXPECT_EQ(RescaleBookSpeeds(threePorts(), rows), -1);
    rows = twoLegs();
    EXPECT_EQ(RescaleBookSpeeds({call("A", 0)}, rows), -1);
    EXPECT_EQ(RescaleBookSpeeds({call("A", 0), call("B", 0)}, rows), -2);
    rows[2].position = "nowhere";
    EXPECT_EQ(RescaleBookSpeeds(threePorts(), rows), -3);
    rows = twoLegs();
    auto ports = threePorts();
    ports[1].pw = 2;
    EXPECT_EQ(RescaleBookSpeeds(ports, rows), -4);
    EXPECT_EQ(rows[1].psp, 10);
}

TEST(RescaleBookSpeeds, TotalsThenTellTheEnteredSpeeds) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> speed(1, 30);
    for (int round = 0; round < 200; ++round) {
        BookPoints rows{port("0,0")};
        PortCallRows ports{call("A", 0)};
        for (int i = 1; i <= 12; ++i) {
            const bool isPort = i == 12 || random() % 3 == 0;
            rows.push_back(point(std::to_string(i) + ",1", isPort ? PortPoint : PlainPoint, speed(random)));
            if (isPort) {
                ports.push_back(call("P", 0, speed(random)));
            }
        }
        ASSERT_EQ(RescaleBookSpeeds(ports, rows), 0);
        auto totals = ports;
        ASSERT_EQ(LegTotalsFromBook(book(rows), totals), 0);
        for (std::size_t i = 1; i < ports.size(); ++i) {
            ASSERT_NEAR(totals[i].psp, ports[i].psp, 1e-4) << i;
        }
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan

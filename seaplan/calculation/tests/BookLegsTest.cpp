// SPDX-License-Identifier: MIT
#include <random>

#include <gtest/gtest.h>

#include <tarvik/util/Geodesy.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

double RhumbMiles(double degrees) {
    return Util::CircleLineUtl::CalRhumbDist(0, 0, degrees, 0) / 1.852;
}

VoyPositionBook Book(BookPoints points) {
    VoyPositionBook result;
    result.eta = At(5, 0);
    result.points = std::move(points);
    return result;
}

/// Two legs: one pair at 10 knots, then one at 10 and one at 20.
BookPoints TwoLegs() {
    return {Port("0,0", 0), Port("1,0"), Point("2,0"), Port("3,0", 20)};
}

PortCallRows ThreePorts() {
    return {Call("A", 1, 0, 0, 2), Call("B", 1, 1), Call("C", 1, 1)};
}

TEST(LegTotalsFromBook, GivesDistanceAndAverageSpeed) {
    auto ports = ThreePorts();
    ASSERT_EQ(LegTotalsFromBook(Book(TwoLegs()), ports), 0);
    EXPECT_EQ(ports[0].eta, At(5, 0));
    EXPECT_EQ(ports[0].etd, At(5, 2));
    EXPECT_EQ(ports[0].distance, 1) << "the first port's own distance is left alone";
    EXPECT_FLOAT_EQ(ports[1].distance, static_cast<float>(RhumbMiles(1)));
    EXPECT_FLOAT_EQ(ports[1].psp, 10);
    EXPECT_FLOAT_EQ(ports[2].distance, static_cast<float>(2 * RhumbMiles(1)));
    EXPECT_FLOAT_EQ(ports[2].psp, static_cast<float>(2 / (1 / 10.0 + 1 / 20.0)));
    EXPECT_FLOAT_EQ(ports[1].steamTime, static_cast<float>(RhumbMiles(1) / 10));
}

TEST(LegTotalsFromBook, GreatCircleRowsAreMeasuredSo) {
    auto ports = PortCallRows{Call("A", 0), Call("B", 0)};
    ASSERT_EQ(LegTotalsFromBook(Book({Port("140,35"), Port("-125,48", 10, "GC")}), ports), 0);
    EXPECT_FLOAT_EQ(ports[1].distance,
                    static_cast<float>(Util::CircleLineUtl::CalculateDistance(140, 35, -125, 48) / 1.852));
}

TEST(LegTotalsFromBook, WeatherPlaysNoPartInTheSums) {
    auto ports = ThreePorts();
    ports[1].pw = 0.5F;
    ASSERT_EQ(LegTotalsFromBook(Book(TwoLegs()), ports), 0);
    EXPECT_FLOAT_EQ(ports[1].psp, 10);
    EXPECT_FLOAT_EQ(ports[1].steamTime, static_cast<float>(RhumbMiles(1) / 5));
}

TEST(LegTotalsFromBook, FailureLeavesThePortsUntouched) {
    const auto code = [](BookPoints points, PortCallRows ports) {
        const auto before = ports;
        const int result = LegTotalsFromBook(Book(std::move(points)), ports);
        for (std::size_t i = 0; i < ports.size(); ++i) {
            EXPECT_EQ(ports[i].ppi, before[i].ppi);
            EXPECT_EQ(ports[i].distance, before[i].distance);
            EXPECT_EQ(ports[i].eta, before[i].eta);
        }
        return result;
    };
    EXPECT_EQ(code(TwoLegs(), {Call("A", 0)}), -1);
    EXPECT_EQ(code({Port("0,0"), Port("1,0"), Point("2,0")}, ThreePorts()), -2);
    auto rows = TwoLegs();
    rows[2].position = "nowhere";
    EXPECT_EQ(code(rows, ThreePorts()), -4);
    rows = TwoLegs();
    rows[3].psp = 0.00009F;
    EXPECT_EQ(code(rows, ThreePorts()), -5);
    rows = TwoLegs();
    rows[1].position = "0,0";
    EXPECT_EQ(code(rows, ThreePorts()), -6);
    auto ports = ThreePorts();
    ports[2].pw = 1;
    EXPECT_EQ(code(TwoLegs(), ports), -7);
}

// Sums run in double over the rows and are rounded once, as a port's distance and speed.
TEST(LegTotalsFromBook, SumsAreRoundedOnce) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> speed(1, 30);
    for (int round = 0; round < 50; ++round) {
        BookPoints rows{Port("0,50")};
        double distance = 0;
        double time = 0;
        for (int i = 1; i <= 20; ++i) {
            const bool GreatCircle = random() % 2 == 0;
            rows.push_back(Point(std::to_string(i) + ",50", i == 20 ? PortPoint : PlainPoint, speed(random),
                                 GreatCircle ? "GC" : "RL"));
            const double step = (GreatCircle ? Util::CircleLineUtl::CalculateDistance(i - 1, 50, i, 50)
                                             : Util::CircleLineUtl::CalRhumbDist(i - 1, 50, i, 50)) /
                                1.852;
            distance += step;
            time += step / static_cast<double>(rows.back().psp);
        }
        PortCallRows ports{Call("A", 0), Call("B", 0)};
        ASSERT_EQ(LegTotalsFromBook(Book(rows), ports), 0);
        ASSERT_EQ(ports[1].distance, static_cast<float>(distance));
        ASSERT_EQ(ports[1].psp, static_cast<float>(distance / time));
    }
}

TEST(LegTotalsFromBook, FurtherPortsOfTheBookPlayNoPart) {
    auto ports = ThreePorts();
    ports.pop_back();
    ASSERT_EQ(LegTotalsFromBook(Book(TwoLegs()), ports), 0);
    EXPECT_FLOAT_EQ(ports[1].distance, static_cast<float>(RhumbMiles(1)));
    EXPECT_EQ(ports[1].ppi, "") << "recomputed rows have no ids";
}

TEST(RescaleBookSpeeds, CarriesPortSpeedsIntoTheirLegs) {
    auto ports = ThreePorts();
    ports[1].psp = 15;
    ports[2].psp = 20;
    auto rows = TwoLegs();
    rows[0].psp = 3;
    ASSERT_EQ(RescaleBookSpeeds(ports, rows), 0);
    EXPECT_EQ(rows[0].psp, 3) << "no leg ends at the first row";
    EXPECT_FLOAT_EQ(rows[1].psp, 15);
    EXPECT_FLOAT_EQ(rows[2].psp, 15);
    EXPECT_FLOAT_EQ(rows[3].psp, 30);
}

TEST(RescaleBookSpeeds, EqualSpeedsStayAsTheyAre) {
    auto ports = ThreePorts();
    ASSERT_EQ(LegTotalsFromBook(Book(TwoLegs()), ports), 0);
    ports[1].psp += 0.000005F;
    auto rows = TwoLegs();
    ASSERT_EQ(RescaleBookSpeeds(ports, rows), 0);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].psp, TwoLegs()[i].psp) << i;
    }
}

TEST(RescaleBookSpeeds, SmallestDifferenceThatCountsIsCarriedOver) {
    auto ports = ThreePorts();
    ASSERT_EQ(LegTotalsFromBook(Book(TwoLegs()), ports), 0);
    for (const float step : {0.00003F, -0.00003F}) {
        auto changed = ports;
        changed[1].psp += step;
        auto rows = TwoLegs();
        ASSERT_EQ(RescaleBookSpeeds(changed, rows), 0);
        EXPECT_EQ(rows[1].psp, changed[1].psp) << step;
        EXPECT_NE(rows[1].psp, 10) << step;
        EXPECT_EQ(rows[2].psp, 10) << "the other leg stays";
    }
}

TEST(RescaleBookSpeeds, FailureLeavesTheRowsUntouched) {
    auto rows = BookPoints{Port("0,0")};
    EXPECT_EQ(RescaleBookSpeeds(ThreePorts(), rows), -1);
    rows = TwoLegs();
    EXPECT_EQ(RescaleBookSpeeds({Call("A", 0)}, rows), -1);
    EXPECT_EQ(RescaleBookSpeeds({Call("A", 0), Call("B", 0)}, rows), -2);
    rows[2].position = "nowhere";
    EXPECT_EQ(RescaleBookSpeeds(ThreePorts(), rows), -3);
    rows = TwoLegs();
    auto ports = ThreePorts();
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
        BookPoints rows{Port("0,0")};
        PortCallRows ports{Call("A", 0)};
        for (int i = 1; i <= 12; ++i) {
            const bool isPort = i == 12 || random() % 3 == 0;
            rows.push_back(Point(std::to_string(i) + ",1", isPort ? PortPoint : PlainPoint, speed(random)));
            if (isPort) {
                ports.push_back(Call("P", 0, speed(random)));
            }
        }
        ASSERT_EQ(RescaleBookSpeeds(ports, rows), 0);
        auto totals = ports;
        ASSERT_EQ(LegTotalsFromBook(Book(rows), totals), 0);
        for (std::size_t i = 1; i < ports.size(); ++i) {
            ASSERT_NEAR(totals[i].psp, ports[i].psp, 1e-4) << i;
        }
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan

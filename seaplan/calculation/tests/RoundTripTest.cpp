// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>
#include <random>
#include <utility>

#include <gtest/gtest.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

constexpr float kInfinity = std::numeric_limits<float>::infinity();

/// Whether two numbers are the same or neighbours in 32 bits.
bool WithinOneUnit(float a, float b) {
    return a == b || std::nextafterf(a, kInfinity) == b || std::nextafterf(a, -kInfinity) == b;
}

TEST(RoundTrip, EveryUnitThereAndBackStaysWithinOneUnitOfTheLastPlace) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> value(0.001F, 40000);
    const std::pair<const char*, const char*> units[] = {
        {"kts", "KPH"}, {"kts", "MPH"}, {"KPH", "MPH"}, {"NM", "KM"}, {"hour", "day"}};
    for (const auto& [from, to] : units) {
        for (int i = 0; i < 2000; ++i) {
            VoyPortCall row = Call("A", value(random), value(random), 0, value(random));
            row.steamTime = value(random);
            for (const bool forth : {true, false}) {
                PortCallRows there;
                PortCallRows back;
                ASSERT_EQ(ConvertRows({row}, forth ? from : to, forth ? to : from, there), 0);
                ASSERT_EQ(ConvertRows(there, forth ? to : from, forth ? from : to, back), 0);
                ASSERT_TRUE(WithinOneUnit(back[0].psp, row.psp)) << from << to << row.psp;
                ASSERT_TRUE(WithinOneUnit(back[0].distance, row.distance)) << from << to << row.distance;
                ASSERT_TRUE(WithinOneUnit(back[0].steamTime, row.steamTime)) << from << to << row.steamTime;
                ASSERT_TRUE(WithinOneUnit(back[0].apt, row.apt)) << from << to << row.apt;
            }
        }
    }
}

/// An arrival typed for row `index`: the leg's time follows, and so its speed.
void TypeArrival(PortCallRows& rows, std::size_t index, const std::string& arrival) {
    float hours = 0;
    ASSERT_EQ(HoursBetween(arrival, Text(rows[index - 1].etd), hours), 0);
    ASSERT_GT(hours, 0);
    rows[index].psp = static_cast<float>(SpeedForSteamTime(rows[index].distance, hours, rows[index].pw));
    PortCallRows out;
    ASSERT_EQ(RecomputeSchedule(rows, out), 0);
    rows = out;
}

std::string Later(const std::string& time, int seconds) {
    const CellTexts cells{"1", "A", "D", " ", " ", " ", " ", time, time, " "};
    return Text(CellsToRow(cells).eta + Util::_time_t(0, 0, seconds));
}

class ArrivalRoundTrip : public ::testing::Test {
  protected:
    ArrivalRoundTrip() {
        std::uniform_real_distribution<float> miles(20, 6000);
        std::uniform_real_distribution<float> knots(5, 30);
        std::uniform_real_distribution<float> weather(0, 0.5F);
        PortCallRows made{Call("A", 0, 0, 0, 6)};
        for (const char* name : {"B", "C", "D", "E"}) {
            made.push_back(Call(name, miles(random), knots(random), weather(random), 12));
        }
        EXPECT_EQ(RecomputeSchedule(made, rows), 0);
    }
    unsigned seed = std::random_device{}();
    std::mt19937 random{seed};
    PortCallRows rows;
};

TEST_F(ArrivalRoundTrip, ArrivalTypedAndTypedBackReturnsToTheSpeeds) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    for (int round = 0; round < 500; ++round) {
        const std::size_t index = 1 + random() % (rows.size() - 1);
        const std::string first = Later(Text(rows[index].eta), 7);
        TypeArrival(rows, index, first);
        const PortCallRows before = rows;
        TypeArrival(rows, index, Later(first, static_cast<int>(random() % 400000)));
        TypeArrival(rows, index, first);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            ASSERT_TRUE(WithinOneUnit(rows[i].psp, before[i].psp)) << i;
            ASSERT_TRUE(WithinOneUnit(rows[i].steamTime, before[i].steamTime)) << i;
            ASSERT_EQ(rows[i].eta, before[i].eta) << i;
            ASSERT_EQ(rows[i].etd, before[i].etd) << i;
        }
    }
}

// A cell tells whole seconds, so an arrival that was calculated and not typed comes back to the second.
TEST_F(ArrivalRoundTrip, ArrivalAsTheCellTellsItMovesTheSpeedByASecondAtMost) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    for (std::size_t index = 1; index < rows.size(); ++index) {
        const VoyPortCall before = rows[index];
        TypeArrival(rows, index, Text(before.eta));
        const double share = 1.02 / 3600 / static_cast<double>(before.steamTime);
        EXPECT_NEAR(rows[index].psp, before.psp, static_cast<double>(before.psp) * (share + 1e-6));
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan

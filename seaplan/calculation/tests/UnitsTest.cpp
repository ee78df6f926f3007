// SPDX-License-Identifier: MIT
#include <random>
#include <utility>

#include <gtest/gtest.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

VoyPortCall Sample(float value) {
    auto row = Call("A", value, value, 0.5F, value);
    row.steamTime = value;
    return row;
}

struct Conversion {
    const char* from;
    const char* to;
    float psp;
    float distance;
    float time;
};

TEST(ConvertRows, ChangesOnlyTheQuantityOfItsUnits) {
    for (const auto& c :
         {Conversion{"KPH", "kts", 10 / 1.852F, 10, 10}, Conversion{"kts", "KPH", 18.52F, 10, 10},
          Conversion{"KPH", "MPH", 10 / 1.61F, 10, 10}, Conversion{"MPH", "KPH", 16.1F, 10, 10},
          Conversion{"kts", "MPH", 11.5F, 10, 10}, Conversion{"MPH", "kts", 10 / 1.15F, 10, 10},
          Conversion{"KM", "NM", 10, 10 / 1.852F, 10}, Conversion{"NM", "KM", 10, 18.52F, 10},
          Conversion{"day", "hour", 10, 10, 240}, Conversion{"hour", "day", 10, 10, 10 / 24.0F}}) {
        PortCallRows out;
        ASSERT_EQ(ConvertRows({Sample(10)}, c.from, c.to, out), 0) << c.from << c.to;
        EXPECT_FLOAT_EQ(out[0].psp, c.psp) << c.from << c.to;
        EXPECT_FLOAT_EQ(out[0].distance, c.distance) << c.from << c.to;
        EXPECT_FLOAT_EQ(out[0].steamTime, c.time) << c.from << c.to;
        EXPECT_FLOAT_EQ(out[0].apt, c.time) << c.from << c.to;
        EXPECT_EQ(out[0].pw, 0.5F);
        EXPECT_EQ(out[0].eta, At(1, 0));
        EXPECT_EQ(out[0].etd, At(1, 0));
    }
}

TEST(ConvertRows, FactorIsTheNearest32BitFloat) {
    PortCallRows out;
    ASSERT_EQ(ConvertRows({Sample(123456.7F)}, "NM", "KM", out), 0);
    EXPECT_EQ(out[0].distance,
              static_cast<float>(static_cast<double>(123456.7F) * static_cast<double>(1.852F)));
}

struct ExactFactor {
    const char* from;
    const char* to;
    double multiplier;
    double divisor;
    float VoyPortCall::*field;
};

// Value times multiplier over divisor in double, factors as 32-bit floats, rounded once on storing.
TEST(ConvertRows, EveryFactorIsExact) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> value(0.001F, 30000);
    const double km = static_cast<double>(1.852F);
    const double mile = static_cast<double>(1.61F);
    const double direct = static_cast<double>(1.15F);
    for (const auto& c : {ExactFactor{"KPH", "kts", 1, km, &VoyPortCall::psp},
                          ExactFactor{"kts", "KPH", km, 1, &VoyPortCall::psp},
                          ExactFactor{"KPH", "MPH", 1, mile, &VoyPortCall::psp},
                          ExactFactor{"MPH", "KPH", mile, 1, &VoyPortCall::psp},
                          ExactFactor{"kts", "MPH", direct, 1, &VoyPortCall::psp},
                          ExactFactor{"MPH", "kts", 1, direct, &VoyPortCall::psp},
                          ExactFactor{"KM", "NM", 1, km, &VoyPortCall::distance},
                          ExactFactor{"NM", "KM", km, 1, &VoyPortCall::distance},
                          ExactFactor{"day", "hour", 24, 1, &VoyPortCall::steamTime},
                          ExactFactor{"hour", "day", 1, 24, &VoyPortCall::apt}}) {
        for (int i = 0; i < 200; ++i) {
            const float before = value(random);
            PortCallRows out;
            ASSERT_EQ(ConvertRows({Sample(before)}, c.from, c.to, out), 0);
            ASSERT_EQ(out[0].*c.field,
                      static_cast<float>(static_cast<double>(before) * c.multiplier / c.divisor))
                << c.from << " " << c.to << " " << before;
        }
    }
}

TEST(ConvertRows, TextsAndWeatherStay) {
    auto row = Sample(10);
    row.pp = "B";
    PortCallRows out;
    for (const auto& [from, to] :
         {std::pair{"kts", "KPH"}, std::pair{"NM", "KM"}, std::pair{"hour", "day"}}) {
        ASSERT_EQ(ConvertRows({row, row}, from, to, out), 0);
        ASSERT_EQ(out.size(), 2);
        EXPECT_EQ(out[1].ppi + out[1].ppn + out[1].pp, "4AAB");
        EXPECT_EQ(out[1].pw, 0.5F);
    }
}

TEST(ConvertRows, InputMayBeTheOutput) {
    PortCallRows rows{Sample(10)};
    ASSERT_EQ(ConvertRows(rows, "day", "hour", rows), 0);
    EXPECT_EQ(rows[0].apt, 240);
    EXPECT_EQ(ConvertRows(rows, "day", "week", rows), -1);
    EXPECT_TRUE(rows.empty());
}

TEST(StandardUnits, TableStartsInKnotsMilesAndDays) {
    const UnitSet shown;
    EXPECT_EQ(shown.speed + shown.distance + shown.time, "ktsNMday");
}

TEST(ConvertRows, MphOverKphIsNotTheDirectWay) {
    PortCallRows kph;
    PortCallRows overKph;
    PortCallRows direct;
    ASSERT_EQ(ConvertRows({Sample(10)}, "kts", "KPH", kph), 0);
    ASSERT_EQ(ConvertRows(kph, "KPH", "MPH", overKph), 0);
    ASSERT_EQ(ConvertRows({Sample(10)}, "kts", "MPH", direct), 0);
    EXPECT_NE(overKph[0].psp, direct[0].psp);
}

TEST(ConvertRows, FailuresEmptyTheResult) {
    PortCallRows out{Sample(1)};
    EXPECT_EQ(ConvertRows({Sample(1)}, "kts", "NM", out), -1);
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(ConvertRows({Sample(1)}, "kts", "kts", out), -1);
    EXPECT_EQ(ConvertRows({Sample(1)}, "Kts", "KPH", out), -1) << "names are compared as texts";
    EXPECT_EQ(ConvertRows({}, "kts", "nothing", out), -2) << "the empty input is tested first";
}

TEST(ConvertUnitValue, GuardsTheConversion) {
    PortCallRows out{Sample(1)};
    EXPECT_EQ(ConvertUnitValue({}, "kts", "kts", out), -1) << "the list is tested before the units";
    EXPECT_EQ(ConvertUnitValue({Sample(1)}, "kts", "kts", out), -2);
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(ConvertUnitValue({Sample(1)}, "kts", "KM", out), -3);
    EXPECT_EQ(ConvertUnitValue({Sample(10)}, "kts", "KPH", out), 0);
    EXPECT_FLOAT_EQ(out[0].psp, 18.52F);
}

TEST(StandardUnits, ConvertsEveryQuantityThatIsNotStandard) {
    PortCallRows out;
    ASSERT_EQ(ToStandardUnits({Sample(10)}, {"KPH", "KM", "day"}, out), 0);
    EXPECT_FLOAT_EQ(out[0].psp, 10 / 1.852F);
    EXPECT_FLOAT_EQ(out[0].distance, 10 / 1.852F);
    EXPECT_EQ(out[0].steamTime, 240);
    EXPECT_EQ(out[0].apt, 240);
    ASSERT_EQ(ToStandardUnits({Sample(10)}, {"kts", "NM", "hour"}, out), 0);
    EXPECT_EQ(out[0].psp, 10);
    EXPECT_EQ(out[0].steamTime, 10);
}

TEST(StandardUnits, TellsWhichUnitIsBad) {
    PortCallRows out{Sample(1)};
    for (const auto& convert : {ToStandardUnits, FromStandardUnits}) {
        EXPECT_EQ(convert({}, {}, out), -1);
        EXPECT_EQ(convert({Sample(1)}, {"knots", "x", "x"}, out), -2);
        EXPECT_EQ(convert({Sample(1)}, {"kts", "MI", "x"}, out), -3);
        EXPECT_EQ(convert({Sample(1)}, {"kts", "NM", "hours"}, out), -4);
        EXPECT_TRUE(out.empty());
    }
}

TEST(StandardUnits, OneAndAHalfDaysReadThirtySixHours) {
    PortCallRows hours;
    ASSERT_EQ(ConvertUnitValue({Sample(1.5F)}, "day", "hour", hours), 0);
    EXPECT_EQ(RowToCells(0, hours[0])[ColSteamTime], "36.00");
}

TEST(StandardUnits, TenKnotsComeBackFromTheCellAsTenKnots) {
    PortCallRows shown;
    ASSERT_EQ(ConvertUnitValue({Sample(10)}, "kts", "KPH", shown), 0);
    const auto cells = RowToCells(0, shown[0]);
    EXPECT_EQ(cells[ColSpeed], "18.52");
    PortCallRows back;
    ASSERT_EQ(ConvertUnitValue({CellsToRow(cells)}, "KPH", "kts", back), 0);
    EXPECT_EQ(RowToCells(0, back[0])[ColSpeed], "10.00");
}

TEST(StandardUnits, ThereAndBackKeepsEveryValue) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> value(0.001F, 30000);
    for (const auto* speed : {"kts", "KPH", "MPH"}) {
        for (int i = 0; i < 300; ++i) {
            const UnitSet units{speed, i % 2 == 0 ? "KM" : "NM", i % 3 == 0 ? "hour" : "day"};
            const PortCallRows rows{Sample(value(random)), Sample(value(random))};
            PortCallRows shown;
            PortCallRows back;
            ASSERT_EQ(FromStandardUnits(rows, units, shown), 0);
            ASSERT_EQ(ToStandardUnits(shown, units, back), 0);
            for (std::size_t r = 0; r < rows.size(); ++r) {
                ASSERT_FLOAT_EQ(back[r].psp, rows[r].psp);
                ASSERT_FLOAT_EQ(back[r].distance, rows[r].distance);
                ASSERT_FLOAT_EQ(back[r].steamTime, rows[r].steamTime);
                ASSERT_FLOAT_EQ(back[r].apt, rows[r].apt);
                ASSERT_EQ(back[r].ppn, rows[r].ppn);
            }
        }
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan

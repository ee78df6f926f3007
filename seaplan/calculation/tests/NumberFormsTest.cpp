// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;
using ::testing::ElementsAre;

/// The cells of the columns that rules name; what stands behind them is computed from these.
std::vector<std::string> Named(const CellTexts& cells) {
    return {cells.begin(), cells.begin() + ColDistance + 1};
}

TEST(NumberForms, RowFillsAllTenCells) {
    auto row = Call("Rotterdam", 1234.567F, 12.345F, 0.126F, 6.5F);
    row.steamTime = 100.004F;
    row.eta = At(4, 5, 6);
    row.etd = At(4, 11, 36);
    EXPECT_THAT(Named(RowToCells(2, row)),
                ElementsAre("3", "Rotterdam", "D", "12.35", "13%", "100.00", "6.50", "2026-03-04 05:06:00",
                            "2026-03-04 11:36:00", "1234.57"));
}

TEST(NumberForms, CellsGiveTheRowBack) {
    CellTexts cells{"3",
                    "Rotterdam",
                    "B",
                    "12.35",
                    "13%",
                    "100.00",
                    "6.50",
                    "2026-03-04 05:06:07",
                    "2026-03-04 11:36:00",
                    "1234.57"};
    const auto row = CellsToRow(cells);
    EXPECT_EQ(row.ppi, "");
    EXPECT_EQ(row.psp, 12.35F);
    EXPECT_EQ(row.pw, 0.13F);
    EXPECT_EQ(Text(row.eta), "2026-03-04 05:06:07");
    EXPECT_EQ(Named(RowToCells(2, row)), Named(cells));
}

TEST(NumberForms, BlankCellsLeaveTheDefaults) {
    for (const std::string blank : {"", " "}) {
        CellTexts cells;
        cells.fill(blank);
        cells[ColPort] = "Rotterdam";
        const auto row = CellsToRow(cells);
        EXPECT_EQ(row.ppn, "Rotterdam");
        EXPECT_EQ(row.psp, 10);
        EXPECT_EQ(row.pw, 0);
        EXPECT_EQ(row.steamTime, 0);
        EXPECT_EQ(row.apt, 0);
        EXPECT_EQ(row.distance, 0);
        EXPECT_EQ(row.pp, blank) << "the purpose of a ship's position is one blank";
    }
}

TEST(NumberForms, BadTimeLeavesTheDefault) {
    CellTexts cells;
    cells[ColEta] = "2026-13-01 00:00:00";
    cells[ColEtd] = "2026-03-01 00:00";
    const auto row = CellsToRow(cells);
    EXPECT_GT(row.eta.year(), 2000);
    EXPECT_NE(Text(row.eta), cells[ColEta]);
    EXPECT_NE(Text(row.etd).substr(0, 16), cells[ColEtd]);
}

TEST(NumberForms, WeatherKeepsOnlyTheShownPercent) {
    CellTexts cells;
    cells[ColWeather] = WeatherText(0.126);
    EXPECT_EQ(cells[ColWeather], "13%");
    EXPECT_EQ(CellsToRow(cells).pw, 0.13F);
    EXPECT_EQ(WeatherText(0), "0%");
    EXPECT_EQ(WeatherText(static_cast<double>(0.9999999F)), "100%");
}

TEST(NumberForms, LastCharacterOfTheWeatherIsCutWhateverItIs) {
    CellTexts cells;
    cells[ColWeather] = "12";
    EXPECT_EQ(CellsToRow(cells).pw, 0.01F);
    cells[ColWeather] = "%";
    EXPECT_EQ(CellsToRow(cells).pw, 0);
}

TEST(NumberForms, NumbersArePrintedRounded) {
    EXPECT_EQ(SpeedText(18.519999), "18.52");
    EXPECT_EQ(TwoDecimals(0), "0.00");
    EXPECT_EQ(TwoDecimals(1e6), "1000000.00");
    EXPECT_EQ(OneDecimal(9.96), "10.0");
    EXPECT_EQ(OneDecimal(-0.26), "-0.3");
}

TEST(NumberForms, BlankIsEmptyOrOneBlank) {
    EXPECT_TRUE(IsBlankCell(""));
    EXPECT_TRUE(IsBlankCell(" "));
    EXPECT_FALSE(IsBlankCell("  "));
    EXPECT_FALSE(IsBlankCell("0"));
}

}  // namespace
}  // namespace Tarvik::Seaplan

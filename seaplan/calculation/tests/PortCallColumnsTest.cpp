// SPDX-License-Identifier: MIT
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

TEST(PortCallColumns, EachHasATextOfItsOwnAndAPlace) {
    std::set<std::string> titles;
    for (const PortCallColumnEntry& column : kPortCallColumns) {
        EXPECT_TRUE(titles.insert(column.title).second) << column.title;
        EXPECT_GT(column.width, 0) << column.title;
        ASSERT_NE(column.text, nullptr) << column.title;
    }
}

TEST(PortCallColumns, NamedPlacesAreThoseOfTheTable) {
    EXPECT_STREQ(kPortCallColumns[ColOrder].title, "IDS_PORTCALL_ORDER");
    EXPECT_STREQ(kPortCallColumns[ColPort].title, "IDS_PORTCALL_PORT");
    EXPECT_STREQ(kPortCallColumns[ColPurpose].title, "IDS_PORTCALL_PURPOSE");
    EXPECT_STREQ(kPortCallColumns[ColSpeed].title, "IDS_PORTCALL_SPEED");
    EXPECT_STREQ(kPortCallColumns[ColWeather].title, "IDS_PORTCALL_WEATHER");
    EXPECT_STREQ(kPortCallColumns[ColSteamTime].title, "IDS_PORTCALL_STEAMTIME");
    EXPECT_STREQ(kPortCallColumns[ColPortTime].title, "IDS_PORTCALL_ATPORTTIME");
    EXPECT_STREQ(kPortCallColumns[ColEta].title, "IDS_PORTCALL_ETA");
    EXPECT_STREQ(kPortCallColumns[ColEtd].title, "IDS_PORTCALL_ETD");
    EXPECT_STREQ(kPortCallColumns[ColDistance].title, "IDS_PORTCALL_DISTANCE");
}

TEST(PortCallColumns, WhatIsEnteredIsReadBack) {
    for (const PortCallColumnEntry& column : kPortCallColumns) {
        if (column.entered || column.editor != CellEditor::None) {
            EXPECT_NE(column.read, nullptr) << column.title;
        }
    }
}

TEST(PortCallColumns, UnitsAreLabelled) {
    EXPECT_EQ(UnitLabel({}, UnitKind::Speed), "kts");
    EXPECT_EQ(UnitLabel({}, UnitKind::Distance), "NM");
    EXPECT_EQ(UnitLabel({}, UnitKind::Time), "days");
    EXPECT_EQ(UnitLabel({"KPH", "KM", "hour"}, UnitKind::Time), "hours");
    EXPECT_EQ(UnitLabel({}, UnitKind::None), "");
}

TEST(PortCallColumns, EveryOfferedUnitIsOneThatConverts) {
    for (const UnitKind kind : {UnitKind::Speed, UnitKind::Distance, UnitKind::Time}) {
        for (const char* unit : OfferedUnits(kind)) {
            UnitSet units;
            UnitOf(units, kind) = unit;
            PortCallRows out;
            EXPECT_EQ(FromStandardUnits(PortCallRows(1), units, out), 0) << unit;
        }
    }
}

TEST(PortCallColumns, EveryOfferedUnitOfSpeedIsKnownByItsWords) {
    for (const char* unit : OfferedUnits(UnitKind::Speed)) {
        EXPECT_FALSE(WordsOfSpeedUnit(unit).empty()) << unit;
    }
    EXPECT_TRUE(WordsOfSpeedUnit("furlong").empty()) << "not on offer";
}

TEST(PortCallColumns, TotalsLeaveTheColumnsWithoutOne) {
    PortCallRows rows(2);
    rows[1].steamTime = 24;
    rows[1].apt = 1.5F;
    rows[1].distance = 240;
    CellTexts cells;
    cells.fill("-");
    EXPECT_FALSE(TotalsToCells(PortCallRows(1), cells));
    EXPECT_EQ(cells[ColDistance], "-");
    ASSERT_TRUE(TotalsToCells(rows, cells));
    const std::vector<std::string> named(cells.begin(), cells.begin() + ColDistance + 1);
    EXPECT_THAT(named, ElementsAre("-", "-", "-", "-", "-", "24.0", "1.50", rows[0].eta.fmt(kTimeFormat),
                                   rows[1].etd.fmt(kTimeFormat), "240.00"));
}

TEST(PortCallColumns, TheSummaryIsToldInTheUnitsOnShow) {
    SummaryTexts texts;
    ASSERT_TRUE(SummaryToTexts({10, 60, 480}, {}, texts));
    EXPECT_EQ(texts.averageSpeed, "10.0");
    EXPECT_EQ(texts.totalTime, "2.50");
    EXPECT_EQ(texts.totalDistance, "480.0");
    EXPECT_FALSE(SummaryToTexts({1, 1, 1}, {"knots", "NM", "day"}, texts));
    EXPECT_EQ(texts.averageSpeed, "10.0");
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/panels/portcall/PortCallTable.h"

namespace Tarvik::Seaplan {

namespace {

PortCallRows RowsNamed(int count) {
    PortCallRows rows(count);
    for (int i = 0; i < count; ++i) {
        rows[i].ppn = "P" + std::to_string(i);
        rows[i].steamTime = 1;
        rows[i].apt = 0.5F;
        rows[i].distance = 100;
    }
    return rows;
}

}  // namespace

TEST(PortCallTable, AResetHasSixRowsTotalsAndAClosingRow) {
    PortCallTable table;
    EXPECT_EQ(table.RowCount(), 6);
    ASSERT_EQ(table.Rows().size(), 8U);
    EXPECT_EQ(table.Cell(5, ColOrder), "6");
    EXPECT_EQ(table.Cell(6, ColOrder), "RES");
    EXPECT_EQ(table.Rows()[6].look, RowClass::Normal);
    EXPECT_EQ(table.Cell(7, ColOrder), " ");
    EXPECT_EQ(table.Rows()[7].look, RowClass::Disabled);
    EXPECT_EQ(table.Cell(0, ColPort), " ");
}

TEST(PortCallTable, ABlankFirstRowEndsTheReadingOtherBlankRowsAreSkipped) {
    PortCallTable table;
    table.SetCell(1, ColPort, "HAMBURG");
    table.SetCell(3, ColPort, "GDANSK");
    EXPECT_TRUE(table.ReadRows().empty());
    ASSERT_EQ(table.ReadAllRows().size(), 2U);
    EXPECT_EQ(table.CompactIndex(3), 1);
    table.SetCell(0, ColPort, "ROTTERDAM");
    ASSERT_EQ(table.ReadRows().size(), 3U);
    EXPECT_EQ(table.ReadRows()[2].ppn, "GDANSK");
}

TEST(PortCallTable, TheLastNumberedRowGrowsAFreeOneBelow) {
    PortCallTable table;
    table.GrowIfLast(4);
    EXPECT_EQ(table.RowCount(), 6);
    table.GrowIfLast(5);
    EXPECT_EQ(table.RowCount(), 7);
    EXPECT_EQ(table.Cell(6, ColOrder), "7");
    EXPECT_EQ(table.Cell(7, ColOrder), "RES");
    EXPECT_EQ(table.Rows().size(), 9U);
}

TEST(PortCallTable, FiveRowsKeepTheShapeSixRebuildItWithoutAClosingRow) {
    PortCallTable table;
    table.WriteRows(RowsNamed(5));
    EXPECT_EQ(table.RowCount(), 6);
    EXPECT_EQ(table.Rows().size(), 8U);
    table.WriteRows(RowsNamed(6));
    EXPECT_EQ(table.RowCount(), 7);
    ASSERT_EQ(table.Rows().size(), 8U);
    EXPECT_EQ(table.Cell(7, ColOrder), "RES");
    EXPECT_EQ(table.Cell(6, ColPort), " ");
}

TEST(PortCallTable, WritingFewerRowsBlanksTheRest) {
    PortCallTable table;
    table.WriteRows(RowsNamed(4));
    table.WriteTotals(RowsNamed(4));
    table.WriteRows(RowsNamed(2));
    EXPECT_EQ(table.Cell(1, ColPort), "P1");
    EXPECT_EQ(table.Cell(2, ColPort), " ");
    EXPECT_EQ(table.Cell(6, ColDistance), " ");
    EXPECT_EQ(table.Cell(2, ColOrder), "3");
}

TEST(PortCallTable, TotalsHaveOneDecimalForTheSteamTimeAndTwoForTheRest) {
    PortCallTable table;
    table.WriteTotals(RowsNamed(3));
    EXPECT_EQ(table.Cell(6, ColSteamTime), "3.0");
    EXPECT_EQ(table.Cell(6, ColPortTime), "1.50");
    EXPECT_EQ(table.Cell(6, ColDistance), "300.00");
    table.ClearTotals();
    for (int column = ColSteamTime; column <= ColDistance; ++column) {
        EXPECT_EQ(table.Cell(6, column), " ") << column;
    }
    EXPECT_EQ(table.Cell(6, ColOrder), "RES");
}

TEST(PortCallTable, TotalsOfOneRowAreNotWritten) {
    PortCallTable table;
    table.WriteTotals(RowsNamed(1));
    EXPECT_EQ(table.Cell(6, ColDistance), " ");
}

TEST(PortCallTable, ThePartialFormShowsOnlyWhatWasEntered) {
    PortCallTable table;
    table.WriteRows(RowsNamed(3));
    table.WriteTotals(RowsNamed(3));
    table.WritePartial(RowsNamed(2));
    EXPECT_EQ(table.Cell(1, ColPort), "P1");
    EXPECT_EQ(table.Cell(1, ColPurpose), "D");
    EXPECT_EQ(table.Cell(1, ColSpeed), "10.00");
    EXPECT_EQ(table.Cell(1, ColWeather), "0%");
    EXPECT_EQ(table.Cell(1, ColPortTime), "0.50");
    for (const int column : {ColSteamTime, ColEta, ColEtd, ColDistance}) {
        EXPECT_EQ(table.Cell(1, column), " ") << column;
    }
    EXPECT_EQ(table.Cell(2, ColPort), " ");
    EXPECT_EQ(table.Cell(6, ColDistance), " ");
}

TEST(PortCallTable, RowActionsFollowThePlaceAmongTheFilledRows) {
    PortCallTable table;
    table.WriteRows(RowsNamed(2));
    EXPECT_FALSE(ActionsOf(table, 0).moveUp);
    EXPECT_TRUE(ActionsOf(table, 0).moveDown);
    EXPECT_TRUE(ActionsOf(table, 1).moveUp);
    EXPECT_FALSE(ActionsOf(table, 1).moveDown);
    EXPECT_TRUE(ActionsOf(table, 1).remove);
    EXPECT_FALSE(ActionsOf(table, 2).remove);
    EXPECT_FALSE(ActionsOf(table, 6).remove);
}

TEST(PortCallTable, UnknownPortsAreMarked) {
    PortCallTable table;
    table.WriteRows(RowsNamed(2));
    table.MarkPorts([](const std::string& name) { return name == "P0"; }, 2);
    EXPECT_FALSE(table.Rows()[0].unknownPort);
    EXPECT_TRUE(table.Rows()[1].unknownPort);
    EXPECT_FALSE(table.Rows()[2].unknownPort);
}

TEST(PortCallTable, RowsBehindTheRoutesPortsAreStale) {
    PortCallTable table;
    table.WriteRows(RowsNamed(3));
    table.MarkPorts([](const std::string&) { return true; }, 2);
    EXPECT_FALSE(table.Rows()[1].stale);
    EXPECT_TRUE(table.Rows()[2].stale);
    EXPECT_FALSE(table.Rows()[3].stale) << "it has no port";
}

}  // namespace Tarvik::Seaplan

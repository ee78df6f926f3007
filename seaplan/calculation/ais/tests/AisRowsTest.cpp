// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/ais/AisRows.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

PosBookPoint left(PosBookPoint row, const Util::_datetime_t& etd) {
    row.eta = etd;
    row.etd = etd;
    return row;
}

PosBookPoint fix(std::string position) {
    return point(std::move(position), AisTrackPoint);
}

/// Miles of a stretch of the equator, as the table holds them.
double miles(const char* from, const char* to) {
    float nm = 0;
    EXPECT_EQ(LegDistance(from, to, "RL", nm), 0);
    return static_cast<double>(nm);
}

PortCallRows twoPorts() {
    return {call("A", 7, 0, 0, 2), call("B", 0, 0, 0.25F, 3)};
}

/// A row a degree, left at six, ten, twelve and fifteen o'clock.
BookPoints correctedLeg() {
    return {left(port("0,0"), at(1, 6)), left(point("1,0"), at(1, 10)), left(fix("2,0.5"), at(1, 12)),
            left(port("3,0"), at(1, 15))};
}

TEST(AisRows, PurposeOfOneBlankMarksThem) {
    VoyPortCall row;
    EXPECT_FALSE(IsAisRow(row));
    row.pp = "";
    EXPECT_FALSE(IsAisRow(row));
    row.pp = " ";
    EXPECT_TRUE(IsAisRow(row));
}

TEST(AisRows, PositionStandsBetweenItsPorts) {
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(twoPorts(), correctedLeg(), rows), 0);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0].ppn, "A");
    EXPECT_EQ(rows[0].distance, 7) << "the first port goes out as it is";
    EXPECT_EQ(rows[0].apt, 2);
    EXPECT_EQ(rows[1].ppn, "0.500,2.000") << "latitude first";
    EXPECT_EQ(rows[1].pp, " ");
    EXPECT_EQ(rows[1].eta, at(1, 12));
    EXPECT_EQ(rows[1].etd, at(1, 12));
    const double toFix = miles("0,0", "1,0") + miles("1,0", "2,0.5");
    EXPECT_EQ(rows[1].distance, static_cast<float>(toFix)) << "its own step is part of the sum";
    EXPECT_EQ(rows[1].steamTime, 6);
    EXPECT_EQ(rows[1].psp, static_cast<float>(toFix / 6));
    EXPECT_EQ(rows[2].ppn, "B");
    EXPECT_EQ(rows[2].distance, static_cast<float>(miles("2,0.5", "3,0"))) << "sums begin anew behind it";
    EXPECT_EQ(rows[2].steamTime, 3);
    EXPECT_EQ(rows[2].pw, 0.25F);
    EXPECT_EQ(rows[2].apt, 3);
}

TEST(AisRows, PositionRightBehindAPortHasItsOwnStep) {
    const BookPoints book{left(port("0,0"), at(1, 6)), left(fix("1,0"), at(1, 10)),
                          left(fix("2,0"), at(1, 12)), left(port("3,0"), at(1, 15))};
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(twoPorts(), book, rows), 0);
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[1].steamTime, 4);
    EXPECT_EQ(rows[2].distance, static_cast<float>(miles("1,0", "2,0")));
    EXPECT_EQ(rows[2].steamTime, 2);
    EXPECT_EQ(rows[3].steamTime, 3);
}

TEST(AisRows, TimeWithoutWayBeforeAPositionIsDropped) {
    const BookPoints book{left(port("0,0"), at(1, 6)), left(point("0,0"), at(1, 9)),
                          left(fix("1,0"), at(1, 10)), left(port("3,0"), at(1, 15))};
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(twoPorts(), book, rows), 0);
    EXPECT_EQ(rows[1].steamTime, 1);
}

TEST(AisRows, SpeedNeedsTime) {
    auto book = correctedLeg();
    for (auto& row : book) {
        row.etd = at(1, 6);
    }
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(twoPorts(), book, rows), 0);
    EXPECT_EQ(rows[1].psp, 0);
    EXPECT_GT(rows[1].distance, 0);
    EXPECT_EQ(rows[2].psp, 0);
}

TEST(AisRows, PortsWithoutPositionsHaveTheirWholeLegs) {
    auto ports = twoPorts();
    ports.push_back(call("C", 0));
    const BookPoints book{left(port("0,0"), at(1, 6)), left(port("1,0"), at(1, 12)),
                          left(point("2,0"), at(1, 16)), left(port("3,0"), at(1, 22))};
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(ports, book, rows), 0);
    ASSERT_EQ(names(rows), "ABC");
    EXPECT_EQ(rows[1].steamTime, 6);
    EXPECT_EQ(rows[2].steamTime, 10);
    EXPECT_EQ(rows[2].psp, static_cast<float>((miles("1,0", "2,0") + miles("2,0", "3,0")) / 10));
}

TEST(AisRows, FailuresLeaveNoRows) {
    PortCallRows rows{call("X", 0)};
    EXPECT_EQ(BuildAisRows({}, correctedLeg(), rows), -1);
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(BuildAisRows(twoPorts(), {port("0,0")}, rows), -2);
    auto ports = twoPorts();
    ports.push_back(call("C", 0));
    EXPECT_EQ(BuildAisRows(ports, correctedLeg(), rows), -3);
    auto book = correctedLeg();
    book[2].position = "nowhere";
    EXPECT_EQ(BuildAisRows(twoPorts(), book, rows), -4);
    EXPECT_TRUE(rows.empty());
}

struct SplitTest : ::testing::Test {
    PortCallRows ports{call("A", 0, 10, 0, 2), call("B", 0, 10, 0, 3), call("C", 0)};
    VoyPositionBook book;
    PortCallRows before;
    PortCallRows after;

    SplitTest() {
        book.eta = at(1, 0);
        book.points = {port("0,0"), fix("1,0"), fix("2,0"), point("2.5,0"), port("3,0"), port("4,0")};
    }
};

TEST_F(SplitTest, HistoryEndsWithTheLastPosition) {
    ASSERT_EQ(SplitCorrectedVoyage(book, ports, before, after), 0);
    EXPECT_EQ(names(before), "A0.000,1.0000.000,2.000");
    EXPECT_EQ(names(after), "BC");
    EXPECT_TRUE(IsAisRow(before.back()));
}

TEST_F(SplitTest, RowsAreTimedFromTheBooksStart) {
    ASSERT_EQ(SplitCorrectedVoyage(book, ports, before, after), 0);
    EXPECT_EQ(text(before[1].etd), "2026-03-01 08:00:38") << "two hours' stay, six hours' way";
}

TEST_F(SplitTest, NothingToSplitFails) {
    before = {call("X", 0)};
    for (auto& row : book.points) {
        row.pst = row.pst == AisTrackPoint ? PlainPoint : row.pst;
    }
    EXPECT_EQ(SplitCorrectedVoyage(book, ports, before, after), -5);
    ports[0].pp = " ";
    EXPECT_EQ(SplitCorrectedVoyage(book, ports, before, after), -5) << "a first row has no history";
    ports.push_back(call("D", 0));
    EXPECT_EQ(SplitCorrectedVoyage(book, ports, before, after), -4);
    book.points[1].psp = 0;
    EXPECT_EQ(SplitCorrectedVoyage(book, ports, before, after), -3);
    EXPECT_EQ(names(before), "X");
}

TEST(AverageSpeeds, LieBeforeAndBehindTheRowOfThatTime) {
    const BookPoints book{left(port("0,0"), at(1, 0)), left(point("1,0"), at(1, 6)),
                          left(point("2,0"), at(1, 10)), left(port("3,0"), at(1, 15))};
    SpeedsAround speeds{99, 99};
    ASSERT_EQ(AverageSpeedsAround("2026-03-01 10:00:36", book, speeds), 0);
    EXPECT_EQ(speeds.before, static_cast<float>(miles("1,0", "2,0") / 4)) << "the way within the leg";
    EXPECT_EQ(speeds.after, static_cast<float>(miles("2,0", "3,0") / 5));
}

TEST(AverageSpeeds, NothingAtThatTimeLeavesThemAlone) {
    SpeedsAround speeds{99, 98};
    for (const auto* time : {"2026-03-01 12:00:37", "2026-03-01 11:59:23", "2026-03-02 12:00:00"}) {
        ASSERT_EQ(AverageSpeedsAround(time, correctedLeg(), speeds), 0) << time;
        EXPECT_EQ(speeds.before, 99);
        EXPECT_EQ(speeds.after, 98);
    }
    ASSERT_EQ(AverageSpeedsAround("2026-03-01 06:00:00", correctedLeg(), speeds), 0);
    EXPECT_EQ(speeds.before, 99) << "a leg of one row has no way";
}

TEST(AverageSpeeds, FirstOrLastRowOfALegHasOneSideOnly) {
    SpeedsAround speeds{99, 99};
    ASSERT_EQ(AverageSpeedsAround("2026-03-01 10:00:00", correctedLeg(), speeds), 0);
    EXPECT_EQ(speeds.before, 99);
    EXPECT_NE(speeds.after, 99);
    speeds = {99, 99};
    ASSERT_EQ(AverageSpeedsAround("2026-03-01 15:00:00", correctedLeg(), speeds), 0);
    EXPECT_NE(speeds.before, 99);
    EXPECT_EQ(speeds.after, 99);
}

TEST(AverageSpeeds, TellWhatIsWrong) {
    SpeedsAround speeds;
    EXPECT_EQ(AverageSpeedsAround("2026-03-01", correctedLeg(), speeds), -1);
    EXPECT_EQ(AverageSpeedsAround("2026-03-01 12:00:00", {}, speeds), -2);
    auto book = correctedLeg();
    book[1].position = "nowhere";
    EXPECT_EQ(AverageSpeedsAround("2026-03-01 12:00:00", book, speeds), -6);
    book = correctedLeg();
    book[3].etd = at(1, 11);
    EXPECT_EQ(AverageSpeedsAround("2026-03-01 12:00:00", book, speeds), -7);
}

}  // namespace
}  // namespace Tarvik::Seaplan

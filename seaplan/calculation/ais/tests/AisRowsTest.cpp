// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/ais/AisRows.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

PosBookPoint Left(PosBookPoint row, const Util::_datetime_t& etd) {
    row.eta = etd;
    row.etd = etd;
    return row;
}

PosBookPoint Fix(std::string position) {
    return Point(std::move(position), AisTrackPoint);
}

/// Miles of a stretch of the equator, as the table holds them.
double Miles(const char* from, const char* to) {
    float nm = 0;
    EXPECT_EQ(LegDistance(from, to, "RL", nm), 0);
    return static_cast<double>(nm);
}

PortCallRows TwoPorts() {
    return {Call("A", 7, 0, 0, 2), Call("B", 0, 0, 0.25F, 3)};
}

/// A row a degree, left at six, ten, twelve and fifteen o'clock.
BookPoints CorrectedLeg() {
    return {Left(Port("0,0"), At(1, 6)), Left(Point("1,0"), At(1, 10)), Left(Fix("2,0.5"), At(1, 12)),
            Left(Port("3,0"), At(1, 15))};
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
    ASSERT_EQ(BuildAisRows(TwoPorts(), CorrectedLeg(), rows), 0);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0].ppn, "A");
    EXPECT_EQ(rows[0].distance, 7) << "the first port goes out as it is";
    EXPECT_EQ(rows[0].apt, 2);
    EXPECT_EQ(rows[1].ppn, "0.500,2.000") << "latitude first";
    EXPECT_EQ(rows[1].pp, " ");
    EXPECT_EQ(rows[1].eta, At(1, 12));
    EXPECT_EQ(rows[1].etd, At(1, 12));
    const double toFix = Miles("0,0", "1,0") + Miles("1,0", "2,0.5");
    EXPECT_EQ(rows[1].distance, static_cast<float>(toFix)) << "its own step is part of the sum";
    EXPECT_EQ(rows[1].steamTime, 6);
    EXPECT_EQ(rows[1].psp, static_cast<float>(toFix / 6));
    EXPECT_EQ(rows[2].ppn, "B");
    EXPECT_EQ(rows[2].distance, static_cast<float>(Miles("2,0.5", "3,0"))) << "sums begin anew behind it";
    EXPECT_EQ(rows[2].steamTime, 3);
    EXPECT_EQ(rows[2].pw, 0.25F);
    EXPECT_EQ(rows[2].apt, 3);
}

TEST(AisRows, PositionRightBehindAPortHasItsOwnStep) {
    const BookPoints book{Left(Port("0,0"), At(1, 6)), Left(Fix("1,0"), At(1, 10)),
                          Left(Fix("2,0"), At(1, 12)), Left(Port("3,0"), At(1, 15))};
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(TwoPorts(), book, rows), 0);
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[1].steamTime, 4);
    EXPECT_EQ(rows[2].distance, static_cast<float>(Miles("1,0", "2,0")));
    EXPECT_EQ(rows[2].steamTime, 2);
    EXPECT_EQ(rows[3].steamTime, 3);
}

TEST(AisRows, TimeWithoutWayBeforeAPositionIsDropped) {
    const BookPoints book{Left(Port("0,0"), At(1, 6)), Left(Point("0,0"), At(1, 9)),
                          Left(Fix("1,0"), At(1, 10)), Left(Port("3,0"), At(1, 15))};
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(TwoPorts(), book, rows), 0);
    EXPECT_EQ(rows[1].steamTime, 1);
}

TEST(AisRows, SpeedNeedsTime) {
    auto book = CorrectedLeg();
    for (auto& row : book) {
        row.etd = At(1, 6);
    }
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(TwoPorts(), book, rows), 0);
    EXPECT_EQ(rows[1].psp, 0);
    EXPECT_GT(rows[1].distance, 0);
    EXPECT_EQ(rows[2].psp, 0);
}

TEST(AisRows, PortsWithoutPositionsHaveTheirWholeLegs) {
    auto ports = TwoPorts();
    ports.push_back(Call("C", 0));
    const BookPoints book{Left(Port("0,0"), At(1, 6)), Left(Port("1,0"), At(1, 12)),
                          Left(Point("2,0"), At(1, 16)), Left(Port("3,0"), At(1, 22))};
    PortCallRows rows;
    ASSERT_EQ(BuildAisRows(ports, book, rows), 0);
    ASSERT_EQ(Names(rows), "ABC");
    EXPECT_EQ(rows[1].steamTime, 6);
    EXPECT_EQ(rows[2].steamTime, 10);
    EXPECT_EQ(rows[2].psp, static_cast<float>((Miles("1,0", "2,0") + Miles("2,0", "3,0")) / 10));
}

TEST(AisRows, FailuresLeaveNoRows) {
    PortCallRows rows{Call("X", 0)};
    EXPECT_EQ(BuildAisRows({}, CorrectedLeg(), rows), -1);
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(BuildAisRows(TwoPorts(), {Port("0,0")}, rows), -2);
    auto ports = TwoPorts();
    ports.push_back(Call("C", 0));
    EXPECT_EQ(BuildAisRows(ports, CorrectedLeg(), rows), -3);
    auto book = CorrectedLeg();
    book[2].position = "nowhere";
    EXPECT_EQ(BuildAisRows(TwoPorts(), book, rows), -4);
    EXPECT_TRUE(rows.empty());
}

struct SplitTest : ::testing::Test {
    PortCallRows ports{Call("A", 0, 10, 0, 2), Call("B", 0, 10, 0, 3), Call("C", 0)};
    VoyPositionBook book;
    PortCallRows before;
    PortCallRows after;

    SplitTest() {
        book.eta = At(1, 0);
        book.points = {Port("0,0"), Fix("1,0"), Fix("2,0"), Point("2.5,0"), Port("3,0"), Port("4,0")};
    }
};

TEST_F(SplitTest, HistoryEndsWithTheLastPosition) {
    ASSERT_EQ(SplitCorrectedVoyage(book, ports, before, after), 0);
    EXPECT_EQ(Names(before), "A0.000,1.0000.000,2.000");
    EXPECT_EQ(Names(after), "BC");
    EXPECT_TRUE(IsAisRow(before.back()));
}

TEST_F(SplitTest, RowsAreTimedFromTheBooksStart) {
    ASSERT_EQ(SplitCorrectedVoyage(book, ports, before, after), 0);
    EXPECT_EQ(Text(before[1].etd), "2026-03-01 08:00:38") << "two hours' stay, six hours' way";
}

TEST_F(SplitTest, NothingToSplitFails) {
    before = {Call("X", 0)};
    for (auto& row : book.points) {
        row.pst = row.pst == AisTrackPoint ? PlainPoint : row.pst;
    }
    EXPECT_EQ(SplitCorrectedVoyage(book, ports, before, after), -5);
    ports[0].pp = " ";
    EXPECT_EQ(SplitCorrectedVoyage(book, ports, before, after), -5) << "a first row has no history";
    ports.push_back(Call("D", 0));
    EXPECT_EQ(SplitCorrectedVoyage(book, ports, before, after), -4);
    book.points[1].psp = 0;
    EXPECT_EQ(SplitCorrectedVoyage(book, ports, before, after), -3);
    EXPECT_EQ(Names(before), "X");
}

TEST(AverageSpeeds, LieBeforeAndBehindTheRowOfThatTime) {
    const BookPoints book{Left(Port("0,0"), At(1, 0)), Left(Point("1,0"), At(1, 6)),
                          Left(Point("2,0"), At(1, 10)), Left(Port("3,0"), At(1, 15))};
    SpeedsAround speeds{99, 99};
    ASSERT_EQ(AverageSpeedsAround("2026-03-01 10:00:36", book, speeds), 0);
    EXPECT_EQ(speeds.before, static_cast<float>(Miles("1,0", "2,0") / 4)) << "the way within the leg";
    EXPECT_EQ(speeds.after, static_cast<float>(Miles("2,0", "3,0") / 5));
}

TEST(AverageSpeeds, NothingAtThatTimeLeavesThemAlone) {
    SpeedsAround speeds{99, 98};
    for (const auto* time : {"2026-03-01 12:00:37", "2026-03-01 11:59:23", "2026-03-02 12:00:00"}) {
        ASSERT_EQ(AverageSpeedsAround(time, CorrectedLeg(), speeds), 0) << time;
        EXPECT_EQ(speeds.before, 99);
        EXPECT_EQ(speeds.after, 98);
    }
    ASSERT_EQ(AverageSpeedsAround("2026-03-01 06:00:00", CorrectedLeg(), speeds), 0);
    EXPECT_EQ(speeds.before, 99) << "a leg of one row has no way";
}

TEST(AverageSpeeds, FirstOrLastRowOfALegHasOneSideOnly) {
    SpeedsAround speeds{99, 99};
    ASSERT_EQ(AverageSpeedsAround("2026-03-01 10:00:00", CorrectedLeg(), speeds), 0);
    EXPECT_EQ(speeds.before, 99);
    EXPECT_NE(speeds.after, 99);
    speeds = {99, 99};
    ASSERT_EQ(AverageSpeedsAround("2026-03-01 15:00:00", CorrectedLeg(), speeds), 0);
    EXPECT_NE(speeds.before, 99);
    EXPECT_EQ(speeds.after, 99);
}

TEST(AverageSpeeds, TellWhatIsWrong) {
    SpeedsAround speeds;
    EXPECT_EQ(AverageSpeedsAround("2026-03-01", CorrectedLeg(), speeds), -1);
    EXPECT_EQ(AverageSpeedsAround("2026-03-01 12:00:00", {}, speeds), -2);
    auto book = CorrectedLeg();
    book[1].position = "nowhere";
    EXPECT_EQ(AverageSpeedsAround("2026-03-01 12:00:00", book, speeds), -6);
    book = CorrectedLeg();
    book[3].etd = At(1, 11);
    EXPECT_EQ(AverageSpeedsAround("2026-03-01 12:00:00", book, speeds), -7);
}

}  // namespace
}  // namespace Tarvik::Seaplan

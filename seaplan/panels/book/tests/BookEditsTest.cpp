// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/portcall/PanelCommands.h"

/// What an edit of each column does to the book.
namespace Tarvik::Seaplan {

namespace {

using testing::EndsWith;
using testing::StartsWith;

class BookEditsTest : public BookFixture {
  protected:
    /// The totals are those of a book computed afresh.
    void ExpectFresh() {
        PosBookData again = Data();
        const BookTotals totals = RecomputeBook(again, book.Sheet().units, Util::_datetime_t::gmt_now());
        EXPECT_DOUBLE_EQ(totals.totalDistance, book.Sheet().totals.totalDistance);
        EXPECT_DOUBLE_EQ(totals.totalTime, book.Sheet().totals.totalTime);
        EXPECT_DOUBLE_EQ(again.ports.back().course, Data().ports.back().course);
        EXPECT_EQ(again.ports.back().eta, Data().ports.back().eta);
    }
    void ExpectRefused(int row, int column, const char* typed, const char* message) {
        const std::string before = Cell(row, column);
        Type(row, column, typed);
        EXPECT_EQ(LastMessage(), message) << typed;
        EXPECT_EQ(messages.messages.back().flags, 0) << "one button";
        EXPECT_EQ(Cell(row, column), before);
        EXPECT_FALSE(Changed()) << typed;
        EXPECT_FALSE(bookView.textCell.has_value());
        messages.messages.clear();
    }
};

TEST_F(BookEditsTest, CellsShowTheBook) {
    OpenExpanded();
    EXPECT_EQ(Column(BookOrder), Names({"1", "2", "3", "4", "5"}));
    EXPECT_EQ(Cell(2, BookLatitude), "1.0000");
    EXPECT_EQ(Cell(2, BookLongitude), "0.4000");
    EXPECT_EQ(Cell(2, BookTrack), "RL");
    EXPECT_EQ(Cell(2, BookInterval), "5");
    EXPECT_EQ(Cell(2, BookSpeed), "10.00");
    EXPECT_EQ(Cell(0, BookEta), "2024-03-05 08:00:00") << "the person's zone";
    EXPECT_EQ(Cell(0, BookSpeed), "0.00");
    EXPECT_EQ(Cell(0, BookCourse), "0.00");
}

TEST_F(BookEditsTest, AWaypointGetsAName) {
    OpenExpanded();
    Type(2, BookName, "Turn & \"west\" |");
    EXPECT_EQ(Cell(2, BookName), "Turn ＆ ＂west＂ ｜") << "what no request can hold becomes fullwidth";
    EXPECT_TRUE(Changed());
}

TEST_F(BookEditsTest, AValueThatStandsThereMarksNothing) {
    OpenExpanded();
    Type(2, BookName, "Plain");
    Type(2, BookLatitude, "1");
    Type(2, BookLongitude, "0.40");
    Type(2, BookSpeed, "10");
    Choose(2, BookTrack, 1);
    Choose(2, BookInterval, 4);
    Pick(3, BookEtd, Cell(3, BookEtd));
    EXPECT_FALSE(Changed());
    EXPECT_TRUE(bookView.sheet.edits.undo.empty());
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(BookEditsTest, AnEditorThatWasOnlyLookedIntoCommitsNothing) {
    OpenExpanded();
    book.Commands().OnUnitChosen(UnitKind::Speed, 1);
    for (const int column : {BookName, BookLatitude, BookLongitude, BookSpeed}) {
        Click(2, column);
        book.Cells().OnTextKey({Key::Enter});
    }
    EXPECT_FALSE(Changed());
}

TEST_F(BookEditsTest, ALatitudeMovesTheWaypointAndAllBehindItFollows) {
    OpenExpanded();
    const std::string eta = Cell(4, BookEta);
    Type(2, BookLatitude, "2.5");
    EXPECT_EQ(Cell(2, BookLatitude), "2.5000");
    EXPECT_NE(Cell(4, BookEta), eta);
    EXPECT_TRUE(Changed());
    ExpectFresh();
}

TEST_F(BookEditsTest, ALatitudeNeverCutsAGreatCircle) {
    OpenExpanded();
    Choose(2, BookTrack, 0);
    const int rows = bookView.sheet.RowCount();
    Type(2, BookLatitude, "40");
    EXPECT_EQ(bookView.sheet.RowCount(), rows);
    ExpectFresh();
}

TEST_F(BookEditsTest, ALongitudeOnARhumbLineMovesTheWaypointAlone) {
    OpenExpanded();
    Type(2, BookLongitude, "20");
    EXPECT_EQ(Cell(2, BookLongitude), "20.0000");
    EXPECT_EQ(bookView.sheet.RowCount(), 5);
    EXPECT_TRUE(Changed());
    ExpectFresh();
}

TEST_F(BookEditsTest, ALongitudeAmongGreatCirclesAddsWaypointsOnBothSidesAndAgainOnEachChange) {
    OpenExpanded();
    Choose(2, BookTrack, 0);
    Choose(3, BookTrack, 0);
    ASSERT_EQ(bookView.sheet.RowCount(), 5) << "too near for waypoints";
    Type(2, BookLongitude, "12");
    EXPECT_EQ(Column(BookName),
              Names({"ROTTERDAM", "Mid Cape", "", "", "Plain", "", "", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(Cell(4, BookLongitude), "12.0000");
    EXPECT_EQ(bookView.sheet.selected, 4) << "the row in front stays the same place";
    ExpectFresh();
    const int rows = bookView.sheet.RowCount();
    Type(4, BookLongitude, "30");
    EXPECT_GT(bookView.sheet.RowCount(), rows + 4);
    ExpectFresh();
}

TEST_F(BookEditsTest, PositionsMayBeWhereTheEarthIs) {
    OpenExpanded();
    for (const char* bad : {"90", "-90", "91.5"}) {
        ExpectRefused(2, BookLatitude, bad, "IDS_WP_LAT_ERR");
    }
    for (const char* bad : {"180", "-180", "1000"}) {
        ExpectRefused(2, BookLongitude, bad, "IDS_WP_LON_ERR");
    }
    for (const char* bad : {"abc", "1.2.3", ".", "1e3"}) {
        ExpectRefused(2, BookLatitude, bad, "IDS_WP_NUM_ERR");
        ExpectRefused(2, BookLongitude, bad, "IDS_WP_NUM_ERR");
    }
    Type(2, BookLatitude, "89.9999");
    Type(2, BookLongitude, "-179.9999");
    EXPECT_EQ(Cell(2, BookLatitude), "89.9999");
    EXPECT_EQ(Cell(2, BookLongitude), "-179.9999");
}

TEST_F(BookEditsTest, PositionsAreTypedAsPeopleWriteThem) {
    OpenExpanded();
    Type(2, BookLatitude, "1° 30' S");
    EXPECT_EQ(Cell(2, BookLatitude), "-1.5000");
    Type(2, BookLongitude, "00215.0E");
    EXPECT_EQ(Cell(2, BookLongitude), "2.2500");
    Type(2, BookLatitude, "3 15N 4 30W");
    EXPECT_EQ(Cell(2, BookLatitude), "3.2500") << "a pair at once";
    EXPECT_EQ(Cell(2, BookLongitude), "-4.5000");
    Type(2, BookLatitude, "2,9");
    EXPECT_EQ(Cell(2, BookLatitude), "2.0000") << "what counts as a number is read as it says";
    EXPECT_TRUE(messages.messages.empty());
    ExpectFresh();
    Type(2, BookLatitude, "3 15E");
    EXPECT_EQ(LastMessage(), "IDS_WP_NUM_ERR");
    Type(2, BookLatitude, "90N");
    EXPECT_EQ(LastMessage(), "IDS_WP_LAT_ERR");
    EXPECT_EQ(Cell(2, BookLatitude), "2.0000");
}

TEST_F(BookEditsTest, WhatIsTypedIntoAPositionIsEchoedAsItIsUnderstood) {
    OpenExpanded();
    const auto echo = [&](const char* typed) {
        book.Cells().OnTyped(typed);
        return bookView.echo;
    };
    Click(2, BookLatitude);
    EXPECT_EQ(bookView.echo, "");
    EXPECT_EQ(echo("51 5"), "IDS_VIEW_READAS 51° 05.00' N");
    EXPECT_EQ(echo("51 54.5S"), "IDS_VIEW_READAS 51° 54.50' S");
    EXPECT_EQ(echo("51,9"), "IDS_VIEW_READAS 51° 00.00' N");
    EXPECT_EQ(echo("51 54.5N 4 29E"), "IDS_VIEW_READAS 51° 54.50' N 004° 29.00' E");
    EXPECT_EQ(echo("51 q"), "IDS_VIEW_NOTREAD");
    EXPECT_EQ(echo("95"), "IDS_WP_LAT_ERR");
    EXPECT_EQ(echo(""), "");
    Click(2, BookLongitude);
    EXPECT_EQ(echo("429.0E"), "IDS_VIEW_READAS 004° 29.00' E");
    Click(2, BookSpeed);
    EXPECT_EQ(bookView.echo, "");
    EXPECT_EQ(echo("51 5"), "");
}

TEST_F(BookEditsTest, SpeedsAreTakenInTheUnitOnShowUpToFiftyKnots) {
    OpenExpanded();
    for (const char* bad : {"0", "-1", "50.01"}) {
        ExpectRefused(2, BookSpeed, bad, "IDS_WP_SPD_ERR");
    }
    ExpectRefused(2, BookSpeed, "fast", "IDS_WP_NUM_ERR");
    ExpectRefused(2, BookSpeed, "", "IDS_WP_SPD_ERR");
    Type(2, BookSpeed, "50");
    EXPECT_EQ(Cell(2, BookSpeed), "50.00");
    book.Commands().OnUnitChosen(UnitKind::Speed, 1);
    EXPECT_EQ(Cell(2, BookSpeed), "92.60");
    Type(2, BookSpeed, "37.04");
    EXPECT_DOUBLE_EQ(Waypoint(const_cast<PosBookData&>(Data()), 1, 1).speed, 37.04);
    Type(2, BookSpeed, "92.6");
    EXPECT_EQ(Cell(2, BookSpeed), "92.60");
    Type(2, BookSpeed, "92.61");
    EXPECT_EQ(LastMessage(), "IDS_WP_SPD_ERR");
    ExpectFresh();
}

TEST_F(BookEditsTest, ATrackIsChosenAndTheWayIsComputedAnew) {
    OpenExpanded();
    Type(2, BookLatitude, "60");
    Type(2, BookLongitude, "60");
    const double rhumb = book.Sheet().totals.totalDistance;
    Choose(2, BookTrack, 0);
    EXPECT_GT(bookView.sheet.RowCount(), 10) << "waypoints of the great circle";
    EXPECT_LT(book.Sheet().totals.totalDistance, rhumb);
    ExpectFresh();
    const int rows = bookView.sheet.RowCount();
    Choose(bookView.sheet.selected, BookTrack, 1);
    EXPECT_EQ(bookView.sheet.RowCount(), rows) << "waypoints of an earlier cut stay";
    ExpectFresh();
}

TEST_F(BookEditsTest, AGreatCircleTooShortForWaypointsIsStillComputed) {
    OpenExpanded();
    Choose(2, BookTrack, 0);
    EXPECT_EQ(bookView.sheet.RowCount(), 5);
    EXPECT_TRUE(Changed());
    ExpectFresh();
}

TEST_F(BookEditsTest, AnIntervalCutsAGreatCircleAndOnlyStandsOnARhumbLine) {
    OpenExpanded();
    Type(2, BookLongitude, "12");
    const int rows = bookView.sheet.RowCount();
    Choose(2, BookInterval, 1);
    EXPECT_EQ(Cell(2, BookInterval), "2");
    EXPECT_EQ(bookView.sheet.RowCount(), rows);
    Choose(2, BookTrack, 0);
    const int cut = bookView.sheet.RowCount();
    EXPECT_EQ(cut, rows + 6) << "every two degrees of about 13";
    Choose(bookView.sheet.selected, BookInterval, 0);
    EXPECT_GT(bookView.sheet.RowCount(), cut);
    ExpectFresh();
}

TEST_F(BookEditsTest, ADepartureSetsTheStayAndAllBehindItFollows) {
    OpenBook();
    const auto etd = Util::DateTimeUtl::Parse(Cell(Hamburg, BookEtd));
    const std::string last = Cell(Gdansk, BookEta);
    Pick(Hamburg, BookEtd, Util::DateTimeUtl::AddHour(*etd, 5).fmt(Util::kTimeFormat));
    EXPECT_NEAR(Data().ports[1].portTime, 17, 1e-9);
    EXPECT_EQ(Util::DateTimeUtl::Diff(*Util::DateTimeUtl::Parse(Cell(Gdansk, BookEta)),
                                      *Util::DateTimeUtl::Parse(last)),
              5);
    EXPECT_TRUE(Changed());
    EXPECT_FALSE(bookView.calendar.corner.has_value()) << "the picker closes";
    ExpectFresh();
}

TEST_F(BookEditsTest, ADepartureBeforeTheArrivalIsRefused) {
    OpenBook();
    const auto eta = Util::DateTimeUtl::Parse(Cell(Hamburg, BookEta));
    Pick(Hamburg, BookEtd, Util::DateTimeUtl::AddHour(*eta, -1).fmt(Util::kTimeFormat));
    EXPECT_EQ(LastMessage(), "IDS_WP_DT_ERR");
    EXPECT_EQ(messages.messages.back().flags, 0);
    EXPECT_FALSE(Changed());
    EXPECT_FALSE(bookView.calendar.corner.has_value());
    EXPECT_NEAR(Data().ports[1].portTime, 12, 1e-6);
}

TEST_F(BookEditsTest, TheFirstArrivalSetsTheStayInTheFirstPort) {
    OpenBook();
    Pick(Rotterdam, BookEta, "2024-03-05 10:00:00");
    EXPECT_EQ(Cell(Rotterdam, BookEta), "2024-03-05 08:00:00");
    EXPECT_EQ(Cell(Rotterdam, BookEtd), "2024-03-05 10:00:00");
    EXPECT_DOUBLE_EQ(Data().ports[0].portTime, 2);
    Pick(Rotterdam, BookEtd, "2024-03-05 09:30:00");
    EXPECT_DOUBLE_EQ(Data().ports[0].portTime, 1.5);
    ExpectFresh();
}

TEST_F(BookEditsTest, TimesAreTakenInThePersonsZone) {
    OpenBook();
    book.OnTimeZone("UTC");
    EXPECT_EQ(Cell(Rotterdam, BookEta), "2024-03-05 00:00:00");
    Pick(Rotterdam, BookEtd, "2024-03-05 03:00:00");
    EXPECT_DOUBLE_EQ(Data().ports[0].portTime, 3);
}

TEST_F(BookEditsTest, AnAisPointShowsTheSpeedThatTheShipHad) {
    OpenBook();
    store.voyages[kept].positionBook.points[2].pst = AisTrackPoint;
    store.voyages[kept].positionBook.points[2].psp = 7.5F;
    panel.Commands().OnPositionBook();
    EXPECT_EQ(Cell(2, BookSpeed), "7.50");
    book.Commands().OnUnitChosen(UnitKind::Speed, 1);
    EXPECT_EQ(Cell(2, BookSpeed), "13.89");
}

TEST_F(BookEditsTest, ASpeedBeingTypedIsOneInTheOldUnit) {
    OpenBook();
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("12");
    book.Commands().OnUnitChosen(UnitKind::Speed, 1);
    EXPECT_DOUBLE_EQ(Data().ports[1].speed, 22.224);
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "22.22");
}

TEST_F(BookEditsTest, AnEmptyPositionIsZero) {
    OpenExpanded();
    for (const char* nothing : {"", "-"}) {
        Type(2, BookLatitude, nothing);
        EXPECT_EQ(Cell(2, BookLatitude), "0.0000");
        EXPECT_TRUE(Changed());
        book.Commands().OnUndo();
        EXPECT_EQ(Cell(2, BookLatitude), "1.0000");
    }
}

}  // namespace

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
/// What a person does with the open book on the chart: presses a row, drags a waypoint, pulls a leg.
#include <gmock/gmock.h>

#include <tarvik/bus/DragContract.h>

#include "seaplan/panels/book/tests/BookFixture.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Seaplan {

namespace {

class BookChartTest : public BookFixture {
  protected:
    static void DragPoint(const char* id, GeoPoint to) {
        Interface::TellDrag("BOOKPOINTTYPE", {id, {}, {to.x, to.y}});
    }
    static void Pull(GeoPoint from, GeoPoint to) {
        Interface::TellDrag("BOOKLINETYPE", {"0", {from.x, from.y}, {to.x, to.y}});
    }
    /// What would be saved.
    std::string Book() const {
        std::string told;
        for (const PosBookPortRow& port : Data().ports) {
            for (const PosBookRow& row : port.rows) {
                told += row.name + PositionText({row.x, row.y}, 4) + row.track + ' ';
            }
            told += port.name + PositionText({port.x, port.y}, 4) + '\n';
        }
        return told;
    }
    void Undo() { book.Commands().OnUndo(); }
};

}  // namespace

TEST_F(BookChartTest, APressedRowComesToTheFront) {
    OpenExpanded();
    const std::string id = "3";
    Interface::Raise(Interface::Bus::ClickBookPoint, &id);
    EXPECT_EQ(bookView.sheet.selected, 2);
    for (const std::string& none : {std::string("99"), std::string("x"), std::string()}) {
        Interface::Raise(Interface::Bus::ClickBookPoint, &none);
        EXPECT_EQ(bookView.sheet.selected, 2) << none;
    }
    EXPECT_FALSE(Changed());
}

TEST_F(BookChartTest, ADraggedWaypointIsTheSameEditAsItsTypedPosition) {
    OpenExpanded();
    const std::string first = Book();
    Type(2, BookLatitude, "2.5N 3.25E");
    ASSERT_EQ(Cell(2, BookLatitude), "2.5000");
    ASSERT_EQ(Cell(2, BookLongitude), "3.2500");
    const std::string typed = Book();
    const std::string arrival = Cell(4, BookEta);
    Undo();
    ASSERT_EQ(Book(), first);
    DragPoint("3", {3.25, 2.5});
    EXPECT_EQ(Book(), typed);
    EXPECT_EQ(Cell(4, BookEta), arrival);
    EXPECT_EQ(bookView.sheet.selected, 2);
    EXPECT_TRUE(Changed());
    Undo();
    EXPECT_EQ(Book(), first);
    EXPECT_FALSE(Changed());
}

TEST_F(BookChartTest, TheRowInFrontIsDraggedToo) {
    OpenExpanded();
    Click(2, BookCourse);
    Interface::TellDrag("BOOKFRONTTYPE", {"3", {}, {1.23456789, 2}});
    EXPECT_EQ(Cell(2, BookLongitude), "1.2346") << "as many decimals as are shown";
}

TEST_F(BookChartTest, ADragAmongGreatCirclesCutsBothSidesAnew) {
    OpenExpanded();
    Choose(2, BookTrack, 0);
    Choose(3, BookTrack, 0);
    DragPoint("3", {12, Data().ports[1].rows[1].y});
    EXPECT_EQ(Column(BookName),
              Names({"ROTTERDAM", "Mid Cape", "", "", "Plain", "", "", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(Cell(4, BookLongitude), "12.0000");
    EXPECT_EQ(bookView.sheet.selected, 4);
}

TEST_F(BookChartTest, PortsNamedPointsAndPolesAreRefused) {
    OpenExpanded();
    const std::string first = Book();
    for (const char* id : {"1", "2", "4", "5"}) {
        DragPoint(id, {10, 10});
        EXPECT_EQ(LastMessage(), "IDS_VIEW_NOTDRAGGED") << id;
    }
    DragPoint("3", {10, 90});
    EXPECT_EQ(LastMessage(), "IDS_WP_LAT_ERR");
    DragPoint("3", {180, 10});
    EXPECT_EQ(LastMessage(), "IDS_WP_LON_ERR");
    DragPoint("9", {10, 10});
    EXPECT_EQ(messages.messages.size(), 6U);
    EXPECT_EQ(Book(), first);
    EXPECT_FALSE(Changed());
}

TEST_F(BookChartTest, APulledLegGetsAWaypointThere) {
    OpenExpanded();
    const std::string first = Book();
    const PosBookPlace plain = Data().ports[1].rows[1];
    const PosBookPlace hamburg = Data().ports[1];
    Pull({(plain.x + hamburg.x) / 2, (plain.y + hamburg.y) / 2}, {2, 1.5});
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "Plain", "A new wp", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(Cell(3, BookLatitude), "1.5000");
    EXPECT_EQ(Cell(3, BookLongitude), "2.0000");
    EXPECT_EQ(Cell(3, BookSpeed), Cell(4, BookSpeed));
    EXPECT_EQ(Cell(3, BookTrack), "RL");
    EXPECT_EQ(bookView.sheet.selected, 3);
    Undo();
    EXPECT_EQ(Book(), first);
    EXPECT_FALSE(Changed());
}

TEST_F(BookChartTest, ALegWhoseWaypointsAreHiddenIsUnfolded) {
    OpenBook();
    const PosBookPlace cape = Data().ports[1].rows[0];
    const PosBookPlace plain = Data().ports[1].rows[1];
    Pull({(cape.x + plain.x) / 2, (cape.y + plain.y) / 2}, {-3, 1});
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "A new wp", "Plain", "HAMBURG", "GDANSK"}));
}

TEST_F(BookChartTest, APulledGreatCircleIsCutOnBothSides) {
    OpenBook();
    Choose(Gdansk, BookTrack, 0);
    const PosBookPlace before = Data().ports[2].rows.back();
    const PosBookPlace gdansk = Data().ports[2];
    Pull({(before.x + gdansk.x) / 2, (before.y + gdansk.y) / 2}, {20, 30});
    EXPECT_GT(Data().ports[2].rows.size(), 6U);
    EXPECT_EQ(Cell(bookView.sheet.selected, BookName), "A new wp");
    EXPECT_EQ(Cell(bookView.sheet.selected, BookLongitude), "20.0000");
    EXPECT_EQ(Cell(bookView.sheet.selected, BookTrack), "GC");
}

TEST_F(BookChartTest, APassedLegIsNotPulled) {
    OpenExpanded();
    const auto then = Util::DateTimeUtl::AddHour(Data().ports[1].rows[1].eta, 1);
    desk.clock.AdvanceSeconds(then.to_gmt_timer() - Util::_datetime_t::gmt_now().to_gmt_timer());
    book.Recompute();
    const std::string first = Book();
    const PosBookPlace start = Data().ports[0];
    const PosBookPlace cape = Data().ports[1].rows[0];
    Pull({(start.x + cape.x) / 2, (start.y + cape.y) / 2}, {2, 1.5});
    EXPECT_EQ(LastMessage(), "IDS_VIEW_NOTDRAGGED");
    EXPECT_EQ(Book(), first);
    const PosBookPlace hamburg = Data().ports[1];
    Pull({hamburg.x, hamburg.y - 0.01}, {2, 91});
    EXPECT_EQ(LastMessage(), "IDS_WP_LAT_ERR");
    EXPECT_EQ(Book(), first);
}

TEST_F(BookChartTest, OnlyAnOpenBookTakesDrags) {
    EXPECT_FALSE(Interface::IsDragged("BOOKPOINTTYPE"));
    OpenBook();
    for (const char* type : {"BOOKPOINTTYPE", "BOOKFRONTTYPE", "BOOKLINETYPE"}) {
        EXPECT_TRUE(Interface::IsDragged(type)) << type;
    }
    book.Commands().OnClose();
    for (const char* type : {"BOOKPOINTTYPE", "BOOKFRONTTYPE", "BOOKLINETYPE"}) {
        EXPECT_FALSE(Interface::IsDragged(type)) << type;
    }
}

}  // namespace Tarvik::Seaplan

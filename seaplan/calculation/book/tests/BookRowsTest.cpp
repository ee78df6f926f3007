// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/calculation/book/tests/PanelBook.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

constexpr int kPort = PosBookRowRef::kPort;

PosBookRow GreatCircle(double x, double y = 0, int kind = PlainPoint) {
    auto row = Waypoint(x, y, kind);
    row.track = "GC";
    row.expanded = true;
    return row;
}

PosBookRow Expanded(PosBookRow row) {
    row.expanded = true;
    return row;
}

/// A port, two shown waypoints, a port, one hidden and one named waypoint, a port.
PosBookData SampleBook() {
    auto book = BookOf({PortAt(0), PortAt(3, 0, {Expanded(Waypoint(1)), Expanded(Waypoint(2))}),
                        PortAt(6, 0, {Waypoint(4), Waypoint(5, 0, ShortIdRoutePoint)})});
    book.ports[0].expanded = true;
    return book;
}

std::string Longitudes(const std::vector<PosBookRow>& rows) {
    std::string texts;
    for (const auto& row : rows) {
        texts += (texts.empty() ? "" : " ") + Util::StringUtl::Format("%g", row.x);
    }
    return texts;
}

TEST(BookList, ShowsPortsNamedPointsAndWhatIsExpanded) {
    EXPECT_EQ(ListBookRows(SampleBook()),
              (BookRowRefs{{0, kPort}, {1, 0}, {1, 1}, {1, kPort}, {2, 1}, {2, kPort}}));
    EXPECT_TRUE(ListBookRows({}).empty());
}

TEST(BookList, RowsLeadToTheirPlaces) {
    auto book = SampleBook();
    EXPECT_EQ(PlaceOf(book, {2, 1}).x, 5);
    EXPECT_EQ(PlaceOf(book, {1, kPort}).x, 3);
    PlaceOf(book, {2, 0}).name = "here";
    EXPECT_EQ(book.ports[2].rows[0].name, "here");
}

TEST(BookList, TheFirstRowThatIsTooSlowIsFoundByTheRowInSight) {
    auto book = SampleBook();
    EXPECT_EQ(FirstSlowerRow(book, 0.001), -1);
    book.ports[0].speed = 0;
    EXPECT_EQ(FirstSlowerRow(book, 0.001), -1) << "nothing leads to the start";
    book.ports[2].speed = 0;
    EXPECT_EQ(FirstSlowerRow(book, 0.001), 5);
    book.ports[2].rows[1].speed = 0;
    EXPECT_EQ(FirstSlowerRow(book, 0.001), 4);
    book.ports[2].rows[0].speed = 0;
    EXPECT_EQ(FirstSlowerRow(book, 0.001), 3) << "it is folded away behind the port";
    book.ports[1].rows[1].speed = 0.0005;
    EXPECT_EQ(FirstSlowerRow(book, 0.001), 2);
}

TEST(BookList, TogglingAPortShowsAndHidesTheWaypointsBehindIt) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    EXPECT_TRUE(ToggleBookRow(book, refs, 0));
    EXPECT_FALSE(book.ports[0].expanded);
    EXPECT_EQ(refs, (BookRowRefs{{0, kPort}, {1, kPort}, {2, 1}, {2, kPort}}));
    EXPECT_TRUE(ToggleBookRow(book, refs, 1));
    EXPECT_EQ(refs, (BookRowRefs{{0, kPort}, {1, kPort}, {2, 0}, {2, 1}, {2, kPort}}));
    EXPECT_TRUE(ToggleBookRow(book, refs, 0));
    EXPECT_TRUE(ToggleBookRow(book, refs, 3));
    EXPECT_EQ(refs, ListBookRows(SampleBook())) << "twice gives the list back";
}

TEST(BookList, TogglingANamedPointReachesToTheNextOne) {
    auto book = BookOf({PortAt(0), PortAt(9, 0,
                                          {Waypoint(1, 0, ShortIdRoutePoint), Waypoint(2), Waypoint(3),
                                           Waypoint(4, 0, AisTrackPoint), Waypoint(5)})});
    auto refs = ListBookRows(book);
    EXPECT_TRUE(ToggleBookRow(book, refs, 1));
    EXPECT_EQ(refs, (BookRowRefs{{0, kPort}, {1, 0}, {1, 1}, {1, 2}, {1, 3}, {1, kPort}}));
    EXPECT_TRUE(ToggleBookRow(book, refs, 4));
    EXPECT_EQ(refs.size(), 7);
}

TEST(BookList, PlainWaypointsAndTheLastPortDoNotToggle) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    for (const int row : {-1, 1, 2, 5, 6}) {
        EXPECT_FALSE(ToggleBookRow(book, refs, row)) << row;
    }
    EXPECT_EQ(refs, ListBookRows(SampleBook()));
    EXPECT_FALSE(book.ports[2].expanded);
}

TEST(RegenerateLeg, CutsAGreatCircleIntoWaypoints) {
    auto book = BookOf({PortAt(0), PortAt(12)});
    book.ports[0].expanded = true;
    auto& to = book.ports[1];
    to.track = "GC";
    to.speed = 30;
    to.weather = 0.1;
    to.interval = 5;
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 1, false), 2);
    const auto& rows = book.ports[1].rows;
    ASSERT_EQ(rows.size(), 2);
    for (const auto& row : rows) {
        EXPECT_EQ(row.speed, 30);
        EXPECT_EQ(row.weather, 0.1);
        EXPECT_EQ(row.interval, 5);
        EXPECT_EQ(row.track, "GC");
        EXPECT_EQ(row.kind, PlainPoint);
        EXPECT_TRUE(row.expanded);
        EXPECT_EQ(row.name, "");
        EXPECT_EQ(row.y, 0);
        EXPECT_EQ(row.x, Util::UnitUtl::DataFormat(row.x, 4)) << "four decimals";
    }
    EXPECT_NEAR(rows[0].x, 5, 0.05);
    EXPECT_NEAR(rows[1].x, 10, 0.1);
    EXPECT_EQ(refs, (BookRowRefs{{0, kPort}, {1, 0}, {1, 1}, {1, kPort}}));
}

TEST(RegenerateLeg, RhumbLineAndNearPointsNeedNoWaypoint) {
    auto book = BookOf({PortAt(0), PortAt(12), PortAt(13)});
    book.ports[2].track = "GC";
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 1, false), 0);
    EXPECT_EQ(RegenerateLeg(book, refs, 2, false), 0);
    EXPECT_EQ(refs.size(), 3);
}

TEST(RegenerateLeg, MidpointComesOnlyWhereNothingElseDoes) {
    auto book = BookOf({PortAt(0, 1), PortAt(1.00005, 2.00003), PortAt(14)});
    book.ports[1].track = "GC";
    book.ports[2].track = "GC";
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 1, true), 1);
    const auto& middle = book.ports[1].rows.at(0);
    EXPECT_DOUBLE_EQ(middle.x, 0.5);
    EXPECT_DOUBLE_EQ(middle.y, 1.5);
    EXPECT_EQ(middle.name, "A new wp");
    EXPECT_EQ(middle.track, "GC");
    EXPECT_GT(RegenerateLeg(book, refs, 2, true), 1);
    for (const auto& row : book.ports[2].rows) {
        EXPECT_EQ(row.name, "");
    }
}

TEST(RegenerateLeg, MidpointOnARhumbLine) {
    auto book = BookOf({PortAt(0), PortAt(20)});
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 1, true), 1);
    EXPECT_EQ(book.ports[1].rows.at(0).x, 10);
    EXPECT_EQ(book.ports[1].rows.at(0).track, "RL");
}

TEST(RegenerateLeg, AcrossTheDateLineTheMidpointStaysInThePacific) {
    struct Case {
        double from, to, middle;
    };
    for (const Case& of :
         {Case{179, -179, 180}, Case{-179, 179, 180}, Case{170, -160, -175}, Case{-160, 170, -175},
          Case{150, -170, 170}, Case{-90, 90, 0}, Case{-100, 70, -15}}) {
        auto book = BookOf({PortAt(of.from), PortAt(of.to)});
        auto refs = ListBookRows(book);
        ASSERT_EQ(RegenerateLeg(book, refs, 1, true), 1);
        EXPECT_DOUBLE_EQ(book.ports[1].rows.at(0).x, of.middle) << of.from << " to " << of.to;
    }
}

TEST(RegenerateLeg, AGreatCircleAcrossTheDateLineIsCutOnIt) {
    auto book = BookOf({PortAt(165), PortAt(-165)});
    book.ports[1].track = "GC";
    auto refs = ListBookRows(book);
    ASSERT_GT(RegenerateLeg(book, refs, 1, false), 3);
    for (const PosBookRow& row : book.ports[1].rows) {
        EXPECT_GT(std::abs(row.x), 165) << "nothing of it lies off Africa";
    }
}

TEST(RegenerateLeg, NewRowsStandBeforeTheirWaypoint) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 2, true), 1);
    EXPECT_EQ(Longitudes(book.ports[1].rows), "1 1.5 2");
    EXPECT_EQ(refs, (BookRowRefs{{0, kPort}, {1, 0}, {1, 1}, {1, 2}, {1, kPort}, {2, 1}, {2, kPort}}));
}

TEST(RegenerateLeg, FirstWaypointComesBehindThePortBefore) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 1, true), 1);
    EXPECT_EQ(Longitudes(book.ports[1].rows), "0.5 1 2");
    EXPECT_EQ(refs[1], (PosBookRowRef{1, 0}));
    EXPECT_EQ(refs[3], (PosBookRowRef{1, 2}));
}

TEST(RegenerateLeg, PortComesBehindTheLastWaypointOfItsLeg) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 5, true), 1);
    EXPECT_EQ(Longitudes(book.ports[2].rows), "4 5 5.5");
    EXPECT_EQ(refs, ListBookRows(SampleBook())) << "the row before is not expanded, so the list stays";
}

TEST(RegenerateLeg, HiddenRowsShiftTheListAllTheSame) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 4, true), 1) << "between the hidden waypoint and the named one";
    EXPECT_EQ(Longitudes(book.ports[2].rows), "4 4.5 5");
    EXPECT_EQ(refs, (BookRowRefs{{0, kPort}, {1, 0}, {1, 1}, {1, kPort}, {2, 2}, {2, kPort}}));
}

TEST(RegenerateLeg, WaypointsOfAnEarlierTimeStay) {
    auto book = BookOf({PortAt(0), PortAt(12)});
    book.ports[1].track = "GC";
    auto refs = ListBookRows(book);
    EXPECT_EQ(RegenerateLeg(book, refs, 1, false), 2);
    EXPECT_EQ(RegenerateLeg(book, refs, 1, false), 0) << "the rest of the way is short";
    EXPECT_EQ(book.ports[1].rows.size(), 2);
}

TEST(RegenerateLeg, NothingLeadsToTheFirstPort) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    for (const int row : {0, -1, 6, 99}) {
        EXPECT_EQ(RegenerateLeg(book, refs, row, true), 0) << row;
    }
    EXPECT_EQ(refs, ListBookRows(SampleBook()));
}

TEST(DeleteBookRow, TakesAPlainWaypointOut) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    EXPECT_EQ(DeleteBookRow(book, refs, {}, 1), BookDeletion::Recompute);
    EXPECT_EQ(Longitudes(book.ports[1].rows), "2");
    EXPECT_EQ(refs, (BookRowRefs{{0, kPort}, {1, 0}, {1, kPort}, {2, 1}, {2, kPort}}));
}

TEST(DeleteBookRow, RefusesPortsNamedPointsAndWhatIsPassed) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    BookTotals passed;
    passed.passedPort = 0;
    passed.passedSub = 0;
    for (const int row : {-1, 0, 1, 3, 4, 5, 6}) {
        EXPECT_EQ(DeleteBookRow(book, refs, passed, row), BookDeletion::Refused) << row;
    }
    EXPECT_EQ(refs, ListBookRows(SampleBook()));
    EXPECT_EQ(DeleteBookRow(book, refs, passed, 2), BookDeletion::Recompute);
}

TEST(DeleteBookRow, GreatCircleBehindItIsCutAnew) {
    auto book = BookOf({PortAt(0), PortAt(30, 0, {GreatCircle(8), GreatCircle(16)})});
    book.ports[0].expanded = true;
    auto refs = ListBookRows(book);
    EXPECT_EQ(DeleteBookRow(book, refs, {}, 1), BookDeletion::Recompute);
    const auto& rows = book.ports[1].rows;
    ASSERT_EQ(rows.size(), 4) << "three new ones before the second waypoint";
    EXPECT_EQ(rows.back().x, 16);
    EXPECT_EQ(refs, (BookRowRefs{{0, kPort}, {1, 0}, {1, 1}, {1, 2}, {1, 3}, {1, kPort}}));
}

TEST(DeleteBookRow, ShortGreatCircleIsNotRecomputed) {
    auto book = BookOf({PortAt(0), PortAt(3, 0, {Expanded(Waypoint(1)), GreatCircle(2)})});
    auto refs = ListBookRows(book);
    EXPECT_EQ(DeleteBookRow(book, refs, {}, 1), BookDeletion::Complete);
    EXPECT_EQ(Longitudes(book.ports[1].rows), "2");
}

TEST(DeleteBookRow, InsertingAndDeletingGivesTheBookBack) {
    auto book = SampleBook();
    auto refs = ListBookRows(book);
    ASSERT_EQ(RegenerateLeg(book, refs, 2, true), 1);
    EXPECT_EQ(DeleteBookRow(book, refs, {}, 2), BookDeletion::Recompute);
    EXPECT_EQ(Longitudes(book.ports[1].rows), "1 2");
    EXPECT_EQ(refs, ListBookRows(SampleBook()));
}

// A changed longitude regenerates the way to the row and to the row behind it, on each change.
TEST(RegenerateLeg, MovedRowGetsWaypointsOnBothSidesEachTime) {
    auto book = BookOf({PortAt(0), PortAt(30, 0, {GreatCircle(15)})});
    book.ports[0].expanded = true;
    book.ports[1].track = "GC";
    auto refs = ListBookRows(book);
    book.ports[1].rows[0].x = 14;
    const int before = RegenerateLeg(book, refs, 1, false);
    EXPECT_EQ(before, 2);
    const int behind = RegenerateLeg(book, refs, 1 + before + 1, false);
    EXPECT_EQ(behind, 3);
    EXPECT_EQ(book.ports[1].rows.size(), 6);
    book.ports[1].rows[2].x = 20;
    EXPECT_GT(RegenerateLeg(book, refs, 1 + before, false), 0) << "again between the new ones and the row";
}

}  // namespace
}  // namespace Tarvik::Seaplan

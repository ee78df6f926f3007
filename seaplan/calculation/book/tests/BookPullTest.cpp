// SPDX-License-Identifier: MIT
/// Legs that are found by a place and get a waypoint.
#include <gtest/gtest.h>

#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/calculation/book/tests/PanelBook.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

constexpr int kPort = PosBookRowRef::kPort;

/// From 0 over a waypoint on 10 to a port on 20, and north to one on 20, 30.
PosBookData Corner() {
    return BookOf({PortAt(0), PortAt(20, 0, {Waypoint(10)}), PortAt(20, 30)});
}

TEST(LegAt, IsTheLegOnWhichAPlaceLies) {
    const PosBookData book = Corner();
    EXPECT_EQ(LegAt(book, {4, 0}), (PosBookRowRef{1, 0}));
    EXPECT_EQ(LegAt(book, {14, 0}), (PosBookRowRef{1, kPort}));
    EXPECT_EQ(LegAt(book, {20, 20}), (PosBookRowRef{2, kPort}));
    EXPECT_EQ(LegAt(book, {20.5, 12}), (PosBookRowRef{2, kPort})) << "beside it";
}

TEST(LegAt, FollowsTheWayOfSailingAndTheShortWayRound) {
    PosBookData book = BookOf({PortAt(170, 50), PortAt(-170, 50), PortAt(-120, 50), PortAt(-120, 60)});
    book.ports[2].track = "GC";
    EXPECT_EQ(LegAt(book, {180, 50}), (PosBookRowRef{1, kPort}));
    EXPECT_EQ(LegAt(book, {-145, 52.6}), (PosBookRowRef{2, kPort}))
        << "the great circle runs north of both ends";
}

TEST(LegAt, OneOrNoPortHasNone) {
    EXPECT_FALSE(LegAt({}, {0, 0}).has_value());
    EXPECT_FALSE(LegAt(BookOf({PortAt(0)}), {0, 0}).has_value());
}

TEST(InsertBookRow, StandsBeforeItsRowAndIsSailedAsThat) {
    PosBookData book = Corner();
    book.ports[1].speed = 25;
    book.ports[1].track = "GC";
    book.ports[1].interval = 3;
    book.ports[1].rows[0].expanded = true;
    BookRowRefs refs = ListBookRows(book);
    ASSERT_TRUE(InsertBookRow(book, refs, 2, {15, -3.25}));
    ASSERT_EQ(book.ports[1].rows.size(), 2U);
    const PosBookRow& added = book.ports[1].rows[1];
    EXPECT_EQ(added.x, 15);
    EXPECT_EQ(added.y, -3.25);
    EXPECT_EQ(added.name, "A new wp");
    EXPECT_EQ(added.kind, PlainPoint);
    EXPECT_EQ(added.speed, 25);
    EXPECT_EQ(added.track, "GC");
    EXPECT_EQ(added.interval, 3);
    EXPECT_EQ(refs, ListBookRows(book)) << "the list is that of the book";
    EXPECT_EQ(refs[2], (PosBookRowRef{1, 1}));
}

TEST(InsertBookRow, NothingLeadsToTheFirstPort) {
    PosBookData book = Corner();
    BookRowRefs refs = ListBookRows(book);
    for (const int row : {0, -1, 99}) {
        EXPECT_FALSE(InsertBookRow(book, refs, row, {1, 1})) << row;
    }
    EXPECT_EQ(book.ports[1].rows.size(), 1U);
}

}  // namespace

}  // namespace Tarvik::Seaplan

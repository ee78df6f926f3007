// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/calculation/book/BookColumns.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;

/// Two ports with a plain waypoint, a named one and a fix between them; all but the plain one are listed.
class BookColumnsTest : public testing::Test {
  protected:
    BookColumnsTest() {
        book.ports.resize(2);
        book.ports[0].name = "A";
        book.ports[1].rows.resize(3);
        PosBookRow& plain = book.ports[1].rows[0];
        plain.expanded = true;
        plain.x = -179.5;
        plain.y = 1234.56789;
        plain.speed = 18.52;
        plain.course = 45.678;
        plain.eta = Util::_datetime_t(0, 0, 20, 1, 3, 2024);
        plain.etd = plain.eta;
        book.ports[1].rows[1].kind = ShortIdRoutePoint;
        book.ports[1].rows[2].kind = AisTrackPoint;
        book.ports[1].rows[2].aisSpeed = 37.04;
        refs = ListBookRows(book);
    }
    BookCell Cell(int listRow, BookSpeedUnit unit = BookSpeedUnit::Knots) const {
        return {book, refs.at(static_cast<std::size_t>(listRow)), listRow, unit, "China Standard Time"};
    }
    std::string Text(int column, const BookCell& cell) const {
        return kBookColumns.at(static_cast<std::size_t>(column)).text(cell);
    }
    /// The columns that open over a row, in order.
    std::vector<int> Edited(int listRow) const {
        std::vector<int> columns;
        for (int i = 0; i < static_cast<int>(kBookColumns.size()); ++i) {
            if (IsBookCellEdited(kBookColumns[static_cast<std::size_t>(i)], Cell(listRow))) {
                columns.push_back(i);
            }
        }
        return columns;
    }

    PosBookData book;
    BookRowRefs refs;
};

TEST_F(BookColumnsTest, CellsHaveTheirForms) {
    const BookCell cell = Cell(1);
    EXPECT_EQ(Text(BookOrder, cell), "2");
    EXPECT_EQ(Text(BookName, Cell(0)), "A");
    EXPECT_EQ(Text(BookLatitude, cell), "1,234.5679");
    EXPECT_EQ(Text(BookLongitude, cell), "-179.5000");
    EXPECT_EQ(Text(BookTrack, cell), "GC");
    for (const char* other : {"RL", "", "gc", "X"}) {
        book.ports[1].rows[0].track = other;
        EXPECT_EQ(Text(BookTrack, cell), "RL") << "stored as \"" << other << '"';
    }
    EXPECT_EQ(Text(BookInterval, cell), "5");
    EXPECT_EQ(Text(BookSpeed, cell), "10.00");
    EXPECT_EQ(Text(BookSpeed, Cell(1, BookSpeedUnit::KmPerHour)), "18.52");
    EXPECT_EQ(Text(BookCourse, cell), "45.68");
    EXPECT_EQ(Text(BookEta, cell), "2024-03-02 04:00:00") << "in the person's zone";
    EXPECT_EQ(Text(BookEtd, cell), "2024-03-02 04:00:00");
}

TEST_F(BookColumnsTest, FixTellsTheSpeedThatTheShipHad) {
    EXPECT_EQ(Text(BookSpeed, Cell(3)), "20.00");
}

TEST_F(BookColumnsTest, EditorsOpenWhereTheyMay) {
    ASSERT_EQ(refs.size(), 5U);
    EXPECT_THAT(Edited(0), ElementsAre(BookEta, BookEtd));
    EXPECT_THAT(Edited(1),
                ElementsAre(BookName, BookLatitude, BookLongitude, BookTrack, BookInterval, BookSpeed));
    EXPECT_THAT(Edited(2), ElementsAre(BookTrack, BookInterval, BookSpeed)) << "a named point stays in place";
    EXPECT_THAT(Edited(4), ElementsAre(BookTrack, BookInterval, BookSpeed, BookEtd));
}

TEST_F(BookColumnsTest, TitlesAndWidthsAreThoseOfTheList) {
    std::vector<int> widths;
    std::string titles;
    for (const BookColumnEntry& column : kBookColumns) {
        widths.push_back(column.width);
        titles += std::string(column.title).substr(11) + " ";
    }
    EXPECT_THAT(widths, ElementsAre(36, 110, 85, 85, 40, 64, 41, 41, 117, 117));
    EXPECT_EQ(titles, "SEQ NAME LAT LON TRACK INTERVAL SPD COURSE ETA ETD ");
}

}  // namespace
}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
/// What is read of pasted waypoints.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/panels/book/PastedWaypoints.h"
#include "seaplan/panels/tests/KeyTexts.h"

namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;

PastedWaypoints Read(const std::string& text, BookSpeedUnit unit = BookSpeedUnit::Knots) {
    const PastedText pasted = ReadPastedText(text);
    return ReadWaypoints(pasted, UnderstandWaypoints(pasted.rows), unit);
}

/// "lat lon" of each line with four decimals, "-" where it tells none.
std::vector<std::string> Places(const PastedWaypoints& pasted) {
    std::vector<std::string> places;
    for (const auto& point : pasted.points) {
        char text[64] = "-";
        if (point) {
            std::snprintf(text, sizeof text, "%.4f %.4f", point->position.y, point->position.x);
        }
        places.emplace_back(text);
    }
    return places;
}

class PastedWaypointsTest : public testing::Test {
  protected:
    KeyTexts texts;
};

TEST_F(PastedWaypointsTest, HeadsNameTheColumnsInTheLanguageInForceOrInEnglish) {
    texts.given[u"IDS_WP_COL_LAT"] = u"Breite";
    texts.given[u"IDS_WP_COL_LON"] = u"L\u00E4nge";
    const PastedWaypoints own = Read("Name\tBreite \xC2\xB0\tL\xC3\xA4nge \xC2\xB0\nA\t51.5\t-4.25\n");
    EXPECT_THAT(own.columns.columns, ElementsAre(BookName, BookLatitude, BookLongitude));
    EXPECT_THAT(Places(own), ElementsAre("51.5000 -4.2500"));
    const PastedWaypoints other = Read(
        "WP No\tLatitude\tLongitude\tLeg type\tSpeed kn\tRadius\n1\t10 30S\t100E\tRhumb line\t14.5\t0.5\n");
    EXPECT_THAT(other.columns.columns,
                ElementsAre(BookOrder, BookLatitude, BookLongitude, BookTrack, BookSpeed, kNoColumn));
    EXPECT_THAT(Places(other), ElementsAre("-10.5000 100.0000"));
    EXPECT_EQ(other.points[0]->track, "RL");
    EXPECT_DOUBLE_EQ(other.points[0]->kmh, 14.5 * 1.852);
}

TEST_F(PastedWaypointsTest, WithoutHeadsTheCellsTell) {
    const PastedWaypoints letters = Read("1\tAlpha\t004 15.0 W\t51 30.0 N\tGC\n2\tBravo\t3W\t50N\tRL\n");
    EXPECT_THAT(letters.columns.columns,
                ElementsAre(BookOrder, BookName, BookLongitude, BookLatitude, BookTrack));
    EXPECT_THAT(Places(letters), ElementsAre("51.5000 -4.2500", "50.0000 -3.0000"));
    EXPECT_EQ(letters.points[0]->name, "Alpha");
    EXPECT_EQ(letters.points[0]->track, "GC");
    const PastedWaypoints pairs = Read("Alpha\t51 30.0N 004 15.0W\nBravo\t50N 3W\n");
    EXPECT_THAT(pairs.columns.columns, ElementsAre(BookName, kPositionColumn));
    EXPECT_THAT(Places(pairs), ElementsAre("51.5000 -4.2500", "50.0000 -3.0000"));
    const PastedWaypoints plain = Read("51,5\t-4,25\t12\n50\t-3\t13\n");
    EXPECT_THAT(plain.columns.columns, ElementsAre(BookLatitude, BookLongitude, kNoColumn));
    EXPECT_THAT(Places(plain), ElementsAre("51.5000 -4.2500", "50.0000 -3.0000"));
    EXPECT_EQ(plain.points[0]->kmh, 0) << "a number alone may be anything";
}

TEST_F(PastedWaypointsTest, ALineWithoutAWholePositionTellsNoPlace) {
    const PastedWaypoints pasted = Read("Lat\tLon\n51.5\t\n91\t4\n51\t180\nx\ty\n-89.99\t179.99\n");
    EXPECT_THAT(Places(pasted), ElementsAre("-", "-", "-", "-", "-89.9900 179.9900"));
    EXPECT_TRUE(pasted.cells[0][1].known) << "an empty cell is not misunderstood";
    EXPECT_FALSE(pasted.cells[1][0].known);
    EXPECT_FALSE(pasted.cells[2][1].known);
    EXPECT_FALSE(pasted.cells[3][0].known);
}

TEST_F(PastedWaypointsTest, ASpeedInAnotherUnitThanTheBooksIsNotTaken) {
    EXPECT_EQ(Read("Lat\tLon\tSpeed KPH\n1\t2\t20\n").points[0]->kmh, 0);
    EXPECT_EQ(Read("Lat\tLon\tSpeed\n1\t2\t20 kn\n", BookSpeedUnit::KmPerHour).points[0]->kmh, 0);
    EXPECT_DOUBLE_EQ(Read("Lat\tLon\tSpeed\n1\t2\t20\n", BookSpeedUnit::KmPerHour).points[0]->kmh, 20);
    EXPECT_EQ(Read("Lat\tLon\tSpeed\n1\t2\t51\n").points[0]->kmh, 0) << "more than a book takes";
}

TEST_F(PastedWaypointsTest, NothingAndTooMuchAreRead) {
    EXPECT_TRUE(Read("").cells.empty());
    std::string many = "Lat\tLon\n";
    for (std::size_t i = 0; i <= kMostPastedRows; ++i) {
        many += "1\t2\n";
    }
    const PastedWaypoints cut = Read(many);
    EXPECT_EQ(cut.cells.size(), kMostPastedRows);
    EXPECT_TRUE(cut.cut);
}

}  // namespace

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include <cmath>

#include <gtest/gtest.h>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/Geodesy.h>

#include "seaplan/calculation/book/BookRecompute.h"
#include "seaplan/calculation/book/tests/PanelBook.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

const Util::_datetime_t kBeforeAll(0, 0, 0, 1, 1, 2026);
const Util::_datetime_t kBehindAll(0, 0, 0, 1, 1, 2027);

double Km(double degrees) {
    return Util::CircleLineUtl::CalRhumbDist(0, 0, degrees, 0);
}

double Since(const PosBookData& book, const Util::_datetime_t& time) {
    return static_cast<double>(time.total_csecs() - book.ports.front().etd.total_csecs()) / 360000;
}

TEST(BookRecompute, TimesEveryRowFromTheFirstDeparture) {
    auto book = BookOf({PortAt(0), PortAt(3, 0, {Waypoint(1), Waypoint(2)})});
    book.ports[0].portTime = 5;
    book.ports[0].etd = {0, 0, 17, 1, 3, 2026};
    book.ports[1].portTime = 4;
    book.ports[1].rows[1].speed = 9.26;
    book.ports[1].weather = 0.5;
    const BookUnits units{BookSpeedUnit::KmPerHour, BookDistanceUnit::Kilometres, BookTimeUnit::Hours};
    const auto totals = RecomputeBook(book, units, kBeforeAll);
    const auto& rows = book.ports[1].rows;
    const double hour = Km(1) / 18.52;
    EXPECT_NEAR(Since(book, rows[0].eta), hour, 1e-5);
    EXPECT_EQ(rows[0].eta, rows[0].etd);
    EXPECT_NEAR(Since(book, rows[1].etd), 3 * hour, 1e-5);
    EXPECT_NEAR(Since(book, book.ports[1].eta), 5 * hour, 1e-5) << "the port's weather halves its speed";
    EXPECT_NEAR(Since(book, book.ports[1].etd), 5 * hour + 4, 1e-5);
    EXPECT_NEAR(totals.totalDistance, 3 * Km(1), 1e-9);
    EXPECT_NEAR(totals.totalTime, 5 * hour + 4, 1e-9) << "the stay at the first port does not count";
    EXPECT_NEAR(totals.averageSpeed, 3 * Km(1) / (5 * hour + 4), 1e-9);
    EXPECT_DOUBLE_EQ(rows[1].course, 90);
    EXPECT_DOUBLE_EQ(book.ports[1].course, 90);
}

TEST(BookRecompute, FirstPortKeepsItsTimesAndLosesSpeedAndCourse) {
    auto book = BookOf({PortAt(0), PortAt(1)});
    book.ports[0].course = 77;
    const auto before = book.ports[0];
    RecomputeBook(book, {}, kBeforeAll);
    EXPECT_EQ(book.ports[0].eta, before.eta);
    EXPECT_EQ(book.ports[0].etd, before.etd);
    EXPECT_EQ(book.ports[0].speed, 0);
    EXPECT_EQ(book.ports[0].course, 0);
}

TEST(BookRecompute, TrackTellsHowAWayIsMeasured) {
    auto book = BookOf({PortAt(0, 50), PortAt(60, 50)});
    const BookUnits units{BookSpeedUnit::KmPerHour, BookDistanceUnit::Kilometres, BookTimeUnit::Hours};
    EXPECT_DOUBLE_EQ(RecomputeBook(book, units, kBeforeAll).totalDistance,
                     Util::CircleLineUtl::CalRhumbDist(0, 50, 60, 50));
    book.ports[1].track = "GC";
    EXPECT_DOUBLE_EQ(RecomputeBook(book, units, kBeforeAll).totalDistance,
                     Util::CircleLineUtl::CalculateDistance(0, 50, 60, 50));
    EXPECT_DOUBLE_EQ(book.ports[1].course, Util::CCourse::CalCourse(0, 50, 60, 50));
}

TEST(BookRecompute, TotalsFollowTheUnitsAndTheRowsStay) {
    auto book = BookOf({PortAt(0), PortAt(3, 0, {Waypoint(1)})});
    const auto metric = RecomputeBook(
        book, {BookSpeedUnit::KmPerHour, BookDistanceUnit::Kilometres, BookTimeUnit::Hours}, kBeforeAll);
    const auto rows = book.ports[1].rows;
    const auto nautical = RecomputeBook(book, {}, kBeforeAll);
    EXPECT_DOUBLE_EQ(nautical.averageSpeed, metric.averageSpeed / 1.852);
    EXPECT_DOUBLE_EQ(nautical.totalDistance, metric.totalDistance / 1.852);
    EXPECT_DOUBLE_EQ(nautical.totalTime, metric.totalTime / 24.0);
    EXPECT_EQ(book.ports[1].rows[0].speed, rows[0].speed);
    EXPECT_EQ(book.ports[1].speed, 18.52);
}

TEST(BookRecompute, SightingBehindAPlainWaypointCountsInNoTotal) {
    auto book = BookOf({PortAt(0), PortAt(3, 0, {Waypoint(1), Waypoint(2, 0, AisTrackPoint)})});
    book.ports[1].rows[1].course = 55;
    const BookUnits units{BookSpeedUnit::KmPerHour, BookDistanceUnit::Kilometres, BookTimeUnit::Hours};
    const auto totals = RecomputeBook(book, units, kBehindAll);
    EXPECT_NEAR(totals.totalDistance, 2 * Km(1), 1e-9);
    EXPECT_NEAR(totals.totalTime, 2 * Km(1) / 18.52, 1e-9);
    EXPECT_EQ(book.ports[1].rows[1].course, 55) << "no course is set";
    EXPECT_EQ(totals.passedSub, 0) << "the sighting is not looked at";
    EXPECT_NEAR(Since(book, book.ports[1].rows[1].eta), 2 * Km(1) / 18.52, 1e-5);
    EXPECT_NEAR(Since(book, book.ports[1].eta), 3 * Km(1) / 18.52, 1e-5) << "the clock goes on";
}

TEST(BookRecompute, SightingElsewhereCountsLikeAnyRow) {
    for (const int before : {ShortIdRoutePoint, AisTrackPoint}) {
        auto book =
            BookOf({PortAt(0), PortAt(3, 0, {Waypoint(1, 0, before), Waypoint(2, 0, AisTrackPoint)})});
        const auto totals = RecomputeBook(book, {}, kBeforeAll);
        EXPECT_NEAR(totals.totalDistance, Km(3) / 1.852, 1e-9) << before;
        EXPECT_DOUBLE_EQ(book.ports[1].rows[1].course, 90) << before;
    }
    auto book = BookOf({PortAt(0), PortAt(2, 0, {Waypoint(1, 0, AisTrackPoint)})});
    EXPECT_NEAR(RecomputeBook(book, {}, kBeforeAll).totalDistance, Km(2) / 1.852, 1e-9)
        << "the first row of a leg has none before it";
}

TEST(BookRecompute, AverageOfAVoyageThatTakesNoTimeIsNoNumber) {
    auto book = BookOf({PortAt(5), PortAt(5)});
    const auto totals = RecomputeBook(book, {}, kBeforeAll);
    EXPECT_TRUE(std::isnan(totals.averageSpeed));
    EXPECT_EQ(totals.totalDistance, 0);
    EXPECT_EQ(totals.totalTime, 0);
}

TEST(BookRecompute, SpeedOfNothingEndsAndAddsNoTime) {
    auto book = BookOf({PortAt(0), PortAt(1)});
    book.ports[1].speed = 0;
    RecomputeBook(book, {}, kBeforeAll);
    EXPECT_EQ(book.ports[1].eta, book.ports[0].etd);
    PosBookData none;
    EXPECT_TRUE(std::isnan(RecomputeBook(none, {}, kBeforeAll).averageSpeed));
}

/// Three ports, two waypoints to each of the last two.
PosBookData LongBook() {
    return BookOf(
        {PortAt(0), PortAt(3, 0, {Waypoint(1), Waypoint(2)}), PortAt(6, 0, {Waypoint(4), Waypoint(5)})});
}

struct PassedCase {
    const char* name;
    Util::_datetime_t now;
    int port;
    int sub;
};

TEST(BookRecompute, TellsHowFarTheVoyageHasCome) {
    auto timed = LongBook();
    RecomputeBook(timed, {}, kBeforeAll);
    const auto second = Util::_time_t(0, 0, 1);
    const auto& first = timed.ports[1];
    const auto& last = timed.ports[2];
    for (const auto& c : {PassedCase{"before the start", timed.ports[0].etd - second, -1, -1},
                          PassedCase{"at the start", timed.ports[0].etd, 0, -1},
                          PassedCase{"at a waypoint", first.rows[0].etd, 0, 0},
                          PassedCase{"just before it", first.rows[0].etd - second, 0, -1},
                          PassedCase{"at a port", first.eta, 1, 1},
                          PassedCase{"at the next leg's first", last.rows[0].etd, 1, 0},
                          PassedCase{"at the end", last.eta, 2, 1}}) {
        auto book = LongBook();
        const auto totals = RecomputeBook(book, {}, c.now);
        EXPECT_EQ(totals.passedPort, c.port) << c.name;
        EXPECT_EQ(totals.passedSub, c.sub) << c.name;
    }
}

TEST(BookRecompute, StayAtAPortPassesItOnArrival) {
    auto book = LongBook();
    book.ports[1].portTime = 48;
    RecomputeBook(book, {}, kBeforeAll);
    const auto now = book.ports[1].eta + Util::_time_t(1, 0);
    const auto totals = RecomputeBook(book, {}, now);
    EXPECT_EQ(totals.passedPort, 1);
    EXPECT_EQ(totals.passedSub, 1) << "still that of the leg before";
    EXPECT_TRUE(IsPassed(totals, 2, 1)) << "so rows of the next leg count as passed";
}

TEST(BookPassed, RowsUpToTheShipAreLocked) {
    BookTotals totals;
    totals.passedPort = 1;
    totals.passedSub = 0;
    for (const int sub : {-1, 0, 5}) {
        EXPECT_TRUE(IsPassed(totals, 0, sub));
        EXPECT_TRUE(IsPassed(totals, 1, sub));
        EXPECT_FALSE(IsPassed(totals, 3, sub));
    }
    EXPECT_TRUE(IsPassed(totals, 2, 0));
    EXPECT_FALSE(IsPassed(totals, 2, 1));
    EXPECT_FALSE(IsPassed(totals, 2, -1)) << "the port row of the leg under way";
    EXPECT_FALSE(IsPassed({}, 0, -1));
    EXPECT_FALSE(IsPassed({}, 0, 0));
}

}  // namespace
}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/book/BookChecks.h"
#include "seaplan/calculation/book/tests/PanelBook.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

TEST(NumberText, HoldsDigitsCommasAndOnePoint) {
    for (const auto* text :
         {"", "-", "0", "12", "-1.5", ".5", "5.", "1,5", "1,234.5", ",", "-,", "00012", "-.5"}) {
        EXPECT_TRUE(IsNumberText(text)) << text;
    }
    for (const auto* text : {".", "-.", "1.2.3", "..", " 1", "1 ", "1e3", "+1", "--1", "1-", "x", "0x1",
                             "\xEF\xBC\x91", "1\n", "- 1"}) {
        EXPECT_FALSE(IsNumberText(text)) << text;
    }
}

TEST(NumberText, EndsAtTheBufferOfTheReader) {
    EXPECT_TRUE(IsNumberText(std::string(1023, '1')));
    EXPECT_TRUE(IsNumberText("-" + std::string(1023, '1')));
    EXPECT_FALSE(IsNumberText(std::string(1024, '1')));
    EXPECT_FALSE(
        IsNumberText(std::string("1\0"
                                 "1",
                                 3)));
}

struct DegreesCase {
    const char* text;
    BookRefusal latitude;
    BookRefusal longitude;
};

TEST(BookLimits, DegreesLieStrictlyWithin) {
    using R = BookRefusal;
    for (const auto& c :
         {DegreesCase{"0", R::None, R::None}, DegreesCase{"89.9999", R::None, R::None},
          DegreesCase{"-89.9999", R::None, R::None}, DegreesCase{"90", R::Latitude, R::None},
          DegreesCase{"-90", R::Latitude, R::None}, DegreesCase{"179.9999", R::Latitude, R::None},
          DegreesCase{"180", R::Latitude, R::Longitude}, DegreesCase{"-180", R::Latitude, R::Longitude},
          DegreesCase{"x", R::NotANumber, R::NotANumber}, DegreesCase{"", R::None, R::None}}) {
        double value = 77;
        EXPECT_EQ(CheckDegreesText(c.text, Axis::Latitude, value), c.latitude) << c.text;
        EXPECT_EQ(value, c.latitude == R::None ? Util::StringUtl::ToDouble(c.text) : 77) << c.text;
        value = 77;
        EXPECT_EQ(CheckDegreesText(c.text, Axis::Longitude, value), c.longitude) << c.text;
        EXPECT_EQ(value, c.longitude == R::None ? Util::StringUtl::ToDouble(c.text) : 77) << c.text;
    }
}

TEST(BookLimits, CommaPassesTheCheckAndEndsTheNumber) {
    double value = 77;
    EXPECT_EQ(CheckDegreesText("12,9", Axis::Latitude, value), BookRefusal::None);
    EXPECT_EQ(value, 12);
}

TEST(BookLimits, CoordinatesAreReadWhereATextIsNoNumber) {
    using R = BookRefusal;
    GeoPoint position{4, 51};
    EXPECT_EQ(CheckPosition("51 30N", Axis::Latitude, position), R::None);
    EXPECT_EQ(position.y, 51.5);
    EXPECT_EQ(position.x, 4) << "the other one stays";
    EXPECT_EQ(CheckPosition("12,9", Axis::Latitude, position), R::None);
    EXPECT_EQ(position.y, 12) << "a number is read as it says";
    EXPECT_EQ(CheckPosition("4 30 W", Axis::Longitude, position), R::None);
    EXPECT_EQ(position.x, -4.5);
    EXPECT_EQ(CheckPosition("10 30N 20 15E", Axis::Longitude, position), R::None);
    EXPECT_EQ(position.y, 10.5);
    EXPECT_EQ(position.x, 20.25);
    EXPECT_EQ(CheckPosition("90N", Axis::Latitude, position), R::Latitude);
    EXPECT_EQ(CheckPosition("180E", Axis::Longitude, position), R::Longitude);
    EXPECT_EQ(CheckPosition("90N 4E", Axis::Latitude, position), R::Latitude);
    EXPECT_EQ(CheckPosition("4N 180E", Axis::Latitude, position), R::Longitude);
    EXPECT_EQ(CheckPosition("10E", Axis::Latitude, position), R::NotANumber);
    EXPECT_EQ(CheckPosition("200", Axis::Longitude, position), R::Longitude);
    EXPECT_EQ(position.y, 10.5);
    EXPECT_EQ(position.x, 20.25);
}

struct SpeedCase {
    const char* text;
    BookSpeedUnit unit;
    BookRefusal refusal;
    double KmPerHour;
};

TEST(BookLimits, SpeedGoesUpToFiftyKnotsInWhicheverUnitItWasTyped) {
    using R = BookRefusal;
    const auto knots = BookSpeedUnit::Knots;
    const auto KmPerHour = BookSpeedUnit::KmPerHour;
    for (const auto& c :
         {SpeedCase{"50", knots, R::None, 92.6}, SpeedCase{"50.00", knots, R::None, 92.6},
          SpeedCase{"50.01", knots, R::Speed, -1}, SpeedCase{"10", knots, R::None, 18.52},
          SpeedCase{"92.6", KmPerHour, R::None, 92.6}, SpeedCase{"92.61", KmPerHour, R::Speed, -1},
          SpeedCase{"92.6000001", KmPerHour, R::Speed, -1}, SpeedCase{"0.01", KmPerHour, R::None, 0.01},
          SpeedCase{"0", knots, R::Speed, -1}, SpeedCase{"-1", knots, R::Speed, -1},
          SpeedCase{"", KmPerHour, R::Speed, -1}, SpeedCase{"ten", knots, R::NotANumber, -1}}) {
        double value = -1;
        EXPECT_EQ(CheckSpeed(c.text, c.unit, value), c.refusal) << c.text;
        EXPECT_NEAR(value, c.KmPerHour, 1e-12) << c.text;
    }
}

TEST(BookLimits, DepartureSetsTheStay) {
    auto port = PortAt(1);
    port.eta = {0, 0, 12, 1, 3, 2026};
    const Util::_datetime_t later(0, 30, 15, 1, 3, 2026);
    EXPECT_EQ(ChangeDeparture(later, port), BookRefusal::None);
    EXPECT_DOUBLE_EQ(port.portTime, 3.5);
    EXPECT_EQ(port.etd, later);
    EXPECT_EQ(ChangeDeparture(port.eta, port), BookRefusal::None) << "a stay of nothing is a stay";
    EXPECT_EQ(port.portTime, 0);
    EXPECT_EQ(port.etd, port.eta);
}

TEST(BookLimits, DepartureBeforeTheArrivalIsRefused) {
    auto port = PortAt(1);
    port.eta = {0, 0, 12, 1, 3, 2026};
    port.etd = {0, 0, 14, 1, 3, 2026};
    port.portTime = 2;
    EXPECT_EQ(ChangeDeparture({59, 59, 11, 1, 3, 2026}, port), BookRefusal::Date);
    EXPECT_EQ(port.portTime, 2);
    EXPECT_EQ(port.etd, Util::_datetime_t(0, 0, 14, 1, 3, 2026));
}

// The first port's stay moves every later row.
TEST(BookLimits, FirstPortsDepartureIsWhereTheBookStarts) {
    auto book = BookOf({PortAt(0), PortAt(1)});
    const auto now = book.ports[0].eta;
    RecomputeBook(book, {}, now);
    const auto before = book.ports[1].eta;
    ASSERT_EQ(ChangeDeparture({0, 0, 18, 1, 3, 2026}, book.ports[0]), BookRefusal::None);
    RecomputeBook(book, {}, now);
    EXPECT_EQ(book.ports[1].eta.total_csecs() - before.total_csecs(), 6 * 360000);
}

}  // namespace
}  // namespace Tarvik::Seaplan

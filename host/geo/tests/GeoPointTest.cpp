// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/geo/GeoPoint.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

TEST(ParsePosition, ReadsLongitudeFirst) {
    EXPECT_EQ(ParsePosition("4.5,51.9"), (GeoPoint{4.5, 51.9}));
    EXPECT_EQ(ParsePosition(" -179.99 , -1e1 "), (GeoPoint{-179.99, -10}));
    EXPECT_EQ(ParsePosition("+3,0"), (GeoPoint{3, 0}));
}

TEST(ParsePosition, RefusesEverythingElse) {
    for (const char* text : {"", ",", "1", "1,", ",1", "1;2", "1,2,3", "a,b", "1,2x", "nan,1", "1,inf",
                             "0,90.1", "721,0", "+-3,0", "0x10,1"}) {
        EXPECT_FALSE(ParsePosition(text)) << text;
    }
}

TEST(WrapLongitude, StaysWithinOneTurn) {
    EXPECT_DOUBLE_EQ(WrapLongitude(180), -180);
    EXPECT_DOUBLE_EQ(WrapLongitude(-180), -180);
    EXPECT_DOUBLE_EQ(WrapLongitude(541), -179);
    EXPECT_DOUBLE_EQ(WrapLongitude(-181), 179);
    EXPECT_DOUBLE_EQ(WrapLongitude(12.25), 12.25);
}

TEST(FormatPosition, WritesDegreesAndMinutes) {
    EXPECT_EQ(FormatPosition({4.483333333, 51.908333333}), "51° 54.5' N 004° 29.0' E");
    EXPECT_EQ(FormatPosition({-122.5, -0.0001}), "00° 00.0' N 122° 30.0' W");
    EXPECT_EQ(FormatPosition({0.9999999, 59.9999999}), "60° 00.0' N 001° 00.0' E");
}

TEST(FormatPosition, ShowsDegreesMinutesAndHemisphere) {
    EXPECT_EQ(FormatPosition({4.0 + 29.0 / 60, 51.0 + 54.5 / 60}), "51° 54.5' N 004° 29.0' E");
    EXPECT_EQ(FormatPosition({-122.5, -0.25}), "00° 15.0' S 122° 30.0' W");
}

TEST(FormatPosition, RoundsMinutesIntoTheNextDegree) {
    EXPECT_EQ(FormatPosition({9.99999, 59.99999}), "60° 00.0' N 010° 00.0' E");
}

TEST(FormatPosition, ZeroIsNorthAndEastFromEitherSide) {
    EXPECT_EQ(FormatPosition({-0.0001, -0.0001}), "00° 00.0' N 000° 00.0' E");
}

TEST(FormatPosition, TakesWholeTurnsOffTheLongitude) {
    EXPECT_EQ(FormatPosition({365.5, 0}), "00° 00.0' N 005° 30.0' E");
    EXPECT_EQ(FormatPosition({190, 0}), "00° 00.0' N 170° 00.0' W");
}

}  // namespace

}  // namespace Tarvik::Server

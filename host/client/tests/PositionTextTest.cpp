// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/client/shell/PositionText.h"

namespace Tarvik::Client {

namespace {

TEST(PositionText, ShowsDegreesMinutesAndHemisphere) {
    EXPECT_EQ(PositionText(4.0 + 29.0 / 60, 51.0 + 54.5 / 60), "51° 54.5' N 004° 29.0' E");
    EXPECT_EQ(PositionText(-122.5, -0.25), "00° 15.0' S 122° 30.0' W");
}

TEST(PositionText, RoundsMinutesIntoTheNextDegree) {
    EXPECT_EQ(PositionText(9.99999, 59.99999), "60° 00.0' N 010° 00.0' E");
}

TEST(PositionText, ZeroIsNorthAndEastFromEitherSide) {
    EXPECT_EQ(PositionText(-0.0001, -0.0001), "00° 00.0' N 000° 00.0' E");
}

TEST(PositionText, TakesWholeTurnsOffTheLongitude) {
    EXPECT_EQ(PositionText(365.5, 0), "00° 00.0' N 005° 30.0' E");
    EXPECT_EQ(PositionText(190, 0), "00° 00.0' N 170° 00.0' W");
}

}  // namespace
}  // namespace Tarvik::Client

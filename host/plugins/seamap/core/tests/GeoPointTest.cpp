// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/GeoPoint.h"

namespace Tarvik::Seamap {

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

TEST(NormaliseLongitude, StaysWithinOneTurn) {
    EXPECT_DOUBLE_EQ(NormaliseLongitude(180), -180);
    EXPECT_DOUBLE_EQ(NormaliseLongitude(-180), -180);
    EXPECT_DOUBLE_EQ(NormaliseLongitude(541), -179);
    EXPECT_DOUBLE_EQ(NormaliseLongitude(-181), 179);
    EXPECT_DOUBLE_EQ(NormaliseLongitude(12.25), 12.25);
}

TEST(FormatPosition, WritesDegreesAndMinutes) {
    EXPECT_EQ(FormatPosition({4.483333333, 51.908333333}), "51° 54.5' N 004° 29.0' E");
    EXPECT_EQ(FormatPosition({-122.5, -0.0001}), "00° 00.0' N 122° 30.0' W");
    EXPECT_EQ(FormatPosition({0.9999999, 59.9999999}), "60° 00.0' N 001° 00.0' E");
}

TEST(ChartPalette, ObjectColoursComeWithRedInTheLowestByte) {
    EXPECT_EQ(ChartPalette::Of(ChartPalette::Theme::Light).ObjectColour(0x6464E9), 0xE96464u);
    EXPECT_EQ(ChartPalette::Of(ChartPalette::Theme::Light).ObjectColour(0x0000FF), 0xFF0000u);
    EXPECT_GT(ChartPalette::Of(ChartPalette::Theme::Dark).ObjectColour(0x800000) & 0xFF, 0x80u);
}

TEST(ChartPalette, NightHasNoColourBrighterThanItsRed) {
    const ChartPalette& night = ChartPalette::Of(ChartPalette::Theme::Night);
    for (const std::int32_t bgr : {0, 0xFFFFFF, 0xFF0000, 0x00FF00, 0xC832E9}) {
        const std::uint32_t colour = night.ObjectColour(bgr);
        EXPECT_LT(colour & 0xFF, colour >> 16);
        EXPECT_LT(colour >> 8 & 0xFF, colour >> 16);
    }
    EXPECT_GT(night.ObjectColour(0xFFFFFF), night.ObjectColour(0));
}

TEST(ChartPalette, ThemesHaveNames) {
    EXPECT_EQ(Skin::FindTheme("dark"), ChartPalette::Theme::Dark);
    EXPECT_EQ(Skin::FindTheme("night"), ChartPalette::Theme::Night);
    EXPECT_EQ(Skin::FindTheme("light"), ChartPalette::Theme::Light);
    EXPECT_FALSE(Skin::FindTheme("blue"));
}

}  // namespace
}  // namespace Tarvik::Seamap

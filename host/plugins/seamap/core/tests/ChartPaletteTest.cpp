// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/seamap/core/ChartPalette.h"

namespace Tarvik::Seamap {

namespace {

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

// SPDX-License-Identifier: MIT
#include <cmath>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/Measure.h"

namespace Tarvik::Seamap {

namespace {

constexpr GeoPoint kYokohama{139.7, 35.4};
constexpr GeoPoint kSanFrancisco{-122.5, 37.8};

TEST(MeasureLeg, AMinuteOfTheMeridianIsAboutAMile) {
    const MeasuredLeg leg = MeasureLeg({4, 52}, {4, 53}, Track::GreatCircle);
    EXPECT_NEAR(leg.miles, 60, 0.2);
    EXPECT_DOUBLE_EQ(leg.course, 0);
    EXPECT_EQ(LegText(leg), "60.1 NM  000°");
}

TEST(MeasureLeg, TheGreatCircleIsShorterAndStartsFartherNorth) {
    const MeasuredLeg circle = MeasureLeg(kYokohama, kSanFrancisco, Track::GreatCircle);
    const MeasuredLeg rhumb = MeasureLeg(kYokohama, kSanFrancisco, Track::RhumbLine);
    EXPECT_NEAR(circle.miles, 4470, 30);
    EXPECT_GT(rhumb.miles, circle.miles + 150);
    EXPECT_NEAR(circle.course, 54, 2);
    EXPECT_NEAR(rhumb.course, 88.2, 0.5);
}

TEST(MeasureLeg, ACourseThatRoundsToAWholeTurnIsNorth) {
    EXPECT_EQ(LegText({{}, {}, 12.34, 359.7}), "12.3 NM  000°");
    EXPECT_EQ(LegText({{}, {}, 1, 7.2}), "1.0 NM  007°");
}

TEST(WayOf, RunsOnOverTheDateLineAndMeetsBothEnds) {
    for (const Track track : {Track::GreatCircle, Track::RhumbLine}) {
        const auto way = WayOf(MeasureLeg(kYokohama, kSanFrancisco, track), track);
        ASSERT_GE(way.size(), 2U);
        EXPECT_NEAR(way.front().x, kYokohama.x, 1e-6);
        EXPECT_NEAR(way.back().x, kSanFrancisco.x + 360, 1e-6);
        EXPECT_NEAR(way.back().y, kSanFrancisco.y, 1e-6);
        for (std::size_t i = 1; i < way.size(); ++i) {
            EXPECT_LE(std::fabs(way[i].x - way[i - 1].x), 180);
        }
    }
}

TEST(HoursText, TellsDaysFromADayOn) {
    EXPECT_EQ(HoursText(120, 12), "10.0 h");
    EXPECT_EQ(HoursText(432, 12), "36.0 h (1.5 d)");
    EXPECT_EQ(HoursText(432, 0), "");
    EXPECT_EQ(HoursText(432, std::nan("")), "");
}

TEST(MeasureTest, GrowsByLegsAndTakesPointsBackButNotTheFirst) {
    Measure measure;
    measure.Add({1, 1});
    EXPECT_FALSE(measure.IsRunning()) << "nothing before the beginning";
    measure.Begin({4, 52});
    measure.Add({4, 52});
    EXPECT_TRUE(measure.Legs().empty()) << "the same place is no leg";
    measure.Add({2, 51});
    measure.Add({-5, 48.5});
    ASSERT_EQ(measure.Legs().size(), 2U);
    EXPECT_EQ(measure.Legs()[1].from, (GeoPoint{2, 51}));
    EXPECT_EQ(measure.LegTo({-5, 48.5}).miles, 0);
    EXPECT_TRUE(measure.TakeBack());
    EXPECT_EQ(measure.Legs().size(), 1U);
    EXPECT_TRUE(measure.TakeBack());
    EXPECT_FALSE(measure.TakeBack());
    EXPECT_TRUE(measure.IsRunning());
    measure.End();
    EXPECT_FALSE(measure.IsRunning());
}

}  // namespace

}  // namespace Tarvik::Seamap

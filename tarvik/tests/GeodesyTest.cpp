// SPDX-License-Identifier: MIT
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/util/Geodesy.h>

namespace Tarvik::Util {

namespace {

// 1/4 meridian and 1 degree of equator of the WGS-84 ellipsoid, km.
constexpr double kQuarterMeridian = 10001.965729;
constexpr double kEquatorDegree = 111.319490793;

TEST(DistanceTest, KnownFiguresOfTheEllipsoid) {
    EXPECT_NEAR(CircleLineUtl::CalculateDistance(0, 0, 0, 90), kQuarterMeridian, 1e-5);
    EXPECT_NEAR(CircleLineUtl::CalculateDistance(0, 0, 1, 0), kEquatorDegree, 1e-8);
    EXPECT_NEAR(CircleLineUtl::CalculateDistance(0, 0, 180, 0), 2 * kQuarterMeridian, 1e-4);
    EXPECT_DOUBLE_EQ(CircleLineUtl::CalculateDistance(5, 5, 5, 5), 0);
}

// Published test line of the ellipsoid: JFK to LHR, 5551.759400 km.
TEST(DistanceTest, AcrossTheAtlantic) {
    EXPECT_NEAR(CircleLineUtl::CalculateDistance(-73.8, 40.6, -0.5, 51.6), 5551.7594, 1e-3);
}

TEST(DistanceTest, TrackChoosesTheLine) {
    const double circle = CircleLineUtl::CalculateDistance(120, 30, -120, 40);
    const double rhumb = CircleLineUtl::CalRhumbDist(120, 30, -120, 40);
    EXPECT_GT(rhumb, circle + 100);
    EXPECT_DOUBLE_EQ(CircleLineUtl::CalculateDistance(120, 30, -120, 40, "GC"), circle);
    EXPECT_DOUBLE_EQ(CircleLineUtl::CalculateDistance(120, 30, -120, 40, "RL"), rhumb);
}

TEST(DistanceTest, RhumbFollowsEquatorAndMeridian) {
    EXPECT_NEAR(CircleLineUtl::CalRhumbDist(10, 0, 20, 0), 10 * kEquatorDegree, 1e-6);
    EXPECT_NEAR(CircleLineUtl::CalRhumbDist(10, 0, 10, 90), kQuarterMeridian, 1e-5);
}

TEST(DistanceTest, RhumbGoesTheShorterWayRound) {
    EXPECT_NEAR(CircleLineUtl::CalRhumbDist(179, 0, -179, 0), 2 * kEquatorDegree, 1e-6);
    EXPECT_NEAR(CircleLineUtl::CalculateDistance(-179.5, 0, 179.5, 0), kEquatorDegree, 1e-6);
}

TEST(CourseTest, IsBetweenZeroAnd360) {
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(10, 10, 10, 20), 0);
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(0, 0, 10, 0), 90);
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(10, 20, 10, 10), 180);
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(10, 0, 0, 0), 270);
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(179, 0, -179, 0), 90);
    const double northWest = CCourse::CalCourse(10, 10, 5, 20);
    EXPECT_GT(northWest, 270);
    EXPECT_LT(northWest, 360);
    const double hairWest = CCourse::CalCourse(1e-300, 0, 0, 80);
    EXPECT_GE(hairWest, 0);
    EXPECT_LT(hairWest, 360);
}

TEST(CourseTest, EqualPointsGiveZero) {
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(12.5, -33, 12.5, -33), 0);
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(180, 10, -180, 10), 0);
    EXPECT_FALSE(std::signbit(CCourse::CalCourse(0, 10, 0, 20)));
}

TEST(CourseTest, AGreatCircleStartsTowardsThePoleOfItsHemisphere) {
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(0, 0, 10, 0, "GC"), 90);
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(10, 20, 10, 10, "GC"), 180);
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(10, 0, 0, 0, "GC"), 270);
    EXPECT_DOUBLE_EQ(CCourse::CalCourse(5, 5, 5, 5, "GC"), 0);
    // Along 50 N over 60 degrees the circle starts half the convergence, 23.8 degrees, to the north.
    EXPECT_NEAR(CCourse::CalCourse(-60, 50, 0, 50, "GC"), 66.2, 0.2);
    EXPECT_NEAR(CCourse::CalCourse(-60, 50, 0, 50, "RL"), 90, 1e-9);
    EXPECT_NEAR(CCourse::CalCourse(170, -30, -170, -30, "GC"), 95.0, 0.2) << "over the date line";
}

TEST(CaculateTest, KeepsBothEnds) {
    const _SPointF from{121.5F, 31.25F};
    const _SPointF to{-118.25F, 33.75F};
    const std::vector<_SPointF> points = CircleLineUtl::Caculate(from, to, 5);
    ASSERT_GT(points.size(), 10U);
    EXPECT_EQ(points.front().x, from.x);
    EXPECT_EQ(points.front().y, from.y);
    EXPECT_EQ(points.back().x, to.x);
    EXPECT_EQ(points.back().y, to.y);
}

// Along a meridian the arc on the auxiliary sphere from equator to pole is exactly 90 degrees.
TEST(CaculateTest, PointsStandEveryIntervalFromTheStart) {
    const std::vector<_SPointF> points = CircleLineUtl::Caculate({0, 0}, {0, 90}, 5);
    ASSERT_EQ(points.size(), 19U);
    EXPECT_EQ(CircleLineUtl::Caculate({0, 0}, {0, 90}, 1).size(), 91U);
    // On the ellipsoid the reduced latitude grows by the interval: tan(lat) = tan(reduced) / (1 - f).
    constexpr double kFlattening = 1 / 298.257223563;
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        const double reduced = 5.0 * static_cast<double>(i) * M_PI / 180;
        const double latitude = std::atan(std::tan(reduced) / (1 - kFlattening)) * 180 / M_PI;
        EXPECT_NEAR(points[i].y, latitude, 1e-5);
        EXPECT_NEAR(points[i].x, 0, 1e-5);
    }
}

TEST(CaculateTest, TheRestFallsBeforeTheEnd) {
    const std::vector<_SPointF> points = CircleLineUtl::Caculate({0, 10}, {0, 21}, 5);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_NEAR(points[1].y, 15, 0.05);
    EXPECT_NEAR(points[2].y, 20, 0.05);
}

TEST(CaculateTest, PointsLieOnTheLine) {
    const std::vector<_SPointF> points = CircleLineUtl::Caculate({140, 35}, {-125, 40}, 2);
    double sum = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        sum += CircleLineUtl::CalculateDistance(points[i - 1].x, points[i - 1].y, points[i].x, points[i].y);
        EXPECT_LE(std::abs(points[i].x), 180.0F);
    }
    EXPECT_NEAR(sum, CircleLineUtl::CalculateDistance(140, 35, -125, 40), 0.01);
}

TEST(CaculateTest, IntervalIsClampedToOneToFive) {
    const auto count = [](int interval) { return CircleLineUtl::Caculate({0, 0}, {0, 40}, interval).size(); };
    EXPECT_EQ(count(0), count(1));
    EXPECT_EQ(count(-7), count(1));
    EXPECT_EQ(count(90), count(5));
    EXPECT_GT(count(1), count(2));
}

TEST(CaculateTest, EqualPointsGiveTheTwoEnds) {
    const std::vector<_SPointF> points = CircleLineUtl::Caculate({7, 8}, {7, 8}, 1);
    ASSERT_EQ(points.size(), 2U);
    EXPECT_EQ(points[0].x, 7);
    EXPECT_EQ(points[1].y, 8);
}

TEST(DataFormatTest, RoundsToDecimals) {
    EXPECT_DOUBLE_EQ(UnitUtl::DataFormat(1.23456, 4), 1.2346);
    EXPECT_DOUBLE_EQ(UnitUtl::DataFormat(-1.23456, 4), -1.2346);
    EXPECT_DOUBLE_EQ(UnitUtl::DataFormat(2.5, 0), 3);
    EXPECT_DOUBLE_EQ(UnitUtl::DataFormat(-2.5, 0), -3);
    EXPECT_DOUBLE_EQ(UnitUtl::DataFormat(12.5, -1), 13);
    EXPECT_DOUBLE_EQ(UnitUtl::DataFormat(1e300, 20), 1e300);
    EXPECT_DOUBLE_EQ(UnitUtl::DataFormat(1.5, 400), 1.5);
    EXPECT_TRUE(std::isnan(UnitUtl::DataFormat(std::nan(""), 4)));
}

}  // namespace
}  // namespace Tarvik::Util

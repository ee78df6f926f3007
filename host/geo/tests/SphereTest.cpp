// SPDX-License-Identifier: MIT
#include <cmath>

#include <GeographicLib/Geodesic.hpp>
#include <gtest/gtest.h>

#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

TEST(Sphere, ADegreeOfArcIsSixtyMiles) {
    EXPECT_NEAR(ArcNm(GeoPoint{0, 0}, GeoPoint{0, 1}), 60.0, 1e-9);
    EXPECT_NEAR(ArcNm(GeoPoint{179.5, 0}, GeoPoint{-179.5, 0}), 60.0, 1e-9);
    EXPECT_NEAR(ArcNm(GeoPoint{0, 60}, GeoPoint{1, 60}), 30.0, 0.01);
}

TEST(Sphere, TheGeodesicFollowsTheEllipsoid) {
    EXPECT_NEAR(GeodesicKm({0, 0}, {0, 1}), 110.574, 0.001);
    EXPECT_NEAR(GeodesicKm({0, 0}, {1, 0}), 111.319, 0.001);
    EXPECT_EQ(GeodesicKm({5, 5}, {5, 5}), 0.0);
}

TEST(Sphere, AShortGeodesicIsAsLongAsTheExactOne) {
    for (double y = -84; y < 84; y += 1.75) {
        for (const double rise : {0.0, 1e-5, 0.3, 1.0, -1.9}) {
            for (const double east : {1e-5, 0.02, 1.0, -7.5, 15.9}) {
                double metres = 0.0;
                GeographicLib::Geodesic::WGS84().Inverse(y, 20.0, y + rise, 20.0 + east, metres);
                EXPECT_NEAR(GeodesicKm({20.0, y}, {20.0 + east, y + rise}), metres / 1000.0,
                            1e-6 + 2e-8 * metres / 1000.0)
                    << y << " " << rise << " " << east;
            }
        }
    }
}

TEST(Sphere, WrapsLongitudesIntoOneTurn) {
    EXPECT_EQ(WrapLongitude(180), -180);
    EXPECT_EQ(WrapLongitude(-180), -180);
    EXPECT_EQ(WrapLongitude(190), -170);
    EXPECT_EQ(WrapLongitude(-190), 170);
    EXPECT_EQ(WrapLongitude(725), 5);
}

TEST(Sphere, VectorsComeBackAsTheSamePoint) {
    for (double x = -179; x < 180; x += 37) {
        for (double y = -88; y < 90; y += 22) {
            const GeoPoint p = ToPoint(ToVector({x, y}));
            EXPECT_NEAR(p.x, x, 1e-9);
            EXPECT_NEAR(p.y, y, 1e-9);
        }
    }
}

TEST(Sphere, AGreatCircleRunsOnPastTheDateLineInStepsOfADegree) {
    const auto points = GreatCircle({170, 40}, {-170, 40});
    EXPECT_EQ(points.front(), (GeoPoint{170, 40}));
    EXPECT_EQ(points.back(), (GeoPoint{190, 40}));
    double highest = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        EXPECT_GT(points[i].x, points[i - 1].x);
        EXPECT_LE(ArcNm(points[i - 1], points[i]), 60.01);
        highest = std::max(highest, points[i].y);
    }
    EXPECT_GT(highest, 40.3);
}

TEST(Sphere, AGreatCircleOfNoLengthHasTwoEnds) {
    const auto points = GreatCircle({3, 4}, {3, 4});
    ASSERT_EQ(points.size(), 2u);
    EXPECT_EQ(points[0], points[1]);
}

TEST(Sphere, ADestinationLiesAtItsDistance) {
    for (double bearing = 0; bearing < 360; bearing += 45) {
        const GeoPoint to = Destination({179.9, 50}, bearing, 30);
        EXPECT_NEAR(ArcNm(GeoPoint{179.9, 50}, to), 30.0, 1e-6);
        EXPECT_GE(to.x, -180);
        EXPECT_LT(to.x, 180);
    }
}

}  // namespace
}  // namespace Tarvik::Server

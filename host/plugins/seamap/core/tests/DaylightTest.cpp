// SPDX-License-Identifier: MIT
#include <cmath>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/Daylight.h"

namespace Tarvik::Seamap {

namespace {

constexpr std::int64_t kHour = 360000;
// Centiseconds of 2026-03-20 14:46, 2026-06-21 08:25 and 2026-12-21 20:50 UTC: equinox and solstices.
constexpr std::int64_t kSpring = 177401796000;
constexpr std::int64_t kSummer = 178203030000;
constexpr std::int64_t kWinter = 179788620000;

/// Whether a point of the window lies in a polygon.
bool Holds(const std::vector<PixelPoint>& polygon, PixelPoint at) {
    bool inside = false;
    for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
        const PixelPoint& a = polygon[i];
        const PixelPoint& b = polygon[j];
        if ((a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x) {
            inside = !inside;
        }
    }
    return inside;
}

TEST(Sun, StandsOverTheEquatorAtTheEquinoxAndOverTheTropicsAtTheSolstices) {
    EXPECT_NEAR(SunAt(kSpring).y, 0, 0.02);
    EXPECT_NEAR(SunAt(kSummer).y, 23.436, 0.02);
    EXPECT_NEAR(SunAt(kWinter).y, -23.436, 0.02);
}

TEST(Sun, GoesRoundInADayAndStandsInTheSouthOfGreenwichAboutNoon) {
    // At this equinox the equation of time is -7.4 minutes: noon in Greenwich at 12:07.4.
    const std::int64_t noon = kSpring - 2 * kHour - kHour * 46 / 60;
    EXPECT_NEAR(SunAt(noon).x, 7.4 / 4, 0.15);
    EXPECT_NEAR(SunAt(noon + 6 * kHour).x, 7.4 / 4 - 90, 0.15);
    EXPECT_NEAR(SunAt(noon + 24 * kHour).x, SunAt(noon).x, 0.2);
}

TEST(Night, IsWhereTheSunIsBelowTheHorizon) {
    MercatorView view;
    view.Resize(720, 500);
    view.Fit({-170, -60, 170, 70}, 0, 1 << 17);
    for (const std::int64_t time : {kSpring + 3 * kHour, kSummer, kSummer + 9 * kHour, kWinter + 5 * kHour}) {
        const GeoPoint sun = SunAt(time);
        const auto night = NightIn(view, sun);
        int dark = 0;
        for (double x = 10; x < 720; x += 50) {
            for (double y = 10; y < 500; y += 35) {
                const GeoPoint place = view.ToGeo({x, y});
                // Beside the edge a corner cut off counts for either.
                const bool nearEdge =
                    IsNight({place.x, place.y + 1}, sun) != IsNight({place.x, place.y - 1}, sun) ||
                    IsNight({place.x + 2, place.y}, sun) != IsNight({place.x - 2, place.y}, sun);
                if (!nearEdge) {
                    EXPECT_EQ(Holds(night, {x, y}), IsNight(place, sun)) << place.x << " " << place.y;
                    dark += IsNight(place, sun) ? 1 : 0;
                }
            }
        }
        EXPECT_GT(dark, 40) << time;
    }
}

TEST(Night, WithTheSunOverTheEquatorIsHalfTheGlobe) {
    MercatorView view;
    view.Resize(720, 500);
    view.Fit({-170, -60, 170, 70}, 0, 1 << 17);
    const auto night = NightIn(view, {0, 0});
    EXPECT_TRUE(Holds(night, view.ToScreen(GeoPoint{150, 0})));
    EXPECT_TRUE(Holds(night, view.ToScreen(GeoPoint{-150, 40})));
    EXPECT_FALSE(Holds(night, view.ToScreen(GeoPoint{30, 0})));
    EXPECT_FALSE(Holds(night, view.ToScreen(GeoPoint{-30, -40})));
}

}  // namespace

}  // namespace Tarvik::Seamap

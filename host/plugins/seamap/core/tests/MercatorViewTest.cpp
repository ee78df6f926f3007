// SPDX-License-Identifier: MIT
#include <cmath>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/MercatorView.h"

namespace Tarvik::Seamap {

namespace {

MercatorView ViewOf(int width, int height, GeoPoint centre, std::int64_t size) {
    MercatorView view;
    view.Resize(width, height);
    view.Show(Project(centre), size);
    return view;
}

TEST(MercatorView, ProjectionRoundTripsOverTheWholeWorld) {
    for (double lon = -180; lon < 180; lon += 7.5) {
        for (double lat = -85; lat <= 85; lat += 2.5) {
            const GeoPoint back = Unproject(Project({lon, lat}));
            EXPECT_NEAR(back.x, lon, 1e-9);
            EXPECT_NEAR(back.y, lat, 1e-9);
        }
    }
}

TEST(MercatorView, TheWorldIsASquare) {
    const WorldPoint corner = Project({-180, kMaxLatitude});
    EXPECT_NEAR(corner.x, 0, 1e-12);
    EXPECT_NEAR(corner.y, 0, 1e-12);
    const WorldPoint middle = Project({0, 0});
    EXPECT_DOUBLE_EQ(middle.x, 0.5);
    EXPECT_DOUBLE_EQ(middle.y, 0.5);
    EXPECT_NEAR(Project({180, -kMaxLatitude}).y, 1, 1e-12);
}

TEST(MercatorView, AKnownLatitudeLiesWhereTheFormulaPutsIt) {
    // ln(tan(45° + 30°)) / 2 pi for 60° N.
    EXPECT_NEAR(Project({0, 60}).y, 0.5 - std::log(std::tan(75 * M_PI / 180)) / (2 * M_PI), 1e-12);
}

TEST(MercatorView, PolesStayFinite) {
    EXPECT_TRUE(std::isfinite(Project({0, 90}).y));
    EXPECT_DOUBLE_EQ(Project({0, -90}).y, Project({0, -89}).y);
}

TEST(MercatorView, ScreenRoundTrips) {
    const MercatorView view = ViewOf(1000, 600, {20, 40}, 4096);
    for (const PixelPoint pixel : {PixelPoint{0, 0}, {999, 599}, {500, 300}, {12.5, 480.25}}) {
        const PixelPoint back = view.ToScreen(view.ToGeo(pixel));
        EXPECT_NEAR(back.x, pixel.x, 1e-6);
        EXPECT_NEAR(back.y, pixel.y, 1e-6);
    }
}

TEST(MercatorView, ZoomStepsAreWholePixelsAndDoubleEveryFourth) {
    for (int step = 0; step + 4 <= MercatorView::LargestStep(); ++step) {
        EXPECT_GT(MercatorView::StepSize(step + 1), MercatorView::StepSize(step));
        EXPECT_NEAR(double(MercatorView::StepSize(step + 4)), 2.0 * double(MercatorView::StepSize(step)),
                    1.0);
    }
    EXPECT_EQ(MercatorView::StepSize(0), MercatorView::kSmallestWorld);
    EXPECT_EQ(MercatorView::StepSize(MercatorView::LargestStep()), MercatorView::kLargestWorld);
    EXPECT_EQ(MercatorView::StepSize(-3), MercatorView::kSmallestWorld);
    EXPECT_EQ(MercatorView::StepSize(1000), MercatorView::kLargestWorld);
}

TEST(MercatorView, PanningRoundTheWorldComesBackToTheSameView) {
    const MercatorView start = ViewOf(800, 500, {170, 10}, MercatorView::StepSize(13));
    MercatorView view = start;
    std::int64_t panned = 0;
    while (panned < start.WorldSize()) {
        const std::int64_t step = std::min<std::int64_t>(37, start.WorldSize() - panned);
        view.PanBy(step, 0);
        panned += step;
        EXPECT_GE(view.Left(), 0);
        EXPECT_LT(view.Left(), view.WorldSize());
    }
    EXPECT_EQ(view, start);
    view.PanBy(-5 * start.WorldSize(), 0);
    EXPECT_EQ(view, start);
}

TEST(MercatorView, StopsAtTheNorthernAndSouthernEdge) {
    MercatorView view = ViewOf(800, 500, {0, 0}, 2048);
    view.PanBy(0, -100000);
    EXPECT_EQ(view.Top(), 0);
    view.PanBy(0, 100000);
    EXPECT_EQ(view.Top() + view.Height(), view.WorldSize());
}

TEST(MercatorView, ZoomKeepsThePlaceUnderThePointer) {
    for (const PixelPoint anchor : {PixelPoint{100, 80}, {640, 360}, {1200, 500}}) {
        MercatorView view = ViewOf(1280, 720, {-30, 20}, 4000);
        const GeoPoint before = view.ToGeo(anchor);
        view.ZoomAt(anchor, 11000);
        const PixelPoint after = view.ToScreen(before);
        EXPECT_NEAR(after.x, anchor.x, 0.51);
        EXPECT_NEAR(after.y, anchor.y, 0.51);
    }
}

TEST(MercatorView, ZoomStaysWithinItsLimits) {
    MercatorView view = ViewOf(1280, 720, {0, 0}, 4000);
    view.ZoomAt({0, 0}, 1);
    EXPECT_EQ(view.WorldSize(), view.SmallestSize());
    EXPECT_GE(view.WorldSize() * 10, 720 * 6);
    view.ZoomAt({0, 0}, std::int64_t{1} << 60);
    EXPECT_EQ(view.WorldSize(), MercatorView::kLargestWorld);
}

TEST(MercatorView, FitShowsTheWholeExtentWithItsMargin) {
    for (const Extent& extent :
         {Extent{-10, 30, 40, 60}, Extent{170, -45, 200, 10}, Extent{100, 0, 101, 50}}) {
        MercatorView view;
        view.Resize(1000, 700);
        view.Fit(extent, 30, MercatorView::kLargestWorld);
        const PixelPoint upper = view.ToScreen(GeoPoint{extent.west, extent.north});
        const PixelPoint lower = view.ToScreen(GeoPoint{extent.east, extent.south});
        EXPECT_GE(upper.x, 29);
        EXPECT_GE(upper.y, 29);
        EXPECT_LE(lower.x, 971);
        EXPECT_LE(lower.y, 671);
        const bool tight = lower.x - upper.x > 930 || lower.y - upper.y > 630;
        EXPECT_TRUE(tight) << lower.x - upper.x << " by " << lower.y - upper.y;
    }
}

TEST(MercatorView, FitOnOnePointStopsAtTheLargestFit) {
    MercatorView view;
    view.Resize(1000, 700);
    view.Fit({4.5, 51.9, 4.5, 51.9}, 30, 65536);
    EXPECT_EQ(view.WorldSize(), 65536);
    EXPECT_NEAR(view.ToGeo({500, 350}).x, 4.5, 0.01);
    EXPECT_NEAR(view.ToGeo({500, 350}).y, 51.9, 0.01);
}

TEST(MercatorView, VisibleOverTheDateLineHasAnEastAbove180) {
    const MercatorView view = ViewOf(1000, 500, {175, 0}, 8000);
    const Extent shown = view.Visible();
    EXPECT_NEAR(shown.west, 175 - 22.5, 0.1);
    EXPECT_NEAR(shown.east, 175 + 22.5, 0.1);
    EXPECT_TRUE(shown.Contains({-170, 0}));
    EXPECT_FALSE(shown.Contains({-150, 0}));
}

TEST(MercatorView, AWindowWiderThanTheWorldSeesAllLongitudes) {
    const MercatorView view = ViewOf(2000, 500, {0, 0}, 600);
    EXPECT_EQ(view.Visible().west, -180);
    EXPECT_EQ(view.Visible().east, 180);
    const auto turns = view.TurnsOf(0.5, 0.5);
    EXPECT_GE(turns.last - turns.first + 1, 3);
}

TEST(MercatorView, TurnsNameExactlyTheCopiesInTheWindow) {
    const MercatorView view = ViewOf(1000, 500, {179, 0}, 4000);
    for (double x = -1; x < 2; x += 0.01) {
        const auto turns = view.TurnsOf(x, x);
        for (int turn = -4; turn <= 4; ++turn) {
            const double pixel = view.ToScreen(WorldPoint{x, 0.5}, turn).x;
            if (std::fabs(pixel) < 1e-6 || std::fabs(pixel - 1000) < 1e-6) {
                continue;
            }
            EXPECT_EQ(turn >= turns.first && turn <= turns.last, pixel >= 0 && pixel <= 1000)
                << x << " " << turn;
        }
    }
}

TEST(MercatorView, APlaceIsDrawnAtTheCopyNearestTheMiddle) {
    const MercatorView view = ViewOf(1000, 500, {179, 0}, 4000);
    EXPECT_NEAR(view.ToScreen(GeoPoint{-179, 0}).x, 500 + 2 * 4000 / 360.0, 1);
    EXPECT_NEAR(view.ToScreen(GeoPoint{177, 0}).x, 500 - 2 * 4000 / 360.0, 1);
}

TEST(MercatorView, ResizingKeepsTheMiddle) {
    MercatorView view = ViewOf(1000, 500, {30, 40}, 8000);
    const WorldPoint before = view.Centre();
    view.Resize(600, 900);
    EXPECT_NEAR(view.Centre().x, before.x, 1.0 / 8000);
    EXPECT_NEAR(view.Centre().y, before.y, 1.0 / 8000);
}

TEST(MercatorView, AMinuteOfLatitudeIsAMileEverywhere) {
    const MercatorView view = ViewOf(1000, 500, {0, 50}, 1 << 20);
    const double perMinute = view.ToScreen(GeoPoint{0, 50}).y - view.ToScreen(GeoPoint{0, 50 + 1 / 60.0}).y;
    EXPECT_NEAR(perMinute * view.MilesPerPixel(50), 1.0, 1e-3);
}

}  // namespace
}  // namespace Tarvik::Seamap

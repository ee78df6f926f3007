// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/seamap/widget/ViewMotion.h"

namespace Tarvik::Seamap {

namespace {

MercatorView ViewOf(GeoPoint centre, std::int64_t size) {
    MercatorView view;
    view.Resize(1000, 600);
    view.Show(Project(centre), size);
    return view;
}

TEST(ViewBetween, EndsExactlyAtTheTarget) {
    const MercatorView from = ViewOf({0, 0}, 4000), to = ViewOf({20, 30}, 9000);
    EXPECT_EQ(ViewBetween(from, to, 1), to);
    EXPECT_EQ(ViewBetween(from, to, 0), from);
}

TEST(ViewBetween, AZoomKeepsThePlaceUnderThePointerAllTheWay) {
    const PixelPoint anchor{120, 480};
    const MercatorView from = ViewOf({10, 40}, 4000);
    MercatorView to = from;
    to.ZoomAt(anchor, 16000);
    const GeoPoint place = from.ToGeo(anchor);
    for (const double share : {0.2, 0.5, 0.8}) {
        const PixelPoint now = ViewBetween(from, to, share).ToScreen(place);
        EXPECT_NEAR(now.x, anchor.x, 1.5) << share;
        EXPECT_NEAR(now.y, anchor.y, 1.5) << share;
    }
}

TEST(ViewBetween, TakesTheShortWayOverTheDateLine) {
    const MercatorView half = ViewBetween(ViewOf({170, 0}, 4000), ViewOf({-170, 0}, 4000), 0.5);
    EXPECT_NEAR(std::abs(half.ToGeo({500, 300}).x), 180, 0.2);
}

TEST(ViewMotion, WithoutAnimationTheTargetIsShownAtOnce) {
    MercatorView shown;
    ViewMotion motion([&](const MercatorView& view) { shown = view; });
    const MercatorView to = ViewOf({20, 30}, 9000);
    motion.Start(ViewOf({0, 0}, 4000), to, false);
    EXPECT_EQ(shown, to);
    EXPECT_FALSE(motion.IsRunning());
}

TEST(ViewMotion, AnAnimatedWayKnowsItsTargetAndCanBeStopped) {
    int shown = 0;
    ViewMotion motion([&](const MercatorView&) { ++shown; });
    const MercatorView to = ViewOf({20, 30}, 9000);
    motion.Start(ViewOf({0, 0}, 4000), to, true);
    EXPECT_TRUE(motion.IsRunning());
    EXPECT_EQ(motion.Target(), to);
    motion.Stop();
    EXPECT_FALSE(motion.IsRunning());
}

}  // namespace
}  // namespace Tarvik::Seamap

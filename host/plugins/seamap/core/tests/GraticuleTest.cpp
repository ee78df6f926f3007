// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/Graticule.h"

namespace Tarvik::Seamap {

namespace {

MercatorView ViewOf(GeoPoint centre, std::int64_t size) {
    MercatorView view;
    view.Resize(1000, 500);
    view.Show(Project(centre), size);
    return view;
}

const GraticuleLine* Named(const std::vector<GraticuleLine>& lines, const std::string& label) {
    const auto found =
        std::find_if(lines.begin(), lines.end(), [&](const auto& line) { return line.label == label; });
    return found == lines.end() ? nullptr : &*found;
}

TEST(Graticule, LinesStandOnTheirPlaces) {
    const MercatorView view = ViewOf({0, 0}, 3600);
    const Graticule net(view);
    EXPECT_EQ(net.Spacing(), 600);
    ASSERT_NE(Named(net.Meridians(), "020° E"), nullptr);
    EXPECT_NEAR(Named(net.Meridians(), "020° E")->pixel, view.ToScreen(GeoPoint{20, 0}).x, 1e-6);
    ASSERT_NE(Named(net.Meridians(), "020° W"), nullptr);
    ASSERT_NE(Named(net.Meridians(), "0°"), nullptr);
    ASSERT_NE(Named(net.Parallels(), "10° N"), nullptr);
    EXPECT_NEAR(Named(net.Parallels(), "10° N")->pixel, view.ToScreen(GeoPoint{0, 10}).y, 1e-6);
    ASSERT_NE(Named(net.Parallels(), "10° S"), nullptr);
    ASSERT_NE(Named(net.Parallels(), "0°"), nullptr);
}

TEST(Graticule, GoesOnOverTheDateLine) {
    const Graticule net(ViewOf({180, 0}, 3600));
    ASSERT_NE(Named(net.Meridians(), "180°"), nullptr);
    ASSERT_NE(Named(net.Meridians(), "170° W"), nullptr);
    ASSERT_NE(Named(net.Meridians(), "170° E"), nullptr);
    EXPECT_LT(Named(net.Meridians(), "170° E")->pixel, Named(net.Meridians(), "170° W")->pixel);
}

TEST(Graticule, ShowsMinutesWhereTheSpacingNeedsThem) {
    const Graticule net(ViewOf({4.5, 52}, 1 << 17));
    EXPECT_EQ(net.Spacing(), 20);
    EXPECT_NE(Named(net.Meridians(), "004° 20' E"), nullptr);
    const Graticule fine(ViewOf({4.5, 52}, MercatorView::kLargestWorld));
    EXPECT_NE(Named(fine.Meridians(), "004° 30.0' E"), nullptr);
}

TEST(Graticule, AlwaysLeavesRoomBetweenMeridiansAndAlwaysHasSome) {
    for (int step = 0; step <= MercatorView::LargestStep(); ++step) {
        const MercatorView view = ViewOf({10, 45}, MercatorView::StepSize(step));
        const Graticule net(view);
        ASSERT_GE(net.Meridians().size(), 2u) << step;
        if (view.WorldSize() > 800) {
            EXPECT_GE(net.Meridians()[1].pixel - net.Meridians()[0].pixel, 95) << step;
        }
    }
}

TEST(ScaleBar, IsARoundLengthThatFits) {
    for (int step = 8; step <= MercatorView::LargestStep(); ++step) {
        const MercatorView view = ViewOf({0, 60}, MercatorView::StepSize(step));
        const ScaleBar bar = ScaleBar::For(view, 140);
        EXPECT_LE(bar.pixels, 140);
        EXPECT_GT(bar.pixels, 50);
        const double lead = bar.miles / std::pow(10, std::floor(std::log10(bar.miles) + 1e-9));
        EXPECT_TRUE(std::fabs(lead - 1) < 1e-9 || std::fabs(lead - 2) < 1e-9 || std::fabs(lead - 5) < 1e-9)
            << lead;
    }
}

TEST(ScaleBar, KnowsTheMileAtTheMiddle) {
    // One degree of longitude is 60 NM at the equator and ten pixels here.
    const ScaleBar bar = ScaleBar::For(ViewOf({0, 0}, 3600), 140);
    EXPECT_EQ(bar.miles, 500);
    EXPECT_NEAR(bar.pixels, 500 / 6.0, 1e-6);
    EXPECT_EQ(bar.text, "500 NM");
}

}  // namespace
}  // namespace Tarvik::Seamap

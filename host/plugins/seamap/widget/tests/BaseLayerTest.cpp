// SPDX-License-Identifier: MIT
#include <QImage>
#include <future>
#include <thread>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/Graticule.h"
#include "host/plugins/seamap/widget/BaseLayer.h"
#include "host/plugins/seamap/widget/CanvasPixels.h"
#include "host/plugins/seamap/widget/LandPainter.h"

namespace Tarvik::Seamap {

namespace {

const ChartPalette& Light() {
    return ChartPalette::Of(ChartPalette::Theme::Light);
}

/// Land from 10 to 60 degrees east and a piece on either side of the date line.
CoastData Land() {
    LandLevel level;
    const auto box = [&](float west, float south, float east, float north) {
        const LandShape ring{{west, south}, {east, south}, {east, north}, {west, north}, {west, south}};
        level.cells.push_back(ring);
        level.coasts.push_back(ring);
    };
    box(10, 10, 60, 50);
    box(170, -20, 180, 20);
    box(-180, -20, -165, 20);
    LandShape slope;
    for (int i = 0; i < 300; ++i) {
        slope.push_back({-60 + static_cast<float>(i) * 0.1F, -40 + static_cast<float>(i % 7)});
    }
    level.coasts.push_back(slope);
    return CoastData({level});
}

MercatorView ViewOf(GeoPoint centre, std::int64_t size, int width = 700, int height = 400) {
    MercatorView view;
    view.Resize(width, height);
    view.Show(Project(centre), size);
    return view;
}

QImage Fresh(const MercatorView& view, const ChartPalette& palette = Light()) {
    BaseLayer layer;
    layer.SetLand(Land());
    return layer.Picture(view, palette, 1).toImage();
}

QColor At(const QImage& picture, const MercatorView& view, GeoPoint place) {
    const PixelPoint pixel = view.ToScreen(place);
    return picture.pixelColor(static_cast<int>(pixel.x), static_cast<int>(pixel.y));
}

TEST(BaseLayer, ThePiecesDrawnBesideOneAnotherAreOnePicture) {
    const MercatorView view = ViewOf({30, 10}, 3000);
    BaseLayer layer;
    layer.SetLand(Land());
    layer.ShowGraticule(false);
    const QImage pieces = layer.Picture(view, Light(), 1).toImage().convertToFormat(QImage::Format_RGB32);
    QImage whole(pieces.size(), QImage::Format_RGB32);
    const CoastData land = Land();
    const PixelRect all{0, 0, whole.width(), whole.height()};
    LandPainter(&land.For(view.WorldSize()), view, Light(), BoardOf(whole), 1).Draw(all);
    EXPECT_EQ(pieces, whole);
    LandPainter(nullptr, view, Light(), BoardOf(whole), 1).Draw(all);
    EXPECT_EQ(At(whole, view, {30, 15}), QColor(Light().sea)) << "without land";
}

TEST(BaseLayer, OnScreensOfAnyFinenessNoRowIsDrawnTwiceOrLeftOut) {
    for (const PixelRect& part : {PixelRect{0, 0, 9, 1350}, PixelRect{3, 7, 9, 8}, PixelRect{0, 5, 4, 276}}) {
        int row = part.top;
        for (const PixelRect& band : BandsOf(part)) {
            EXPECT_EQ(band.top, row);
            EXPECT_GT(band.bottom, band.top);
            row = band.bottom;
        }
        EXPECT_EQ(row, part.bottom);
    }
    const MercatorView view = ViewOf({30, 10}, 3000);
    BaseLayer layer;
    layer.SetLand(Land());
    layer.ShowGraticule(false);
    const QImage pieces = layer.Picture(view, Light(), 1.25).toImage().convertToFormat(QImage::Format_RGB32);
    QImage whole(pieces.size(), QImage::Format_RGB32);
    whole.setDevicePixelRatio(1.25);
    const CoastData land = Land();
    LandPainter(&land.For(view.WorldSize()), view, Light(), BoardOf(whole), 1.25)
        .Draw({0, 0, whole.width(), whole.height()});
    EXPECT_EQ(pieces, whole);
}

TEST(BaseLayer, LandThatIsStillComingIsInTheFirstPicture) {
    const MercatorView view = ViewOf({20, 20}, 2000);
    BaseLayer layer;
    std::promise<CoastData> reading;
    layer.SetLand(reading.get_future());
    std::thread reader([&reading] { reading.set_value(Land()); });
    const QImage picture = layer.Picture(view, Light(), 1).toImage();
    reader.join();
    EXPECT_EQ(picture, Fresh(view));
    EXPECT_EQ(layer.Picture(view, Light(), 1).toImage(), picture) << "it stays";
}

TEST(BaseLayer, LandAndSeaHaveTheirColours) {
    const MercatorView view = ViewOf({20, 20}, 2000);
    const QImage picture = Fresh(view);
    EXPECT_EQ(At(picture, view, {33, 33}), QColor(Light().land));
    EXPECT_EQ(At(picture, view, {-12, 7}), QColor(Light().sea));
    const ChartPalette& dark = ChartPalette::Of(ChartPalette::Theme::Dark);
    EXPECT_EQ(At(Fresh(view, dark), view, {33, 33}), QColor(dark.land));
}

TEST(BaseLayer, LandIsDrawnOnBothSidesOfTheDateLineWithoutASeam) {
    const MercatorView view = ViewOf({180, 5}, 3000);
    const QImage picture = Fresh(view);
    // Between two lines of the net the land goes on as one piece.
    const int y = static_cast<int>(view.ToScreen(GeoPoint{180, 7}).y);
    const int west = static_cast<int>(view.ToScreen(GeoPoint{172, 0}).x);
    const int east = static_cast<int>(view.ToScreen(GeoPoint{-167, 0}).x);
    int otherColours = 0;
    for (int x = west; x < east; ++x) {
        otherColours += picture.pixelColor(x, y) == QColor(Light().land) ? 0 : 1;
    }
    const Graticule net(view);
    int crossed = 0;
    for (const GraticuleLine& line : net.Meridians()) {
        crossed += line.pixel >= west && line.pixel < east ? 1 : 0;
    }
    EXPECT_EQ(otherColours, crossed) << "only meridians interrupt the land";
}

TEST(BaseLayer, AShiftedPictureEqualsAFreshOne) {
    BaseLayer layer;
    layer.SetLand(Land());
    MercatorView view = ViewOf({-50, -30}, 2600);
    layer.Picture(view, Light(), 1);
    for (const auto& [dx, dy] : {std::pair{13, 0}, {0, -9}, {-40, 21}, {250, 100}, {-699, 3}, {900, 0}}) {
        view.PanBy(dx, dy);
        EXPECT_EQ(layer.Picture(view, Light(), 1).toImage(), Fresh(view)) << dx << " " << dy;
    }
}

TEST(BaseLayer, PanningRoundTheWorldGivesTheSamePicture) {
    BaseLayer layer;
    layer.SetLand(Land());
    MercatorView view = ViewOf({120, 10}, MercatorView::StepSize(12));
    const QImage start = layer.Picture(view, Light(), 1).toImage();
    for (std::int64_t panned = 0; panned < view.WorldSize();) {
        const std::int64_t step = std::min<std::int64_t>(171, view.WorldSize() - panned);
        view.PanBy(step, 0);
        layer.Picture(view, Light(), 1);
        panned += step;
    }
    EXPECT_EQ(layer.Picture(view, Light(), 1).toImage(), start);
}

TEST(BaseLayer, ShapesFarLargerThanTheWindowAreStillFilled) {
    const MercatorView inside = ViewOf({33, 33}, MercatorView::kLargestWorld);
    const QImage picture = Fresh(inside);
    EXPECT_EQ(picture.pixelColor(3, 3), QColor(Light().land));
    const MercatorView corner = ViewOf({10, 10}, MercatorView::kLargestWorld);
    const QImage edge = Fresh(corner);
    EXPECT_EQ(edge.pixelColor(690, 10), QColor(Light().land));
    EXPECT_EQ(edge.pixelColor(10, 390), QColor(Light().sea));
}

TEST(BaseLayer, WorksWithoutLandAndAtTwicePixels) {
    BaseLayer layer;
    const MercatorView view = ViewOf({0, 0}, 2000);
    EXPECT_EQ(layer.Picture(view, Light(), 1).toImage().pixelColor(3, 3), QColor(Light().sea));
    EXPECT_EQ(layer.Picture(view, Light(), 2).size(), QSize(1400, 800));
}

}  // namespace
}  // namespace Tarvik::Seamap

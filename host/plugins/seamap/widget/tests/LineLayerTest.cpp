// SPDX-License-Identifier: MIT
/// The lines of the chart: few with rims, many thin, and the picture that is kept of them.
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "host/plugins/seamap/widget/LineLayer.h"

namespace Tarvik::Seamap {

namespace {

class LineLayerTest : public ::testing::Test {
  protected:
    LineLayerTest() {
        view_.Resize(400, 300);
        view_.Show({0.5, 0.5}, 2000);
    }
    void AddLine(const std::string& id, double lat) {
        Interface::TrvMapLineParams line;
        line.ref = {"VOYAGE", id, "BOOK"};
        line.points = {"-30," + std::to_string(lat), "30," + std::to_string(lat)};
        line.colour = 0x0000FF;
        line.width = 2;
        objects_.AddLine(line);
    }
    QImage Draw(const ObjectKey* highlighted = nullptr) {
        QImage picture(400, 300, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        layer_.Draw(painter, view_, ChartPalette::Of(ChartPalette::Theme::Light), objects_, highlighted);
        return picture;
    }
    /// How red the strongest pixel near a latitude is, of 255.
    int Redness(const QImage& picture, double lat, int reach = 2) const {
        const int y = qRound(view_.ToScreen(GeoPoint{0, lat}).y);
        int most = 0;
        for (int row = y - reach; row <= y + reach; ++row) {
            const QRgb pixel = picture.pixel(113, row);
            most = std::max(most, qRed(pixel) - qGreen(pixel));
        }
        return most;
    }
    ChartObjects objects_;
    MercatorView view_;
    LineLayer layer_;
};

TEST_F(LineLayerTest, ThePictureIsMadeAnewOnlyForAnotherViewOrOtherLines) {
    Draw();
    EXPECT_EQ(layer_.Made(), 1) << "of no lines";
    AddLine("1", 5);
    const QImage first = Draw();
    EXPECT_EQ(layer_.Made(), 2);
    objects_.Ships().Set({"AIS", {{"1", "", 3, 4}}});
    const ObjectKey pointedAt{"VOYAGE", "BOOK", "1"};
    EXPECT_NE(Draw(&pointedAt), first);
    EXPECT_EQ(Draw(), first);
    EXPECT_EQ(layer_.Made(), 2);
    view_.PanBy(3, 0);
    Draw();
    EXPECT_EQ(layer_.Made(), 3);
    objects_.Remove({"VOYAGE", "BOOK", "1"});
    EXPECT_EQ(Redness(Draw(), 5), 0);
    EXPECT_EQ(layer_.Made(), 4);
}

TEST_F(LineLayerTest, ManyLinesAreThinButForTheOneThatStandsOut) {
    for (int i = 0; i < int{LineLayer::kMany}; ++i) {
        AddLine(std::to_string(i), -20 + i * 0.8);
    }
    const QImage plain = Draw();
    for (int i = 0; i < int{LineLayer::kMany}; ++i) {
        EXPECT_GT(Redness(plain, -20 + i * 0.8), 150) << i;
    }
    EXPECT_EQ(Redness(plain, -20.4, 0), 0) << "between two of them";
    objects_.StandOut("7");
    const QImage chosen = Draw();
    EXPECT_GT(Redness(chosen, -20 + 7 * 0.8), 230);
    EXPECT_LT(Redness(chosen, -20 + 8 * 0.8), 120);
    EXPECT_GT(Redness(chosen, -20 + 8 * 0.8), 40);
}

TEST_F(LineLayerTest, FollowsThePixelsOfTheScreen) {
    AddLine("1", 5);
    QImage picture(800, 600, QImage::Format_RGB32);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    layer_.Draw(painter, view_, ChartPalette::Of(ChartPalette::Theme::Light), objects_, nullptr);
    painter.end();
    const int y = qRound(2 * view_.ToScreen(GeoPoint{0, 5}).y);
    EXPECT_GT(qRed(picture.pixel(226, y)) - qGreen(picture.pixel(226, y)), 230);
}

}  // namespace
}  // namespace Tarvik::Seamap

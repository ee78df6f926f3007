// SPDX-License-Identifier: MIT
/// The lines of the chart: few with rims, many thin, and the picture that is kept of them.
#include <QImage>
#include <QPainter>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <vector>

#include <gtest/gtest.h>

#include "host/plugins/seamap/widget/Beside.h"
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
        line.width = 4;
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
    /// Tells the plan of a voyage, which gives its line a colour of its own.
    void AddPlan(const std::string& id) {
        objects_.Plans().Set(
            {"VOYAGE", id, "SHIP", id, "", {{-30, 5, 0, 0, "", true}, {30, 5, 9, 9, "", true}}});
    }
    /// The darkest pixel of the line at a latitude, clear of arrows.
    QRgb ColourAt(const QImage& picture, double lat) const {
        const int y = qRound(view_.ToScreen(GeoPoint{0, lat}).y);
        QRgb darkest = picture.pixel(113, y);
        for (const int row : {y - 1, y + 1}) {
            darkest = qGray(picture.pixel(113, row)) < qGray(darkest) ? picture.pixel(113, row) : darkest;
        }
        return darkest & 0xFFFFFF;
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

TEST_F(LineLayerTest, MadeOnAnotherThreadThePictureIsTheSame) {
    for (int i = 0; i < 2 * int{LineLayer::kMany}; ++i) {
        AddLine(std::to_string(i), -20 + i * 0.4);
    }
    const auto& palette = ChartPalette::Of(ChartPalette::Theme::Light);
    {
        const Beside lines([&] { layer_.Prepare(view_, palette, objects_, 1); });
    }
    EXPECT_TRUE(layer_.IsGood(view_, palette, objects_, 1)) << "its end was waited for";
    const QImage picture = Draw();
    EXPECT_EQ(layer_.Made(), 1);
    layer_ = LineLayer();
    EXPECT_EQ(Draw(), picture);
}

TEST_F(LineLayerTest, EachOfManyTasksIsDoneOnce) {
    std::vector<int> done(1000, 0);
    Beside::Each(done.size(), [&done](std::size_t i) { ++done[i]; });
    EXPECT_EQ(done, std::vector<int>(1000, 1));
    Beside::Each(0, [&done](std::size_t) { done.clear(); });
    EXPECT_EQ(done.size(), 1000U);
}

TEST_F(LineLayerTest, WithoutAFreeThreadATaskRunsAtOnce) {
    QThreadPool& pool = *QThreadPool::globalInstance();
    const int threads = pool.maxThreadCount();
    pool.waitForDone();  // a thread is taken until a while after its task's end
    pool.setMaxThreadCount(1);
    QSemaphore leave;
    QThread* where = nullptr;
    {
        const Beside busy([&leave] { leave.acquire(); });
        const Beside task([&where] { where = QThread::currentThread(); });
        EXPECT_EQ(where, QThread::currentThread());
        leave.release();
    }
    pool.setMaxThreadCount(threads);
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

TEST_F(LineLayerTest, EachVoyageHasItsColourOnRequest) {
    AddLine("1", 5);
    AddLine("2_0", -5);
    AddPlan("1");
    AddPlan("2");
    const QImage plain = Draw();
    EXPECT_EQ(ColourAt(plain, 5), ColourAt(plain, -5));
    layer_.ShowTints(true);
    const QImage tinted = Draw();
    EXPECT_EQ(ColourAt(tinted, 5), Skin::TintOf(0, Skin::Theme::Light));
    EXPECT_EQ(ColourAt(tinted, -5), Skin::TintOf(1, Skin::Theme::Light)) << "a part of the voyage's line";
    const int made = layer_.Made();
    Draw();
    EXPECT_EQ(layer_.Made(), made);
    objects_.Plans().Set({"VOYAGE", "1", "", "", "", {}});
    EXPECT_EQ(ColourAt(Draw(), 5), ColourAt(plain, 5)) << "a line without a plan keeps its own colour";
    layer_.ShowTints(false);
    EXPECT_EQ(Draw(), plain);
}

}  // namespace
}  // namespace Tarvik::Seamap

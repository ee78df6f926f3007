// SPDX-License-Identifier: MIT
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "host/plugins/seamap/widget/ChartWidget.h"

namespace Tarvik::Seamap {

namespace {

class ChartWidgetTest : public ::testing::Test {
  protected:
    ChartWidgetTest() : chart_(objects_) {
        chart_.setProperty("pictures", true);
        chart_.resize(800, 500);
        chart_.show();
        chart_.ShowExtent({-20, -10, 20, 10});
    }
    QPoint At(GeoPoint place) const {
        const PixelPoint pixel = chart_.View().ToScreen(place);
        return {qRound(pixel.x), qRound(pixel.y)};
    }
    void Label(const std::string& id, const std::string& position) {
        objects_.AddLabel({{"L", id, "P"}, id, position, 0, "circle", 0xFF, 3});
    }
    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(&chart_, Qt::LeftButton, {}, from);
        QTest::mouseMove(&chart_, (from + to) / 2);
        QTest::mouseMove(&chart_, to);
        QTest::mouseRelease(&chart_, Qt::LeftButton, {}, to);
    }
    void Wheel(QPoint where, int notches) {
        QWheelEvent event(where, chart_.mapToGlobal(where), {}, {0, notches * 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&chart_, &event);
    }

    ChartObjects objects_;
    ChartWidget chart_;
};

TEST_F(ChartWidgetTest, CanBeFoundByNameAndByAssistiveTools) {
    EXPECT_EQ(chart_.objectName(), "chart");
    EXPECT_FALSE(chart_.accessibleName().isEmpty());
}

TEST_F(ChartWidgetTest, ShowsTheWholeExtentAskedFor) {
    chart_.ShowExtent({90, -30, 126, 50});
    const Extent shown = chart_.Shown();
    EXPECT_LT(shown.west, 90);
    EXPECT_GT(shown.east, 126);
    EXPECT_LT(shown.south, -30);
    EXPECT_GT(shown.north, 50);
}

TEST_F(ChartWidgetTest, FitsAgainOnResizeUntilAPersonMovesTheView) {
    chart_.resize(300, 500);
    EXPECT_LT(chart_.Shown().west, -20);
    EXPECT_GT(chart_.Shown().east, 20);
    QTest::keyClick(&chart_, Qt::Key_Plus);
    const auto size = chart_.View().WorldSize();
    chart_.resize(700, 500);
    EXPECT_EQ(chart_.View().WorldSize(), size);
}

TEST_F(ChartWidgetTest, DraggingMovesThePlaceWithThePointer) {
    const QPoint from(400, 250), to(300, 200);
    const GeoPoint before = chart_.View().ToGeo({400, 250});
    Drag(from, to);
    const GeoPoint after = chart_.View().ToGeo({300, 200});
    EXPECT_NEAR(after.x, before.x, 1e-9);
    EXPECT_NEAR(after.y, before.y, 1e-9);
}

TEST_F(ChartWidgetTest, AFitIsPassedOverWhileAPersonDrags) {
    QTest::mousePress(&chart_, Qt::LeftButton, {}, {400, 250});
    QTest::mouseMove(&chart_, {300, 250});
    const MercatorView held = chart_.View();
    EXPECT_FALSE(chart_.ShowExtent({100, 0, 120, 20}));
    EXPECT_EQ(chart_.View(), held);
    QTest::mouseRelease(&chart_, Qt::LeftButton, {}, {300, 250});
    EXPECT_TRUE(chart_.ShowExtent({100, 0, 120, 20}));
    EXPECT_NE(chart_.View(), held);
}

TEST_F(ChartWidgetTest, AFitIsPassedOverWhileAPersonZooms) {
    chart_.setProperty("pictures", false);
    QTest::keyClick(&chart_, Qt::Key_Plus);
    EXPECT_FALSE(chart_.ShowExtent({100, 0, 120, 20}));
}

TEST_F(ChartWidgetTest, AnAnimatedFitAnswersWithItsTarget) {
    chart_.setProperty("pictures", false);
    const MercatorView before = chart_.View();
    EXPECT_TRUE(chart_.ShowExtent({100, 0, 120, 20}));
    EXPECT_EQ(chart_.View(), before);
    EXPECT_TRUE(chart_.Shown().Contains({110, 10}));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return chart_.View().Visible() == chart_.Shown() && chart_.View() != before; }));
    EXPECT_TRUE(chart_.View().Visible().Contains({110, 10}));
}

TEST_F(ChartWidgetTest, TheWheelZoomsAroundThePointer) {
    const PixelPoint pointer{150, 400};
    const GeoPoint before = chart_.View().ToGeo(pointer);
    const auto size = chart_.View().WorldSize();
    Wheel({150, 400}, 2);
    EXPECT_GT(chart_.View().WorldSize(), size * 3 / 2);
    EXPECT_NEAR(chart_.View().ToScreen(before).x, 150, 1);
    EXPECT_NEAR(chart_.View().ToScreen(before).y, 400, 1);
    Wheel({150, 400}, -4);
    EXPECT_LT(chart_.View().WorldSize(), size);
}

TEST_F(ChartWidgetTest, ADoubleClickZoomsInAndWithShiftOut) {
    const auto size = chart_.View().WorldSize();
    QTest::mouseDClick(&chart_, Qt::LeftButton, {}, {400, 250});
    const auto larger = chart_.View().WorldSize();
    EXPECT_GT(larger, size);
    QTest::mouseDClick(&chart_, Qt::LeftButton, Qt::ShiftModifier, {400, 250});
    EXPECT_LT(chart_.View().WorldSize(), larger);
}

TEST_F(ChartWidgetTest, KeysZoomAndPan) {
    const MercatorView start = chart_.View();
    QTest::keyClick(&chart_, Qt::Key_Plus);
    EXPECT_GT(chart_.View().WorldSize(), start.WorldSize());
    QTest::keyClick(&chart_, Qt::Key_Minus);
    QTest::keyClick(&chart_, Qt::Key_Minus);
    EXPECT_LT(chart_.View().WorldSize(), start.WorldSize());
    const double lon = chart_.View().ToGeo({400, 250}).x;
    QTest::keyClick(&chart_, Qt::Key_Right);
    EXPECT_GT(chart_.View().ToGeo({400, 250}).x, lon);
    QTest::keyClick(&chart_, Qt::Key_Left);
    EXPECT_NEAR(chart_.View().ToGeo({400, 250}).x, lon, 1e-9);
    const double lat = chart_.View().ToGeo({400, 250}).y;
    QTest::keyClick(&chart_, Qt::Key_Up);
    EXPECT_GT(chart_.View().ToGeo({400, 250}).y, lat);
    QTest::keyClick(&chart_, Qt::Key_Down);
    EXPECT_NEAR(chart_.View().ToGeo({400, 250}).y, lat, 1e-9);
}

TEST_F(ChartWidgetTest, HomeShowsAllObjectsOverTheDateLineToo) {
    Label("a", "150,10");
    Label("b", "-150,-20");
    QTest::keyClick(&chart_, Qt::Key_Home);
    const Extent shown = chart_.Shown();
    EXPECT_TRUE(shown.Contains({150, 10}));
    EXPECT_TRUE(shown.Contains({-150, -20}));
    EXPECT_LT(shown.Width(), 120);
}

TEST_F(ChartWidgetTest, AClickOnAnObjectNamesItAndADragDoesNot) {
    Label("here", "5,5");
    std::vector<std::string> clicked;
    QObject::connect(&chart_, &ChartWidget::ObjectClicked,
                     [&](const ObjectKey& key) { clicked.push_back(key.id); });
    QTest::mouseClick(&chart_, Qt::LeftButton, {}, At({5, 5}));
    EXPECT_EQ(clicked, std::vector<std::string>{"here"});
    QTest::mouseClick(&chart_, Qt::RightButton, {}, At({5, 5}));
    QTest::mouseClick(&chart_, Qt::LeftButton, {}, At({-5, -5}));
    Drag(At({5, 5}), At({5, 5}) + QPoint(60, 0));
    EXPECT_EQ(clicked.size(), 1u);
}

TEST_F(ChartWidgetTest, AClickMayRemoveTheObject) {
    Label("here", "5,5");
    QObject::connect(&chart_, &ChartWidget::ObjectClicked, [&](const ObjectKey& key) {
        objects_.RemoveLayer("L");
        EXPECT_EQ(key.id, "here");
    });
    QTest::mouseClick(&chart_, Qt::LeftButton, {}, At({5, 5}));
    EXPECT_EQ(objects_.Count(), 0u);
}

TEST_F(ChartWidgetTest, ThePointerTellsItsPlaceAndHighlights) {
    Label("here", "5,5");
    std::vector<GeoPoint> places;
    QObject::connect(&chart_, &ChartWidget::CursorMoved, [&](double lon, double lat) {
        places.push_back({lon, lat});
    });
    const QImage plain = chart_.grab().toImage();
    QTest::mouseMove(&chart_, At({5, 5}));
    ASSERT_FALSE(places.empty());
    EXPECT_NEAR(places.back().x, 5, 0.05);
    EXPECT_NEAR(places.back().y, 5, 0.05);
    EXPECT_EQ(chart_.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_NE(chart_.grab().toImage(), plain);
    QTest::mouseMove(&chart_, At({-10, -5}));
    EXPECT_EQ(chart_.cursor().shape(), Qt::OpenHandCursor);
    EXPECT_EQ(chart_.grab().toImage(), plain);
}

TEST_F(ChartWidgetTest, LinesShowInTheirColourSolidOrDashed) {
    const auto coloured = [&] {
        int count = 0;
        const QImage picture = chart_.grab().toImage();
        const int y = At({0, 3}).y();
        for (int x = At({-10, 3}).x(); x < At({10, 3}).x(); ++x) {
            for (int near = y - 1; near <= y + 1; ++near) {
                if (picture.pixelColor(x, near) == QColor(0xFF0000)) {
                    ++count;
                    break;
                }
            }
        }
        return count;
    };
    const int length = At({10, 3}).x() - At({-10, 3}).x();
    EXPECT_EQ(coloured(), 0);
    Interface::TrvMapLineParams line{{"L", "1", "T"}, {"-10,3", "10,3"}, 0x0000FF, 3, "solid"};
    objects_.AddLine(line);
    EXPECT_GT(coloured(), length * 95 / 100);
    line.style = "dashed";
    objects_.AddLine(line);
    EXPECT_GT(coloured(), length / 3);
    EXPECT_LT(coloured(), length * 3 / 4);
}

TEST_F(ChartWidgetTest, AShipWithoutAPictureStillShows) {
    const QImage plain = chart_.grab().toImage();
    objects_.AddImage({{"L", "ship", "I"}, "unregistered", "0,0"});
    EXPECT_NE(chart_.grab().toImage(), plain);
}

TEST_F(ChartWidgetTest, ThemesChangeTheSea) {
    const PixelPoint sea = chart_.View().ToScreen(GeoPoint{2.5, 1.2});
    for (const auto theme :
         {ChartPalette::Theme::Dark, ChartPalette::Theme::Night, ChartPalette::Theme::Light}) {
        chart_.SetTheme(theme);
        const QColor colour = chart_.grab().toImage().pixelColor(qRound(sea.x), qRound(sea.y));
        EXPECT_EQ(colour, QColor(ChartPalette::Of(theme).sea));
    }
}

}  // namespace
}  // namespace Tarvik::Seamap

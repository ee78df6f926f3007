// SPDX-License-Identifier: MIT
#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>

#include "host/plugins/seamap/widget/HaloTexts.h"
#include "host/plugins/seamap/widget/NameLayer.h"

namespace Tarvik::Seamap {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

ChartName Sea(const char* text, GeoPoint position, double miles) {
    return {.kind = ChartName::Kind::Water, .position = position, .text = text, .miles = miles};
}

ChartName Port(const char* text, GeoPoint position) {
    return {
        .kind = ChartName::Kind::Port, .position = position, .text = text, .code = "NLRTM", .isMajor = true};
}

/// A window of 800 by 500 around the mouth of the Maas.
class NameLayerTest : public ::testing::Test {
  protected:
    NameLayerTest() {
        view.Resize(800, 500);
        view.Show(Project({4, 52}), 1 << 14);
    }
    std::vector<std::string> Texts(LabelRoom room = {}) const {
        std::vector<std::string> texts;
        for (const NameLayer::Placed& placed : layer.Place(view, room)) {
            texts.push_back(placed.text.toStdString());
        }
        return texts;
    }

    MercatorView view;
    NameLayer layer;
};

TEST_F(NameLayerTest, OfTwoNamesThatMeetTheFirstIsDrawn) {
    layer.SetNames({Sea("North Sea", {4, 52}, 400), Sea("Wadden Sea", {4.01, 52.01}, 400)});
    EXPECT_THAT(Texts(), ElementsAre("North Sea"));
    layer.SetNames({Sea("North Sea", {4, 52}, 400), Sea("Wadden Sea", {4.01, 53}, 400)});
    EXPECT_THAT(Texts(), ElementsAre("North Sea", "Wadden Sea"));
}

TEST_F(NameLayerTest, ANameThatTheEdgeWouldCutIsLeftOut) {
    const GeoPoint corner = view.ToGeo({795, 250});
    layer.SetNames({Sea("German Bight", corner, 400)});
    EXPECT_THAT(Texts(), IsEmpty());
    layer.SetNames({Port("EMDEN", corner)});
    ASSERT_THAT(Texts(), ElementsAre("EMDEN")) << "its name stands left of its dot";
    LabelRoom room;
    EXPECT_LT(layer.Place(view, room).front().box.Right(), 795);
}

TEST_F(NameLayerTest, APortThatAnObjectCoversHasNoSecondName) {
    layer.SetNames({Port("ROTTERDAM", {4, 52})});
    EXPECT_THAT(Texts(), ElementsAre("ROTTERDAM"));
    LabelRoom room;
    room.Take({398, 248, 6, 6});
    EXPECT_THAT(Texts(room), IsEmpty());
}

TEST_F(NameLayerTest, APortGivesWayToTheSideThatIsFree) {
    layer.SetNames({Port("ROTTERDAM", {4, 52})});
    LabelRoom room;
    room.Take({405, 200, 300, 100});
    const auto placed = layer.Place(view, room);
    ASSERT_EQ(placed.size(), 1U);
    EXPECT_LE(placed[0].box.Right(), 400);
}

TEST_F(NameLayerTest, TheCodeStandsBehindTheNameFurtherIn) {
    layer.SetNames({Port("ROTTERDAM", {4, 52})});
    EXPECT_THAT(Texts(), ElementsAre("ROTTERDAM"));
    view.Show(Project({4, 52}), 1 << 18);
    EXPECT_THAT(Texts(), ElementsAre("ROTTERDAM NLRTM"));
}

TEST_F(NameLayerTest, DrawsWhereItPlaces) {
    layer.SetNames({Sea("North Sea", {4, 52}, 400)});
    QImage picture(800, 500, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    HaloTexts texts;
    LabelRoom room;
    layer.Draw(painter, view, ChartPalette::Of(ChartPalette::Theme::Light), texts, room);
    painter.end();
    LabelRoom fresh;
    const LabelBox box = layer.Place(view, fresh).front().box;
    int inside = 0;
    int outside = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != QColor(Qt::white)) {
                const LabelBox reach{box.left - 4, box.top - 4, box.width + 8, box.height + 8};
                ++(reach.Holds({double(x), double(y), 1, 1}) ? inside : outside);
            }
        }
    }
    EXPECT_GT(inside, 50);
    EXPECT_EQ(outside, 0);
    EXPECT_FALSE(room.IsFree(box)) << "nothing else is written there";
}

}  // namespace

}  // namespace Tarvik::Seamap

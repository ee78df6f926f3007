// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/core/TrvKernel.h>
#include <tarvik/util/FileUtl.h>

#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/chart/tests/ChartRecording.h"
#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct VoyageLayerTest : ::testing::Test {
    Testing::ChartRecording chart;
    VoyageLayer layer;
};

TEST_F(VoyageLayerTest, RecordsAreStyledBeforeAnyUse) {
    const auto expectLine = [](const Interface::TrvMapLineParams& line, const char* type, const char* style,
                               int colour) {
        EXPECT_EQ(line.ref.layer, "VOYAGE");
        EXPECT_EQ(line.ref.type, type);
        EXPECT_EQ(line.style, style);
        EXPECT_EQ(line.colour, colour);
        EXPECT_EQ(line.width, 2);
    };
    expectLine(layer.mainLine, "VOYLINETYPE", "solid", 0x6464E9);
    expectLine(layer.remainingLine, "VOYPOSTBOOKLINETYPE", "solid", 0xC832E9);
    expectLine(layer.sailedLine, "VOYPOSTBOOKLINETYPE", "dashed", 0xC832E9);
    expectLine(layer.spareLine, "VOYPOSTBOOKLINETYPE", "dashed", 0xC832E9);
    for (const auto& [label, type, colour] : {std::tuple{&layer.routePointLabel, "VOYAGETYPE", 0x9664FF},
                                              std::tuple{&layer.alternativeLabel, "RPOINTTYPE", 0xFF00FF}}) {
        EXPECT_EQ(label->ref.layer, "VOYAGE");
        EXPECT_EQ(label->ref.type, type);
        EXPECT_EQ(label->shape, "circle");
        EXPECT_EQ(label->colour, colour);
        EXPECT_EQ(label->size, 3);
        EXPECT_EQ(label->integer, 0);
    }
    EXPECT_EQ(layer.shipIcon.ref.type, "AISSHIPTYPE");
    EXPECT_EQ(layer.shipIcon.image, "AIS_Ship");
    EXPECT_THAT(chart.calls, IsEmpty());
}

TEST_F(VoyageLayerTest, SetupAddsTheLayerAndStylesAnew) {
    layer.mainLine.colour = 1;
    EXPECT_EQ(layer.SetupLayer(), 0);
    EXPECT_EQ(layer.SetupLayer(), 0);
    EXPECT_THAT(chart.calls, ElementsAre("layer VOYAGE", "layer VOYAGE"));
    EXPECT_EQ(layer.mainLine.colour, 0x6464E9);
}

TEST_F(VoyageLayerTest, LayerHasTheChartsDefaults) {
    EXPECT_EQ(layer.SetupLayer(), 0);
    const auto& sent = chart.layers.at(0);
    EXPECT_THAT(sent.integers, ElementsAre(1, 0, 0));
    EXPECT_EQ(sent.fontFace + sent.pointShape + sent.lineStyle + sent.fillBorderStyle,
              "Arialcirclesolidsolid");
    EXPECT_EQ(sent.fontSize, 12);
    EXPECT_THAT(sent.reserved, Each(0));
    EXPECT_THAT((std::vector<int>{sent.pointColour, sent.lineColour, sent.fillColour, sent.fillBorderColour}),
                Each(0));
    EXPECT_THAT((std::vector<int>{sent.pointSize, sent.lineWidth, sent.fillBorderWidth}), Each(3));
    EXPECT_EQ(sent.fillOpacity, -1.0);
}

TEST_F(VoyageLayerTest, ClearsTypesInOrder) {
    EXPECT_EQ(layer.ClearRouteObjects(), 0);
    EXPECT_THAT(chart.calls, ElementsAre("clear VOYAGE/VOYAGETYPE/", "clear VOYAGE/VOYLINETYPE/",
                                         "clear VOYAGE/RPOINTTYPE/"));
    chart.calls.clear();
    EXPECT_EQ(layer.ClearAllObjects(), 0);
    EXPECT_THAT(chart.calls, ElementsAre("clear VOYAGE/VOYAGETYPE/", "clear VOYAGE/VOYLINETYPE/",
                                         "clear VOYAGE/RPOINTTYPE/", "clear VOYAGE/AISSHIPTYPE/",
                                         "clear VOYAGE/VOYPOSTBOOKLINETYPE/"));
    chart.calls.clear();
    layer.ClearAlternatives();
    EXPECT_THAT(chart.calls, ElementsAre("clear VOYAGE/RPOINTTYPE/"));
}

TEST_F(VoyageLayerTest, ClearingAVoyageMakesAllItsCalls) {
    std::string lines = "delete VOYAGE";
    std::string ships = "delete VOYAGE";
    for (const auto* id : {"v_0", "v_1", "v_2", "v_3", "v_4", "v_5", "v_6", "v_7", "v_8", "v_9", "v"}) {
        lines += std::string(" /VOYPOSTBOOKLINETYPE/") + id;
        ships += std::string(" /AISSHIPTYPE/") + id;
    }
    EXPECT_EQ(layer.ClearVoyageObjects("v"), 0);
    ASSERT_EQ(chart.calls.size(), 10);
    for (std::size_t i = 0; i < chart.calls.size(); i += 2) {
        EXPECT_EQ(chart.calls[i], lines);
        EXPECT_EQ(chart.calls[i + 1], ships);
    }
    EXPECT_EQ(layer.ClearVoyageObjects(""), -1);
    EXPECT_EQ(chart.calls.size(), 10);
}

TEST_F(VoyageLayerTest, ShipImageIsRegisteredForEveryPlacing) {
    Util::FileUtl::SetCurrentAppDirectory("/data");
    layer.shipIcon.ref.id = "v";
    EXPECT_EQ(layer.PlaceShip(layer.shipIcon, "1,2"), 0);
    EXPECT_EQ(layer.PlaceShip(layer.shipIcon, "3,4"), 0);
    EXPECT_THAT(chart.calls, ElementsAre("register AIS_Ship /data/businessdata/seaplan/ship.png",
                                         "image VOYAGE/AISSHIPTYPE/v AIS_Ship 1,2",
                                         "register AIS_Ship /data/businessdata/seaplan/ship.png",
                                         "image VOYAGE/AISSHIPTYPE/v AIS_Ship 3,4"));
    EXPECT_EQ(layer.PlaceShip(layer.shipIcon, ""), -1);
    EXPECT_EQ(chart.calls.size(), 4);
}

TEST_F(VoyageLayerTest, AlternativeLabelTellsThePoint) {
    layer.AddAlternativeLabel({"105", "Cape", "1,2"});
    EXPECT_THAT(chart.calls, ElementsAre("label VOYAGE/RPOINTTYPE/105 Cape 1,2"));
    EXPECT_EQ(chart.labels[0].colour, 0xFF00FF);
}

TEST_F(VoyageLayerTest, ExtentIsSentUnlessSwitchedOffOrEmpty) {
    EXPECT_EQ(layer.SetExtent({"100,0", "170,0"}), 0);
    EXPECT_THAT(chart.calls, ElementsAre("extent 172 2 97 -2"));
    chart.calls.clear();
    EXPECT_EQ(layer.SetExtent({}), 0);
    EXPECT_EQ(layer.SetExtent({"nowhere"}), 0);
    layer.autoExtent = false;
    EXPECT_EQ(layer.SetExtent({"100,0"}), 0);
    EXPECT_THAT(chart.calls, IsEmpty());
}

TEST_F(VoyageLayerTest, DrawingWithoutAChartIsNoFailure) {
    Core::BusTesting::ForgetAll();
    EXPECT_EQ(layer.DrawBook("v", {"1,0", "2,0"}), 0);
    EXPECT_EQ(layer.ClearVoyageObjects("v"), 0);
    EXPECT_EQ(layer.PlaceShip(layer.shipIcon, "1,2"), 0);
}

}  // namespace
}  // namespace Tarvik::Seaplan

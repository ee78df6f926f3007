// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/interface/LoadString.h>
#include <tarvik/util/FileUtl.h>

#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/chart/tests/ChartRecording.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kNoDatabase = "/nonexistent/points.db";

struct RouteDrawing : ::testing::Test {
    Testing::ChartRecording chart;
    VoyageLayer layer;
    PortDirectory ports{{}, {}, {}, {{"118", {"118", "Cape", "5,5"}}}};
};

RouteStops TwoLegs() {
    RouteStops stops(3);
    stops[1].routes = {{"1", "", "", "1,0|2,0", 0}, {"2", "", "", "2,0|3,0", 0}};
    stops[2].routes = {{"3", "", "", "3,0|4,0", 0}};
    return stops;
}

TEST_F(RouteDrawing, LineNumbersItsPiecesByMode) {
    const PointTexts points{"170,0", "180,1", "-180,1", "-170,2"};
    layer.sailedLine.ref.id = "v";
    EXPECT_EQ(layer.DrawLine(layer.sailedLine, points, 0), 0);
    layer.remainingLine.ref.id = "v";
    EXPECT_EQ(layer.DrawLine(layer.remainingLine, points, 1), 0);
    EXPECT_THAT(chart.calls, ElementsAre("line VOYAGE/VOYPOSTBOOKLINETYPE/v_0 170,0 179.99,1",
                                         "line VOYAGE/VOYPOSTBOOKLINETYPE/v_1 -179.99,1 -170,2",
                                         "line VOYAGE/VOYPOSTBOOKLINETYPE/v_5 170,0 179.99,1",
                                         "line VOYAGE/VOYPOSTBOOKLINETYPE/v_6 -179.99,1 -170,2"));
    EXPECT_EQ(chart.lines[0].style, "dashed");
    EXPECT_EQ(chart.lines[2].style, "solid");
    EXPECT_EQ(layer.sailedLine.ref.id, "v");
    EXPECT_THAT(layer.sailedLine.points, IsEmpty());
}

TEST_F(RouteDrawing, LineRefusesOnePointAndOtherModes) {
    layer.sailedLine.points = {"old"};
    EXPECT_EQ(layer.DrawLine(layer.sailedLine, {"1,0"}, 0), -1);
    EXPECT_THAT(layer.sailedLine.points, IsEmpty());
    EXPECT_EQ(layer.DrawLine(layer.sailedLine, {"1,0"}, 2), -1) << "the points are looked at before the mode";
    EXPECT_EQ(layer.DrawLine(layer.sailedLine, {"1,0", "2,0"}, 2), -4);
    EXPECT_EQ(layer.DrawLine(layer.sailedLine, {"1,0", "1,0"}, 0), 0);
    EXPECT_THAT(chart.calls, IsEmpty());
}

TEST_F(RouteDrawing, MorePiecesThanTheCleaningReachesAreDrawnAllTheSame) {
    PointTexts points;
    for (int i = 0; i < 6; ++i) {
        points.insert(points.end(), {"170,0", "180,0", "-180,0", "-170,0", "-180,1", "180,1"});
    }
    layer.remainingLine.ref.id = "v";
    EXPECT_EQ(layer.DrawLine(layer.remainingLine, points, 1), 0);
    EXPECT_GT(chart.lines.size(), 5);
    EXPECT_EQ(chart.lines[5].ref.id, "v_10");
}

TEST_F(RouteDrawing, RouteIsOneLineWithItsLabels) {
    auto stops = TwoLegs();
    stops[2].rp_groups = {{2, "118", "a,b", {}}};
    layer.mainLine.ref.id = "left over";
    EXPECT_EQ(layer.DrawRoute(stops, ports), 0);
    EXPECT_THAT(chart.calls,
                ElementsAre("layer VOYAGE", "clear VOYAGE/VOYAGETYPE/", "clear VOYAGE/VOYLINETYPE/",
                            "clear VOYAGE/RPOINTTYPE/", "line VOYAGE/VOYLINETYPE/_0 1,0 2,0 3,0 4,0",
                            "extent 6 2 -2 -2", "label VOYAGE/VOYAGETYPE/118 Cape 5,5"));
}

TEST_F(RouteDrawing, FirstPointOfASegmentIsTakenOnlyAtTheFirstOfEachStop) {
    auto stops = TwoLegs();
    stops[1].routes[1].pointset = "9,9|3,0";
    stops[2].routes[0].pointset = "8,8|4,0";
    EXPECT_EQ(layer.DrawRoute(stops, ports), 0);
    EXPECT_THAT(chart.lines.at(0).points, ElementsAre("1,0", "2,0", "3,0", "8,8", "4,0"));
}

TEST_F(RouteDrawing, RouteTellsWhichStepFailed) {
    EXPECT_EQ(layer.DrawRoute(RouteStops(1), ports), -1);
    EXPECT_THAT(chart.calls, IsEmpty());
    EXPECT_EQ(layer.DrawRoute(RouteStops(2), ports), -5);
    auto stops = TwoLegs();
    stops[1].rp_groups = {{1, "999", "a,b", {}}};
    EXPECT_EQ(layer.DrawRoute(stops, ports), -7);
    EXPECT_EQ(chart.lines.size(), 1) << "what was drawn stays";
}

TEST_F(RouteDrawing, LabelsNeedTheRoutePointsOnlyWhenThereAreGroups) {
    PortDirectory none{kNoDatabase};
    EXPECT_EQ(layer.DrawRoutePointLabels(TwoLegs(), none), 0);
    auto stops = TwoLegs();
    stops[1].rp_groups = {{1, "118", "a,b", {}}, {1, "999", "a,b", {}}};
    EXPECT_EQ(layer.DrawRoutePointLabels(stops, none), -2);
    EXPECT_EQ(layer.DrawRoutePointLabels(RouteStops(1), none), -1);
    EXPECT_EQ(layer.DrawRoutePointLabels(stops, ports), -3);
    EXPECT_EQ(chart.labels.size(), 1);
}

TEST_F(RouteDrawing, BookIsTheRemainingLine) {
    EXPECT_EQ(layer.DrawBook("v", {"1,0", "2,0", "3,0"}), 0);
    EXPECT_THAT(chart.calls,
                ElementsAre("layer VOYAGE", "clear VOYAGE/VOYAGETYPE/", "clear VOYAGE/VOYLINETYPE/",
                            "clear VOYAGE/RPOINTTYPE/", "line VOYAGE/VOYPOSTBOOKLINETYPE/v_5 1,0 2,0 3,0",
                            "extent 5 2 -2 -2"));
}

TEST_F(RouteDrawing, ShipAndTrackAreOneRemainingLine) {
    Util::FileUtl::SetCurrentAppDirectory("/data");
    EXPECT_EQ(layer.DrawShipAndTrack("v", "2,0", {"1,0", "1,0", "2,0"}, {"2,0", "3,0"}), 0);
    EXPECT_THAT(chart.calls, ElementsAre("register AIS_Ship /data/businessdata/seaplan/ship.png",
                                         "image VOYAGE/AISSHIPTYPE/v AIS_Ship 2,0",
                                         "line VOYAGE/VOYPOSTBOOKLINETYPE/v_5 1,0 2,0 3,0"));
    EXPECT_EQ(chart.lines[0].style, "solid");
}

TEST_F(RouteDrawing, ShipWithoutTrackIsOnlyAnIcon) {
    EXPECT_EQ(layer.DrawShipAndTrack("v", "2,0", {"1,0"}, {}), 0);
    EXPECT_EQ(chart.calls.size(), 2);
    EXPECT_THAT(chart.lines, IsEmpty());
    EXPECT_EQ(layer.DrawShipAndTrack("v", "", {"1,0"}, {"2,0"}), -1);
    EXPECT_EQ(chart.calls.size(), 2);
}

// "180" begins the first piece, so the route from there is one line.
TEST_F(RouteDrawing, LineThatBeginsAtTheDateLineIsOnePiece) {
    EXPECT_EQ(layer.DrawLine(layer.sailedLine, {"180,0", "170,0"}, 0), 0);
    EXPECT_THAT(chart.calls, ElementsAre("line VOYAGE/VOYPOSTBOOKLINETYPE/_0 179.99,0 170,0"));
}

TEST_F(RouteDrawing, BookNeedsTwoRowsAndAVoyage) {
    EXPECT_EQ(layer.DrawBook("v", {"1,0"}), -1);
    EXPECT_THAT(chart.calls, IsEmpty());
    EXPECT_EQ(layer.DrawBook("", {"1,0", "2,0"}), -4);
    EXPECT_EQ(chart.calls.size(), 4) << "layer and cleaning come before the id is looked at";
}

/// A language that has one point's name.
class CapeInChinese final : public Interface::LanguageSource {
  public:
    CapeInChinese() { Set(this); }
    ~CapeInChinese() override { Set(nullptr); }
    CapeInChinese(const CapeInChinese&) = delete;
    CapeInChinese& operator=(const CapeInChinese&) = delete;
    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string&,
                                       const std::u16string& key) const override {
        return section == u"RoutePoints" && key == u"118" ? std::optional<std::u16string>(u"海角")
                                                          : std::nullopt;
    }
};

TEST_F(RouteDrawing, PointsAreNamedInTheLanguageInForceOrElseAsTheTableHasThem) {
    layer.AddAlternativeLabel({"118", "Cape", "5,5"});
    const CapeInChinese texts;
    layer.AddAlternativeLabel({"118", "Cape", "5,5"});
    layer.AddAlternativeLabel({"119", "Strait", "6,5"});
    ASSERT_EQ(chart.labels.size(), 3);
    EXPECT_EQ(chart.labels[0].label, "Cape");
    EXPECT_EQ(chart.labels[1].label, "海角");
    EXPECT_EQ(chart.labels[1].ref.id, "118");
    EXPECT_EQ(chart.labels[2].label, "Strait");
}

}  // namespace
}  // namespace Tarvik::Seaplan

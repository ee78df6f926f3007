// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/seamap/core/ChartObjects.h"

namespace Tarvik::Seamap {

namespace {

Interface::TrvMapLineParams LineOf(const std::string& id, std::vector<std::string> points) {
    return {{"L", id, "T"}, std::move(points), 0x6464E9, 2, "solid"};
}

Interface::TrvMapPointParams LabelOf(const std::string& id, const std::string& position,
                                     const std::string& text) {
    return {{"L", id, "P"}, text, position, 0, "circle", 0xFF, 3};
}

const ChartLine& LineAt(const ChartObjects& objects, const std::string& id) {
    return std::get<ChartLine>(objects.Find({"L", "T", id})->shape);
}

TEST(ChartObjects, AnObjectUnderATakenKeyReplacesTheOldOneInItsPlace) {
    ChartObjects objects;
    ASSERT_TRUE(objects.AddLabel(LabelOf("1", "1,1", "old")));
    ASSERT_TRUE(objects.AddLabel(LabelOf("2", "2,2", "other")));
    ASSERT_TRUE(objects.AddLabel(LabelOf("1", "5,6", "new")));
    ASSERT_EQ(objects.Count(), 2u);
    const auto& first = std::get<ChartLabel>(objects.InOrder().begin()->second.shape);
    EXPECT_EQ(first.text, "new");
    EXPECT_EQ(first.position, (GeoPoint{5, 6}));
}

TEST(ChartObjects, LayerTypeAndIdTellObjectsApart) {
    ChartObjects objects;
    for (const char* layer : {"A", "B"}) {
        for (const char* type : {"S", "T"}) {
            for (const char* id : {"1", "2"}) {
                objects.AddImage({{layer, id, type}, "ship", "1,2"});
            }
        }
    }
    EXPECT_EQ(objects.Count(), 8u);
}

TEST(ChartObjects, ALineCarriesItsStyle) {
    ChartObjects objects;
    auto line = LineOf("1", {"0,0", "10,0"});
    line.style = "dashed";
    ASSERT_TRUE(objects.AddLine(line));
    EXPECT_TRUE(LineAt(objects, "1").dashed);
    EXPECT_EQ(LineAt(objects, "1").colour, 0x6464E9);
    EXPECT_EQ(LineAt(objects, "1").width, 2);
}

TEST(ChartObjects, ALineGoesTheShortWayOverTheDateLine) {
    ChartObjects objects;
    ASSERT_TRUE(objects.AddLine(LineOf("1", {"179,0", "-179,0", "-170,0"})));
    const ChartLine& line = LineAt(objects, "1");
    EXPECT_NEAR(line.points[1].x - line.points[0].x, 2 / 360.0, 1e-12);
    EXPECT_NEAR(line.maxX - line.minX, 11 / 360.0, 1e-12);
    ASSERT_TRUE(objects.AddLine(LineOf("2", {"-179,0", "179,0"})));
    EXPECT_LT(LineAt(objects, "2").points[1].x, LineAt(objects, "2").points[0].x);
}

TEST(ChartObjects, ALineIsStraightenedForSmallWorldsOnly) {
    ChartObjects objects;
    auto line = LineOf("1", {});
    for (int i = 0; i <= 200; ++i) {
        line.points.push_back(std::to_string(i * 0.1) + "," + (i == 100 ? "5" : "0"));
    }
    ASSERT_TRUE(objects.AddLine(line));
    const ChartLine& kept = LineAt(objects, "1");
    EXPECT_LT(kept.PointsFor(2000).size(), 12U);
    EXPECT_GE(kept.PointsFor(2000).size(), 5U) << "ends, peak and its feet";
    EXPECT_EQ(kept.PointsFor(1 << 20).size(), 201U);
    EXPECT_EQ(kept.PointsFor(2000).front().x, kept.points.front().x);
    EXPECT_NEAR(kept.PointsFor(2000).back().x, kept.points.back().x, 1e-12);
}

TEST(ChartObjects, TheRevisionCountsChangesButNotThoseOfShips) {
    ChartObjects objects;
    objects.AddLine(LineOf("1", {"0,0", "1,1"}));
    const auto before = objects.Revision();
    objects.Ships().Set({"AIS", {{"1", "", 3, 4}}});
    EXPECT_EQ(objects.Revision(), before);
    objects.StandOut("1");
    EXPECT_GT(objects.Revision(), before);
    const auto stood = objects.Revision();
    objects.Remove({"L", "T", "1"});
    EXPECT_GT(objects.Revision(), stood);
}

TEST(ChartObjects, PointsThatCannotBeReadAreLeftOut) {
    ChartObjects objects;
    EXPECT_TRUE(objects.AddLine(LineOf("1", {"0,0", "nonsense", "5", "10,0", "1,91"})));
    EXPECT_EQ(LineAt(objects, "1").points.size(), 2u);
    EXPECT_FALSE(objects.AddLabel(LabelOf("1", "x,y", "bad")));
    EXPECT_FALSE(objects.AddImage({{"L", "1", "I"}, "ship", ""}));
    EXPECT_EQ(objects.Count(), 1u);
}

TEST(ChartObjects, ALineWithTooFewPointsTakesTheOldOneAway) {
    ChartObjects objects;
    ASSERT_TRUE(objects.AddLine(LineOf("1", {"0,0", "1,1"})));
    EXPECT_FALSE(objects.AddLine(LineOf("1", {"0,0"})));
    EXPECT_EQ(objects.Count(), 0u);
}

TEST(ChartObjects, RemovesByList) {
    ChartObjects objects;
    for (const char* id : {"1", "2", "3"}) {
        objects.AddLine(LineOf(id, {"0,0", "1,1"}));
    }
    Interface::TrvMapObjectRef refs[] = {
        {"", "1", "T"}, {"", "3", "T"}, {"", "unknown", "T"}, {"", "2", "other"}};
    EXPECT_EQ(objects.Remove(Interface::TrvMapObjectList{"L", refs, 4}), 2);
    EXPECT_EQ(objects.Count(), 1u);
    EXPECT_NE(objects.Find({"L", "T", "2"}), nullptr);
    EXPECT_EQ(objects.Remove(Interface::TrvMapObjectList{"L", nullptr, 3}), 0);
    EXPECT_EQ(objects.Remove(Interface::TrvMapObjectList{"other", refs, 4}), 0);
}

TEST(ChartObjects, RemovesAllOfATypeInOneLayer) {
    ChartObjects objects;
    objects.AddLine(LineOf("1", {"0,0", "1,1"}));
    objects.AddLine(LineOf("2", {"0,0", "1,1"}));
    objects.AddLabel(LabelOf("1", "1,1", "stays"));
    // The neighbours of the type in the order of the keys.
    objects.AddImage({{"K", "1", "T"}, "ship", "1,1"});
    objects.AddImage({{"L", "1", "S"}, "ship", "1,1"});
    objects.AddImage({{"L", "1", "TT"}, "ship", "1,1"});
    objects.AddImage({{"LL", "1", "T"}, "ship", "1,1"});
    EXPECT_EQ(objects.RemoveType("L", "T"), 2);
    EXPECT_EQ(objects.RemoveType("L", "T"), 0);
    EXPECT_EQ(objects.RemoveType("M", "P"), 0);
    EXPECT_EQ(objects.Count(), 5u);
    EXPECT_FALSE(objects.RemoveLayer("KK"));
    EXPECT_TRUE(objects.RemoveLayer("K"));
    EXPECT_EQ(objects.Count(), 4u);
}

TEST(ChartObjects, RemovingALayerTakesItsObjects) {
    ChartObjects objects;
    Interface::TrvMapLayerParams layer;
    layer.layer = "L";
    objects.AddLayer(layer);
    objects.AddLabel(LabelOf("1", "1,1", "goes"));
    objects.AddImage({{"M", "1", "I"}, "ship", "1,1"});
    objects.AddLayer(layer);
    EXPECT_EQ(objects.Count(), 2u) << "adding a layer again keeps its objects";
    EXPECT_TRUE(objects.RemoveLayer("L"));
    EXPECT_FALSE(objects.HasLayer("L"));
    EXPECT_EQ(objects.Count(), 1u);
    EXPECT_FALSE(objects.RemoveLayer("L"));
}

TEST(ChartObjects, RemembersWhereImagesAre) {
    ChartObjects objects;
    objects.RegisterImage("ship", "/a.png");
    objects.RegisterImage("ship", "/b.png");
    EXPECT_EQ(objects.ImagePath("ship"), "/b.png");
    EXPECT_EQ(objects.ImagePath("other"), "");
}

TEST(ChartObjects, TellsItsObserverOfChangesOnly) {
    ChartObjects objects;
    int changes = 0;
    objects.SetObserver([&] { ++changes; });
    objects.AddLabel(LabelOf("1", "1,1", "a"));
    EXPECT_EQ(changes, 1);
    objects.Remove(ObjectKey{"L", "P", "none"});
    objects.RemoveType("L", "none");
    EXPECT_EQ(changes, 1);
    objects.Remove(ObjectKey{"L", "P", "1"});
    EXPECT_EQ(changes, 2);
}

TEST(ChartObjects, PointsCoverEveryKindOfObject) {
    ChartObjects objects;
    objects.AddLine(LineOf("1", {"10,0", "20,0"}));
    objects.AddLabel(LabelOf("1", "30,5", "a"));
    objects.AddImage({{"L", "1", "I"}, "ship", "40,6"});
    const auto points = objects.Points();
    ASSERT_EQ(points.size(), 4u);
    EXPECT_NEAR(points[0].x, 10, 1e-9);
    EXPECT_EQ(points[3], (GeoPoint{40, 6}));
}

TEST(StandOut, TheVoyagesLinesAreLoudAndTheOthersOfTheirTypeQuiet) {
    using Tone = ChartObjects::Tone;
    ChartObjects objects;
    const auto add = [&objects](const char* type, const char* id) {
        objects.AddLine({{"VOYAGE", id, type}, {"0,0", "1,1"}, 0, 2, "solid"});
    };
    add("BOOK", "7_5");
    add("BOOK", "70_5");
    add("BOOK", "8_5");
    add("ROUTE", "_0");
    const auto tone = [&objects](const char* type, const char* id) {
        return objects.ToneOf({"VOYAGE", type, id});
    };
    EXPECT_EQ(tone("BOOK", "7_5"), Tone::Plain);
    objects.StandOut("7");
    EXPECT_EQ(tone("BOOK", "7_5"), Tone::Loud);
    EXPECT_EQ(tone("BOOK", "70_5"), Tone::Quiet) << "another voyage whose id begins alike";
    EXPECT_EQ(tone("BOOK", "8_5"), Tone::Quiet);
    EXPECT_EQ(tone("ROUTE", "_0"), Tone::Plain) << "what is being calculated is no voyage yet";
    objects.StandOut("9");
    EXPECT_EQ(tone("BOOK", "8_5"), Tone::Plain) << "nothing of it is on the chart";
    objects.StandOut("");
    EXPECT_EQ(tone("BOOK", "7_5"), Tone::Plain);
}

}  // namespace
}  // namespace Tarvik::Seamap

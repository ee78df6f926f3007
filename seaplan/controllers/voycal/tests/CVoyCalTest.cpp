// SPDX-License-Identifier: MIT
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ChartRecords.h>
#include <tarvik/interface/ValueDictionary.h>

#include "seaplan/controllers/voycal/CVoyCal.h"
#include "seaplan/controllers/voycal/VoyCalReply.h"
#include "seaplan/controllers/voycal/tests/VoyCalChart.h"
#include "tarvik/src/core/BusTesting.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Two ports with a route point between them that has two alternatives.
constexpr const char* kReply =
    R"([{point_cd:"41"},{point_cd:"42",rp_id_str:"7",routes:[{from_cd:"41",end_cd:"7",pointset:"0,0|1,1"},)"
    R"({from_cd:"7",end_cd:"42",pointset:"1,1|2,0"}],rp_groups:["7=41,42;8|9|7"]}])";

struct CVoyCalTest : ::testing::Test {
    TestSupport::DataFolder folder;
    Testing::VoyCalChart chart;
    std::optional<CVoyCal> calculator;

    CVoyCalTest() {
        folder.WritePoints({{"7", "Seven", "1", "1", false},
                            {"8", "Eight", "1.5", "5", false},
                            {"9", "Nine", "1.7", "-5", false},
                            {"41", "Port", "0", "0"}});
        chart.ports["41"] = {"", "Alpha", 0, 0};
        chart.ports["42"] = {"", "Beta", 2, 0};
        Make(kReply);
    }
    void Make(const std::string& reply) {
        calculator.reset();
        PortDirectory ports(folder.PointsFile().string());
        calculator.emplace(ports, reply);
    }
    const VoyCalResult* Calculate(const std::string& ids) {
        chart.calls.clear();
        return static_cast<const VoyCalResult*>(Interface::Call(Bus::CalculateVoyage, &ids));
    }
    void Click(const std::string& id) {
        chart.calls.clear();
        Interface::Raise(Bus::ClickRPoint, &id);
    }
    void Choose(const std::string& id) {
        chart.calls.clear();
        Interface::Raise(Bus::ClickRRPoint, &id);
    }
};

TEST_F(CVoyCalTest, LayerIsThereAsLongAsTheCalculator) {
    EXPECT_THAT(chart.calls, ElementsAre("layer VOYAGE_LAYER"));
    chart.calls.clear();
    calculator.reset();
    EXPECT_THAT(chart.calls, ElementsAre("remove VOYAGE_LAYER"));
    for (const auto* name : {Bus::CalculateVoyage.name, Bus::ClickRPoint.name, Bus::ClickRRPoint.name}) {
        EXPECT_FALSE(Core::TrvKernel::Instance()->IsBound(name)) << name;
    }
}

TEST_F(CVoyCalTest, CalculationDrawsLineAndLabels) {
    chart.view = Interface::TrvMapExtent{0, 0, 1, 1};
    const auto* result = Calculate("41,42");
    ASSERT_EQ(result, &calculator->Result());
    EXPECT_EQ(result->valid, 1);
    EXPECT_EQ(result->crossesDateLine, 0);
    EXPECT_THAT(chart.calls,
                ElementsAre("port 41", "port 42", "line VOYAGE_LAYER/VOYAGE", "view", "extent 0 0 2 1",
                            "label VOYAGE_LAYER/RPOINT/7 Seven 1.0000,1.0000"));
    EXPECT_THAT(result->mainLine.points, ElementsAre("0.0000,0.0000", "1.0000,1.0000", "2.0000,0.0000"));
    EXPECT_EQ(chart.lines.at(0).ref.id, result->mainLine.ref.id);
    EXPECT_THAT(calculator->Ids(), ElementsAre("41", "42"));
    EXPECT_EQ(calculator->Ports().at(1).point.name, "Beta");
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), 0);
}

TEST_F(CVoyCalTest, ViewThatHoldsTheRouteStays) {
    chart.view = Interface::TrvMapExtent{-10, -10, 10, 10};
    Calculate("41,42");
    EXPECT_THAT(chart.CallsOf("extent"), IsEmpty());
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), 0);
}

TEST_F(CVoyCalTest, ChartWithoutViewStillGetsItsLabels) {
    EXPECT_EQ(Calculate("41,42")->valid, 1);
    EXPECT_THAT(chart.CallsOf("extent"), IsEmpty());
    EXPECT_EQ(chart.CallsOf("label").size(), 1);
}

TEST_F(CVoyCalTest, RouteAcrossTheDateLineIsTwoLinesAndNoView) {
    Make(R"([{point_cd:"41"},{point_cd:"42",routes:[{pointset:"170,0|180,1|-180,1|-170,2"}]}])");
    chart.view = Interface::TrvMapExtent{0, 0, 1, 1};
    const auto* result = Calculate("41,42");
    EXPECT_EQ(result->crossesDateLine, 1);
    EXPECT_THAT(result->mainLine.points, ElementsAre("170.0000,0.0000", "179.9900,1.0000"));
    EXPECT_THAT(result->eastLine.points, ElementsAre("-179.9900,1.0000", "-170.0000,2.0000"));
    EXPECT_NE(result->mainLine.ref.id, result->eastLine.ref.id);
    EXPECT_EQ(result->eastLine.colour, 39423);
    EXPECT_EQ(chart.lines.size(), 2);
    EXPECT_THAT(chart.CallsOf("view"), IsEmpty());
    EXPECT_THAT(chart.CallsOf("extent"), IsEmpty());
}

TEST_F(CVoyCalTest, FewerThanTwoPortsAskTheChartNothing) {
    for (const auto* ids : {"", "41"}) {
        EXPECT_EQ(Calculate(ids)->valid, 0) << ids;
        EXPECT_THAT(chart.calls, IsEmpty()) << ids;
        EXPECT_THAT(calculator->Ids(), IsEmpty()) << ids;
    }
    EXPECT_NE(Interface::Call(Bus::CalculateVoyage, nullptr), nullptr);
}

TEST_F(CVoyCalTest, FailedCalculationHasNeitherPortsNorLine) {
    for (const auto* ids : {"41,99", "42,41", "41,42,43", "41,,42"}) {
        Calculate("41,42");
        const auto* result = Calculate(ids);
        EXPECT_EQ(result->valid, 0) << ids;
        EXPECT_THAT(result->mainLine.points, IsEmpty()) << ids;
        EXPECT_THAT(calculator->Ids(), IsEmpty()) << ids;
        EXPECT_EQ(calculator->Ports().size(), 0) << ids;
        EXPECT_THAT(chart.CallsOf("line"), IsEmpty()) << ids;
    }
}

TEST_F(CVoyCalTest, ClickShowsAlternativesAndAnotherHidesThem) {
    chart.view = Interface::TrvMapExtent{0, 0, 2, 1};
    Calculate("41,42");
    Click("7");
    EXPECT_EQ(calculator->SelectedPoint(), "7");
    EXPECT_THAT(chart.calls,
                ElementsAre("label VOYAGE_LAYER/RRPOINT/8 Eight 1.5000,5.0000",
                            "label VOYAGE_LAYER/RRPOINT/9 Nine 1.7000,-5.0000", "view", "extent 0 -5 2 5"))
        << "the point itself is not offered";
    Click("7");
    EXPECT_THAT(chart.calls, ElementsAre("clear VOYAGE_LAYER/RRPOINT"));
    EXPECT_EQ(calculator->SelectedPoint(), "");
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), 0);
}

TEST_F(CVoyCalTest, ClickOnAPointWithoutGroupRemovesWhatWasShown) {
    Calculate("41,42");
    Click("8");
    EXPECT_THAT(chart.calls, IsEmpty());
    EXPECT_EQ(calculator->SelectedPoint(), "");
    Click("7");
    Click("8");
    EXPECT_THAT(chart.calls, ElementsAre("clear VOYAGE_LAYER/RRPOINT"));
    EXPECT_EQ(calculator->SelectedPoint(), "") << "nothing is selected that has no alternatives";
}

TEST_F(CVoyCalTest, OtherPointTakesTheSelectionOver) {
    Make(
        R"([{point_cd:"41"},{point_cd:"42",routes:[{pointset:"0,0|1,0"}],rp_groups:["7=a,b;9","8=c,d;9"]}])");
    Calculate("41,42");
    Click("7");
    Click("8");
    EXPECT_THAT(chart.CallsOf("clear"), ElementsAre("clear VOYAGE_LAYER/RRPOINT"));
    EXPECT_EQ(chart.CallsOf("label").size(), 1);
    EXPECT_EQ(calculator->SelectedPoint(), "8");
}

TEST_F(CVoyCalTest, ChosenAlternativeCalculatesAnewAndItsLockStays) {
    Calculate("41,42");
    Click("7");
    Choose("8");
    EXPECT_THAT(chart.calls,
                ElementsAre("clear VOYAGE_LAYER/RRPOINT", "clear VOYAGE_LAYER/RPOINT",
                            "clear VOYAGE_LAYER/VOYAGE", "port 41", "port 42", "line VOYAGE_LAYER/VOYAGE",
                            "view", "label VOYAGE_LAYER/RPOINT/7 Seven 1.0000,1.0000"));
    EXPECT_EQ(calculator->Result().valid, 1);
    EXPECT_THAT(calculator->Ids(), ElementsAre("41", "42|7|8=41,42"));
    EXPECT_EQ(calculator->SelectedPoint(), "");
    Click("7");
    Choose("9");
    EXPECT_THAT(calculator->Ids(), ElementsAre("41", "42|7|9=41,42"));
    EXPECT_THAT(chart.CallsOf("port"), ElementsAre("port 41", "port 42"))
        << "ports are asked for by their ids";
}

TEST_F(CVoyCalTest, ChoosingThePointItselfOrWithoutSelectionCalculatesNothing) {
    Calculate("41,42");
    Click("7");
    Choose("7");
    EXPECT_EQ(chart.CallsOf("clear").size(), 3);
    EXPECT_THAT(chart.CallsOf("port"), IsEmpty());
    EXPECT_EQ(calculator->SelectedPoint(), "");
    Choose("8");
    EXPECT_THAT(chart.CallsOf("port"), IsEmpty()) << "nothing is selected any more";
    EXPECT_THAT(calculator->Ids(), ElementsAre("41", "42"));
    EXPECT_EQ(calculator->Result().valid, 1);
}

TEST_F(CVoyCalTest, ClicksWithoutAnIdDoNothing) {
    Calculate("41,42");
    chart.calls.clear();
    Interface::Raise(Bus::ClickRPoint, nullptr);
    Interface::Raise(Bus::ClickRRPoint, nullptr);
    EXPECT_THAT(chart.calls, IsEmpty());
}

TEST_F(CVoyCalTest, UnreadableDataBaseLeavesNoRoutePoints) {
    calculator.reset();
    PortDirectory none("/nonexistent/points.db");
    calculator.emplace(none, kReply);
    EXPECT_EQ(Calculate("41,42")->valid, 0) << "the group's point is unknown";
}

TEST_F(CVoyCalTest, SampleIsTheRouteOfItsThreePorts) {
    std::vector<TestSupport::PointTableRow> rows;
    for (const auto* id : {"101", "119", "140", "163", "179"}) {
        rows.push_back({id, std::string("point ") + id, "1", "2", false});
    }
    folder.WritePoints(rows);
    Make(SampleReply());
    for (const auto* id : {"40358", "41117", "40430"}) {
        chart.ports[id] = {"", id, 1, 2};
    }
    EXPECT_EQ(Calculate("40358,41117")->valid, 0);
    EXPECT_EQ(Calculate("41117,40358,40430")->valid, 0);
    const auto* result = Calculate("40358,41117,40430");
    EXPECT_EQ(result->valid, 1);
    EXPECT_EQ(result->mainLine.points.front(), "117.7500,38.9833");
    EXPECT_EQ(result->mainLine.points.back(), "9.9700,53.5400");
    EXPECT_EQ(chart.CallsOf("label").size(), 5);
    EXPECT_EQ(chart.CallsOf("line").size(), 1);
}

/// A dictionary with one site.
class Sites : public Interface::ValueDictionary {
  public:
    Sites() { Set(this); }
    ~Sites() override { Set(nullptr); }
    std::string KeyOfValue(const std::string&, const std::string&, int) const override { return ""; }
    std::string ValueOfKey(const std::string& path, const std::string& key, int language) const override {
        return path == "/trvwebsites" && key == "help" && language == 1033 ? "https://help" : "";
    }
};

TEST(VoyCalSites, AddressOrFallback) {
    const Sites sites;
    EXPECT_EQ(CVoyCal::SiteAddress("help", "none"), "https://help");
    EXPECT_EQ(CVoyCal::SiteAddress("other", "none"), "none");
}

TEST(VoyCalSites, LanguagesAsSitesWriteThem) {
    EXPECT_EQ(CVoyCal::LanguageCode(1028), "zh-TW");
    EXPECT_EQ(CVoyCal::LanguageCode(2052), "zh-CN");
    EXPECT_EQ(CVoyCal::LanguageCode(1033), "en-US");
    EXPECT_EQ(CVoyCal::LanguageCode(0), "en-US");
}

}  // namespace
}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gmock/gmock.h>

#include "host/data/builder/Sources.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Data {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class SourcesTest : public ::testing::Test {
  protected:
    SourcesTest() {
        Write("route_points.csv",
              "id,name,namecn,lon,lat,kind,shut,gate,groups,cost\n"
              "101,Canal,运河,1,2,canal,1,0 2;2 2,One;Two,30\n");
        Write("areas.csv", "name,ring,reason\nShoals,5 5;6 5;6 6,sands\n");
        Write("passages.csv", "name,points\nCanal,0.5 1;@Canal;1.5 3\n");
        Write("port_corrections.csv",
              "unlocode,name,lon,lat,reason\nAABBB,Better,5,6,was wrong\nZZZZZ,New,7,8,missing\n");
        Write("port_names_cn.csv", "unlocode,namecn\nAABBB,好\n");
        Write("port_aliases.csv", "unlocode,alias\nAABBB,Best\nAABBB,\"Good, old\"\n");
        Write("ports.json",
              R"json({"AABBB":{"name":"Bad (ex Worse)","country":"Aa","coordinates":[1,2]},
                  "AACCC":{"name":"Twin","country":"Aa","coordinates":[3,4]},
                  "AADDD":{"name":"Twin","country":"Aa","coordinates":[3.01,4]},
                  "BBEEE":{"name":"Twin","country":"Bb","coordinates":[30,4]},
                  "BBFFF":{"name":"Nowhere","country":"Bb"},
                  "BBGGG":{"name":"Old (ex Older)","country":"Bb","coordinates":[31,4]}})json");
    }
    void Write(const std::string& name, const std::string& text) const { folder_.Write(name, text); }
    std::optional<Sources> Read() { return ReadSources(folder_.Path(), folder_.File("ports.json"), error_); }
    const PortSource& Port(const Sources& sources, const std::string& code) const {
        for (const PortSource& p : sources.ports) {
            if (p.unlocode == code) {
                return p;
            }
        }
        ADD_FAILURE() << "no port " << code;
        return sources.ports.front();
    }
    TestSupport::TemporaryFolder folder_;
    std::string error_;
};

TEST_F(SourcesTest, ReadsRoutePointsPassagesAndAreas) {
    const auto sources = Read();
    ASSERT_TRUE(sources) << error_;
    ASSERT_EQ(sources->routePoints.size(), 1u);
    const RoutePointSource& canal = sources->routePoints[0];
    EXPECT_TRUE(canal.shut);
    EXPECT_EQ(canal.namecn, "运河");
    EXPECT_EQ(canal.gate[1], (GeoPoint{2, 2}));
    EXPECT_EQ(canal.groups.size(), 2u);
    EXPECT_EQ(canal.cost, 30.0F);
    ASSERT_EQ(sources->areas.size(), 1u);
    EXPECT_EQ(sources->areas[0].ring, (std::vector<GeoPoint>{{5, 5}, {6, 5}, {6, 6}}));
    ASSERT_EQ(sources->passages.at(0).vertices.size(), 3u);
    EXPECT_EQ(sources->passages[0].vertices[1].at, (GeoPoint{1, 2}));
}

TEST_F(SourcesTest, CorrectionsChangeAndAddPortsAndIdsStayInOrderOfCodes) {
    const auto sources = Read();
    ASSERT_TRUE(sources) << error_;
    EXPECT_EQ(Port(*sources, "AABBB").name, "Better");
    EXPECT_EQ(Port(*sources, "AABBB").at, (GeoPoint{5, 6}));
    EXPECT_EQ(Port(*sources, "AABBB").namecn, "好");
    EXPECT_EQ(Port(*sources, "AABBB").id, "40001");
    EXPECT_EQ(Port(*sources, "BBGGG").id, "40006") << "a port without a place keeps its number free";
    EXPECT_EQ(Port(*sources, "ZZZZZ").id, "40007");
    EXPECT_EQ(sources->ports.size(), 6u);
}

TEST_F(SourcesTest, NamesStandForOnePort) {
    const auto sources = Read();
    ASSERT_TRUE(sources) << error_;
    EXPECT_EQ(Port(*sources, "AACCC").name, "Twin, Aa");
    EXPECT_EQ(Port(*sources, "AADDD").name, "Twin, Aa (AADDD)");
    EXPECT_EQ(Port(*sources, "BBEEE").name, "Twin, Bb");
    EXPECT_EQ(Port(*sources, "BBGGG").name, "Old");
    EXPECT_EQ(Port(*sources, "BBGGG").namecn, "Old") << "without a Chinese name the English one stands in";
}

TEST_F(SourcesTest, AnEntryOfTheSamePortRefersToTheFirst) {
    const auto sources = Read();
    ASSERT_TRUE(sources) << error_;
    EXPECT_EQ(Port(*sources, "AACCC").origid, "0");
    EXPECT_EQ(Port(*sources, "AADDD").origid, Port(*sources, "AACCC").id);
    EXPECT_EQ(Port(*sources, "BBEEE").origid, "0");
}

TEST_F(SourcesTest, ANameGivenByHandIsKeptWhole) {
    Write("port_corrections.csv",
          "unlocode,name,lon,lat,reason\nBBEEE,Twin,,,the name stands for this port\n");
    const auto sources = Read();
    ASSERT_TRUE(sources) << error_;
    EXPECT_EQ(Port(*sources, "BBEEE").name, "Twin");
    EXPECT_EQ(Port(*sources, "AACCC").name, "Twin, Aa");
}

TEST_F(SourcesTest, PortsHaveTheirOtherNames) {
    const auto sources = Read();
    ASSERT_TRUE(sources) << error_;
    EXPECT_THAT(Port(*sources, "AABBB").aliases, ElementsAre("Best", "Good, old"));
    EXPECT_TRUE(Port(*sources, "BBGGG").aliases.empty());
}

TEST_F(SourcesTest, AnEntryThatIsNoPortIsLeftOut) {
    Write("port_corrections.csv", "unlocode,name,lon,lat,reason\nAADDD,,none,none,an airport\n");
    Write("port_aliases.csv", "unlocode,alias\n");
    const auto sources = Read();
    ASSERT_TRUE(sources) << error_;
    for (const PortSource& port : sources->ports) {
        EXPECT_NE(port.unlocode, "AADDD");
    }
    EXPECT_EQ(Port(*sources, "BBGGG").id, "40006") << "ids stay what they are";
}

TEST_F(SourcesTest, APlaceWithoutAKnownCodeHasNone) {
    Write("port_corrections.csv", "unlocode,name,lon,lat,reason\n~OURS,Terminal,7,8,missing\n");
    Write("port_aliases.csv", "unlocode,alias\n~OURS,Jetty\n");
    Write("port_names_cn.csv", "unlocode,namecn\n~OURS,码头\n");
    const auto sources = Read();
    ASSERT_TRUE(sources) << error_;
    const PortSource& added = Port(*sources, "");
    EXPECT_EQ(added.name, "Terminal");
    EXPECT_EQ(added.namecn, "码头");
    EXPECT_THAT(added.aliases, ElementsAre("Jetty"));
}

TEST_F(SourcesTest, SaysWhichFileIsWrongAndWhy) {
    Write("areas.csv", "name,ring,reason\nLine,5 5;6 5,none\n");
    EXPECT_FALSE(Read());
    EXPECT_EQ(error_, "areas.csv: Line has less than three corners");
    Write("passages.csv", "name,points\nCanal,0.5 1;@Nothing\n");
    EXPECT_FALSE(Read());
    EXPECT_EQ(error_, "passages.csv: there is no route point Nothing");
    Write("route_points.csv",
          "id,name,namecn,lon,lat,kind,shut,gate,groups\n101,Canal,,1,x,canal,0,0 2;2 2,\n");
    EXPECT_FALSE(Read());
    EXPECT_EQ(error_, "route_points.csv: \"x\" is no number");
    std::filesystem::remove(folder_.File("route_points.csv"));
    EXPECT_FALSE(Read());
    EXPECT_THAT(error_, StartsWith("route_points.csv: cannot open "));
}

TEST_F(SourcesTest, RefusesPortsThatCannotBeUsed) {
    Write("port_aliases.csv", "unlocode,alias\nXXXXX,Nowhere\n");
    EXPECT_FALSE(Read());
    EXPECT_EQ(error_, "ports: port_aliases.csv: there is no port XXXXX");
    Write("port_corrections.csv", "unlocode,name,lon,lat,reason\nZZZZZ,New,,,missing\n");
    EXPECT_FALSE(Read());
    EXPECT_EQ(error_, "ports: ZZZZZ lacks a name or a position");
    Write("port_corrections.csv", "unlocode,name,lon,lat,reason\nAACCC,X,,,a\nAADDD,X,,,b\n");
    EXPECT_FALSE(Read());
    EXPECT_EQ(error_, "ports: two ports are named X");
    Write("ports.json", "{");
    EXPECT_FALSE(Read());
    EXPECT_THAT(error_, HasSubstr("ports: "));
}

}  // namespace
}  // namespace Tarvik::Data

// SPDX-License-Identifier: MIT
// What an operator forbids of waters, on small maps.
#include <gmock/gmock.h>

#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/SeaNetworkFile.h"
#include "host/server/graph/report/RouteReport.h"
#include "host/server/graph/report/StandingLimits.h"
#include "host/server/graph/tests/SmallSea.h"
#include "host/server/graph/tests/TextSea.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Server {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Two straits through a long island, and a way round its north that is farther.
const std::vector<std::string> kStraits = {"..........",  //
                                           ".########.",  //
                                           ".########.",  //
                                           ".###xx###.",  //
                                           "A...1x...B",  //
                                           ".########.",  //
                                           ".########.",  //
                                           "....2.....",  //
                                           ".########."};

std::shared_ptr<const SeaNetwork> NetworkOf(const NetworkData& data) {
    return std::make_shared<const SeaNetwork>(data);
}

std::vector<std::string> Passed(const NetworkData& data, const std::string& from = "40000",
                                const std::string& to = "40001") {
    const RouteResult way = RouteEngine(NetworkOf(data)).Plan({{from, {}, {}}, {to, {}, {}}});
    return way.error == kRouteOk ? way.stops[1].passedIds : std::vector<std::string>{way.message};
}

std::vector<GeoPoint> Line(const NetworkData& data) {
    const RouteResult way = RouteEngine(NetworkOf(data)).Plan({{"40000", {}, {}}, {"40001", {}, {}}});
    std::vector<GeoPoint> line;
    for (const PlannedStop& stop : way.stops) {
        for (const RouteLeg& leg : stop.legs) {
            line.insert(line.end(), leg.points.begin(), leg.points.end());
        }
    }
    return line;
}

TEST(ForbiddenWaters, AreaInAStraitLeavesTheOtherOne) {
    const TextSea sea(kStraits);
    EXPECT_THAT(Passed(sea.data), ElementsAre("40000", "1", "40001"));
    EXPECT_THAT(Passed(Narrowed(sea.data, {{{"minefield", sea.forbidden}}})),
                ElementsAre("40000", "2", "40001"));
}

TEST(ForbiddenWaters, SeveralHoldTogether) {
    const TextSea sea(kStraits);
    const ForbiddenWaters::Area south{"south", {{4, -60}, {5, -60}, {5, 3}, {4, 3}}};
    EXPECT_THAT(Passed(Narrowed(sea.data, {{{"minefield", sea.forbidden}, south}})),
                ElementsAre("40000", "40001"))
        << "round the north of all";
    const ForbiddenWaters::Area north{"north", {{4, 8}, {5, 8}, {5, 60}, {4, 60}}};
    EXPECT_THAT(Passed(Narrowed(sea.data, {{{"minefield", sea.forbidden}, south, north}})),
                ElementsAre("there is no way by sea from 40000 to 40001"));
}

TEST(ForbiddenWaters, PortInsideHasNoWay) {
    const TextSea sea(kStraits);
    const ForbiddenWaters waters{{{"harbour", {{0, 4}, {1, 4}, {1, 5}, {0, 5}}}}};
    EXPECT_THAT(Passed(Narrowed(sea.data, waters)),
                ElementsAre("there is no way by sea from 40000 to 40001"));
}

// In open water the way turns just outside the corners, which are no nodes of the sea.
TEST(ForbiddenWaters, OpenSeaIsSailedRoundTheCorners) {
    const TextSea sea({"..........", "..........", "A..xxxx..B", "..........", ".........."});
    const NetworkData narrowed = Narrowed(sea.data, {{{"field", sea.forbidden}}});
    const ForbiddenWaters field{{{"field", sea.forbidden}}};
    double nm = 0.0;
    const std::vector<GeoPoint> line = Line(narrowed);
    ASSERT_FALSE(line.empty());
    for (std::size_t i = 0; i < line.size(); ++i) {
        EXPECT_FALSE(field.Hold(line[i])) << line[i].x << " " << line[i].y;
        nm += i == 0 ? 0.0 : ArcNm(line[i - 1], line[i]);
    }
    const GeoPoint corners[] = {{0.5, 2.5}, {3, 3}, {7, 3}, {9.5, 2.5}};
    double least = 0.0;
    for (std::size_t i = 1; i < std::size(corners); ++i) {
        least += ArcNm(corners[i - 1], corners[i]);
    }
    EXPECT_GT(nm, least);
    EXPECT_LT(nm, least + 2.0);
}

TEST(ForbiddenWaters, LatitudesEndTheSea) {
    const TextSea sea(kStraits);
    EXPECT_THAT(Passed(Narrowed(sea.data, {{{"minefield", sea.forbidden}}, 90.0, 3.2})),
                ElementsAre("40000", "40001"))
        << "the strait in the south is closed by the limit";
    EXPECT_THAT(Passed(Narrowed(sea.data, {{{"minefield", sea.forbidden}}, 7.0, -90.0})),
                ElementsAre("40000", "2", "40001"));
    EXPECT_THAT(Passed(Narrowed(sea.data, {{}, 4.2, -90.0})),
                ElementsAre("there is no way by sea from 40000 to 40001"))
        << "the ports lie beyond it";
}

TEST(ForbiddenWaters, AreaOverTheDateLineHoldsBothItsSides) {
    const ForbiddenWaters waters{{{"line", {{175, -5}, {-175, -5}, {-175, 5}, {175, 5}}}}};
    for (const double inside : {176.0, 180.0, -180.0, -176.0}) {
        EXPECT_TRUE(waters.Hold({inside, 0})) << inside;
    }
    for (const double outside : {174.0, -174.0, 0.0}) {
        EXPECT_FALSE(waters.Hold({outside, 0})) << outside;
    }
    // The far ports of the small sea lie on both sides of it, north of the area at 10 degrees.
    EXPECT_THAT(Passed(SmallSea(), "40003", "40004"), ElementsAre("40003", "40004"));
    const ForbiddenWaters wall{{{"wall", {{178, -80}, {-178, -80}, {-178, 80}, {178, 80}}}}};
    EXPECT_THAT(Passed(Narrowed(SmallSea(), wall), "40003", "40004"),
                ElementsAre("there is no way by sea from 40003 to 40004"));
}

class AreaFile : public ::testing::Test {
  protected:
    std::string Written(const std::string& text) const {
        folder_.Write("areas.csv", text);
        return folder_.File("areas.csv");
    }
    TestSupport::TemporaryFolder folder_;
};

TEST_F(AreaFile, IsReadAndTold) {
    OperatorRules rules{{"North Cape", ""}, Written("name,ring\nWar risk,43 11;51 11;51 15\n"), 70.5, -55};
    const std::string network = folder_.File("network.bin");
    ASSERT_EQ(SeaNetworkFile::Write(network, SmallSea()), "");
    std::string error;
    const auto ruled = LoadUnderRules(network, rules, error);
    ASSERT_TRUE(ruled) << error;
    EXPECT_THAT(ruled->waters, ElementsAre("area War risk", "north of 70.5", "south of -55"));
    auto question = ReadRouteQuestion({"west", "east", "--explain"}, error);
    question->standing = ruled->limits;
    question->waters = ruled->waters;
    const auto text = RouteText(*ruled->network, {}, *question, error);
    ASSERT_TRUE(text) << error;
    EXPECT_THAT(*text,
                HasSubstr("forbidden: North Cape, Canal, area War risk, north of 70.5, south of -55\n"));
}

TEST_F(AreaFile, WrongOnesAreRefusedWithFileAndArea) {
    const auto complaint = [](const std::string& file) {
        std::string error;
        EXPECT_FALSE(ReadForbiddenWaters({{}, file}, error));
        return error;
    };
    EXPECT_THAT(complaint(folder_.File("missing.csv")), HasSubstr("missing.csv"));
    EXPECT_THAT(complaint(Written("name,ring\nLine,43 11;51 11\n")),
                HasSubstr("area 1 \"Line\" needs a name and three corners"));
    EXPECT_THAT(complaint(Written("name,ring\n,43 11;51 11;51 15\n")), HasSubstr("area 1 \"\""));
    EXPECT_THAT(complaint(Written("name,ring\nWest,43 11;x 11;51 15\n")), HasSubstr("areas.csv: "));
}

}  // namespace
}  // namespace Tarvik::Server

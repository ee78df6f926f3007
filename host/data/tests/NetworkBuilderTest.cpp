// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/data/builder/NetworkBuilder.h"
#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/SeaNetworkFile.h"

namespace Tarvik::Data {

namespace {

using Server::RouteResult;
using ::testing::ElementsAre;

/// A square island with a port on each side, a canal through it that is shut, and an inland town.
class NetworkBuilderTest : public ::testing::Test {
  protected:
    NetworkBuilderTest() {
        sources_.routePoints = {{"101", "North", "", {0, 6}, false, {{0, 5}, {0, 20}}, {"Round"}},
                                {"102", "Canal", "", {0, 0}, true, {{0, -5}, {0, 5}}, {"Round"}}};
        sources_.passages = {{"Canal", {{{-5.2, 0}, ""}, {{0, 0}, "Canal"}, {{5.2, 0}, ""}}}};
        sources_.ports = {{"40001", "AAAAA", "West", "", {-4.95, 1}},
                          {"40002", "BBBBB", "East", "", {4.95, 1}},
                          {"40003", "CCCCC", "Inland", "", {2, 2.5}}};
    }
    RouteResult Plan(const std::vector<Server::RouteChoice>& choices) {
        const auto network =
            std::make_shared<const Server::SeaNetwork>(NetworkBuilder(sources_, land_).Build());
        return Server::RouteEngine(network).Plan({{"40001", {}, {}}, {"40002", {}, choices}});
    }
    const std::vector<Polygon> land_ = {{{{-5, -5}, {5, -5}, {5, 5}, {-5, 5}}}};
    Sources sources_;
};

TEST_F(NetworkBuilderTest, LeadsRoundTheIslandCloseToItsCapes) {
    const RouteResult result = Plan({});
    ASSERT_EQ(result.error, Server::kRouteOk) << result.message;
    EXPECT_THAT(result.stops[1].passedIds, ElementsAre("40001", "101", "40002"));
    // Twelve miles off the capes, along the bisector: eight and a half north and as many to the side.
    const double round = 2 * (240 + 8.5) + 600 + 17;
    EXPECT_NEAR(result.stops[1].distanceKm / Server::kKmPerNm, round, 0.01 * round);
}

TEST_F(NetworkBuilderTest, AHandMadeWayLeadsThroughLand) {
    const RouteResult result = Plan({{"102", "40001,40002"}});
    ASSERT_EQ(result.error, Server::kRouteOk) << result.message;
    EXPECT_THAT(result.stops[1].passedIds, ElementsAre("40001", "102", "40002"));
    EXPECT_LT(result.stops[1].distanceKm / Server::kKmPerNm, 800);
}

TEST_F(NetworkBuilderTest, SeaEdgesNeverMeetLandAndLinksAreShort) {
    const Server::NetworkData data = NetworkBuilder(sources_, land_).Build();
    const Server::LandIndex index({land_[0][0]});
    for (const Server::NetworkEdge& e : data.edges) {
        if (e.kind == Server::EdgeKind::Sea) {
            EXPECT_FALSE(index.Blocks(data.nodes[e.a], data.nodes[e.b]));
        } else if (e.kind == Server::EdgeKind::Link) {
            EXPECT_LE(e.nm, 36.0F);
        }
    }
}

TEST_F(NetworkBuilderTest, LeavesOutATownThatNoShipReaches) {
    NetworkBuilder builder(sources_, land_);
    const Server::NetworkData data = builder.Build();
    ASSERT_EQ(data.ports.size(), 2u);
    EXPECT_EQ(data.ports[1].name, "East");
    EXPECT_TRUE(builder.Remarks().empty());
}

TEST_F(NetworkBuilderTest, TheSameSourcesGiveTheSameFile) {
    EXPECT_EQ(Server::SeaNetworkFile::Encode(NetworkBuilder(sources_, land_).Build()),
              Server::SeaNetworkFile::Encode(NetworkBuilder(sources_, land_).Build()));
}

}  // namespace
}  // namespace Tarvik::Data

// SPDX-License-Identifier: MIT
// The sea network as it is shipped. Published distances are those of NGA Pub. 151, "Distances Between Ports",
// 11th edition 2001.
#include <cmath>
#include <map>

#include <gmock/gmock.h>

#include "host/data/tests/CoastCheck.h"
#include "host/geo/LandFile.h"
#include "host/server/graph/RouteEngine.h"

namespace Tarvik::Data {

namespace {

using Server::kRouteOk;
using Server::RouteResult;
using Server::SeaNetwork;
using ::testing::Contains;

class BuiltNetworkTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        std::string error;
        network_ = SeaNetwork::Load(SHARE_FOLDER "/network.bin", error);
        ASSERT_TRUE(network_) << error;
    }
    static void TearDownTestSuite() { network_.reset(); }
    static const Server::NetworkData& data() { return network_->data(); }
    static std::string IdOf(const std::string& unlocode) {
        for (const Server::NetworkPort& port : data().ports) {
            if (port.unlocode == unlocode) {
                return port.id;
            }
        }
        ADD_FAILURE() << "no port " << unlocode;
        return {};
    }
    static Server::PlannedStop LegBetween(const std::string& from, const std::string& to) {
        const RouteResult result =
            Server::RouteEngine(network_).Plan({{IdOf(from), {}, {}}, {IdOf(to), {}, {}}});
        EXPECT_EQ(result.error, kRouteOk) << from << " " << to << ": " << result.message;
        return result.error == kRouteOk ? result.stops[1] : Server::PlannedStop{};
    }
    static std::string PointNamed(const std::string& name) {
        for (const Server::RoutePoint& point : data().routePoints) {
            if (point.name == name) {
                return point.id;
            }
        }
        return "none";
    }
    static inline std::shared_ptr<const SeaNetwork> network_;
};

TEST_F(BuiltNetworkTest, DistancesAgreeWithPublishedOnes) {
    const struct {
        const char* from;
        const char* to;
        double nm;
    } published[] = {{"JPYOK", "USSFO", 4536}, {"JPYOK", "USLAX", 4839}, {"USNYC", "ZACPT", 6786},
                     {"PABLB", "USLAX", 2913}, {"USBOS", "BRRIO", 4738}, {"USHNL", "NZWLG", 4113},
                     {"ZACPT", "SNDKR", 3593}, {"ECGYE", "AUSYD", 7268}, {"SGSIN", "RUVVO", 3004},
                     {"HKHKG", "FJSUV", 4541}};
    for (const auto& [from, to, nm] : published) {
        EXPECT_NEAR(LegBetween(from, to).distanceKm / Server::kKmPerNm, nm, 0.04 * nm) << from << " " << to;
    }
}

TEST_F(BuiltNetworkTest, RotterdamToSingaporeLeadsThroughSuezAndOffersTheCape) {
    const Server::PlannedStop leg = LegBetween("NLRTM", "SGSIN");
    EXPECT_NEAR(leg.distanceKm / Server::kKmPerNm, 8290, 0.04 * 8290);
    const std::string suez = PointNamed("Suez Canal");
    EXPECT_THAT(leg.passedIds, Contains(suez));
    EXPECT_THAT(leg.passedIds, Contains(PointNamed("Strait of Gibraltar")));
    for (const auto& group : leg.groups) {
        if (group.rpId != suez) {
            continue;
        }
        EXPECT_THAT(group.alternatives, Contains(PointNamed("Cape of Good Hope")));
    }
    const RouteResult cape = Server::RouteEngine(network_).Plan(
        {{IdOf("NLRTM"), {}, {}},
         {IdOf("SGSIN"), {}, {{PointNamed("Cape of Good Hope"), IdOf("NLRTM") + "," + IdOf("SGSIN")}}}});
    ASSERT_EQ(cape.error, kRouteOk) << cape.message;
    EXPECT_NEAR(cape.stops[1].distanceKm / Server::kKmPerNm, 11750, 0.04 * 11750);
}

TEST_F(BuiltNetworkTest, ShanghaiToLosAngelesCrossesTheDateLine) {
    const Server::PlannedStop leg = LegBetween("CNSHA", "USLAX");
    EXPECT_LT(leg.distanceKm / Server::kKmPerNm, 6100);
    std::size_t crossings = 0;
    for (const auto& piece : leg.legs) {
        for (std::size_t i = 1; i < piece.points.size(); ++i) {
            if (std::abs(piece.points[i].x - piece.points[i - 1].x) < 180.0) {
                continue;
            }
            ++crossings;
            EXPECT_EQ(piece.points[i - 1].x, 180.0);
            EXPECT_EQ(piece.points[i].x, -180.0);
            EXPECT_EQ(piece.points[i].y, piece.points[i - 1].y);
        }
    }
    EXPECT_EQ(crossings, 1u);
}

TEST_F(BuiltNetworkTest, EveryPortIsReachedFromRotterdam) {
    const Server::RouteEngine engine(network_);
    const std::string rotterdam = IdOf("NLRTM");
    ASSERT_GT(data().ports.size(), 1400u);
    for (const Server::NetworkPort& port : data().ports) {
        const RouteResult result = engine.Plan({{rotterdam, {}, {}}, {port.id, {}, {}}});
        EXPECT_EQ(result.error, kRouteOk) << port.name << ": " << result.message;
    }
}

/// Checks one leg: it is in one piece, and wherever it meets the coast it is on a hand-made way.
void CheckLeg(const Server::PlannedStop& stop, const LineCells& coast, const LineCells& byHand,
              const std::string& name) {
    GeoPoint before = stop.legs.front().points.front();
    for (const auto& leg : stop.legs) {
        ASSERT_EQ(leg.points.front(), before) << name;
        for (const GeoPoint here : leg.points) {
            const bool overDateLine = std::abs(here.x - before.x) >= 180.0;
            const std::vector<GeoPoint> meetings =
                overDateLine ? std::vector<GeoPoint>{} : coast.Meetings(before, here);
            for (const GeoPoint at : meetings) {
                EXPECT_TRUE(byHand.PassesNear(at, 0.2 / 60.0))
                    << name << " meets land at " << at.x << " " << at.y;
            }
            before = here;
        }
    }
}

TEST_F(BuiltNetworkTest, TwoHundredRandomRoutesNeverCrossLand) {
    const LineCells coast = CoastOf(data());
    const LineCells byHand = HandMadeWays(data());
    ASSERT_FALSE(coast.Meetings({-10, 40}, {-3, 40}).empty()) << "a line into Spain must meet its coast";
    const Server::RouteEngine engine(network_);
    std::uint32_t seed = 20240229;
    const auto next = [&seed] { return (seed = seed * 1664525U + 1013904223U) >> 8; };
    const auto& ports = data().ports;
    for (int i = 0; i < 200; ++i) {
        const auto& from = ports[next() % ports.size()];
        const auto& to = ports[next() % ports.size()];
        const RouteResult result = engine.Plan({{from.id, {}, {}}, {to.id, {}, {}}});
        ASSERT_EQ(result.error, kRouteOk) << result.message;
        CheckLeg(result.stops[1], coast, byHand, from.name + " - " + to.name);
    }
}

TEST_F(BuiltNetworkTest, LinksToPortsAreShort) {
    for (const Server::NetworkEdge& e : data().edges) {
        if (e.kind != Server::EdgeKind::Link) {
            continue;
        }
        EXPECT_LE(e.nm, 38.5F) << data().nodes[e.a].x << " " << data().nodes[e.a].y;
    }
}

TEST_F(BuiltNetworkTest, TheLandFileHasEveryLevelFinerThanTheOneBefore) {
    std::string error;
    const auto land = LandFile::Load(SHARE_FOLDER "/land.bin", error);
    ASSERT_TRUE(land) << error;
    std::size_t before = 0;
    for (const auto& coasts : land->coasts) {
        std::size_t points = 0;
        for (const auto& line : coasts) {
            points += line.points.size();
        }
        EXPECT_GT(points, 2 * before);
        before = points;
    }
}

}  // namespace
}  // namespace Tarvik::Data

// SPDX-License-Identifier: MIT
// The search against the plain one, and the aids that make it quick.
#include <cmath>

#include <gtest/gtest.h>

#include "host/server/graph/PathSearch.h"
#include "host/server/graph/tests/GridSea.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

ArcTable TableOf(const NetworkData& data) {
    ArcTable table;
    for (std::uint32_t node = 0; node < data.nodes.size(); ++node) {
        table.start.push_back(static_cast<std::uint32_t>(table.arcs.size()));
        for (std::uint32_t i = 0; i < data.edges.size(); ++i) {
            const NetworkEdge& e = data.edges[i];
            if (e.a == node) {
                table.arcs.push_back({e.b, i, e.nm});
            }
            if (e.b == node) {
                table.arcs.push_back({e.a, i, e.nm});
            }
        }
    }
    table.start.push_back(static_cast<std::uint32_t>(table.arcs.size()));
    return table;
}

TEST(PathSearch, FindsWaysAsShortAsThePlainSearch) {
    const SeaNetwork network(GridSea());
    const ArcTable table = TableOf(network.data());
    const std::vector<float> all = DistancesFrom(table, 0);
    std::size_t found = 0;
    for (std::uint32_t to = 0; to < all.size(); ++to) {
        const auto path = FindPath(network, 0, to, network.ShutGates());
        ASSERT_EQ(path.has_value(), std::isfinite(all[to])) << to;
        if (!path) {
            continue;
        }
        ++found;
        EXPECT_NEAR(path->nm, all[to], 0.05) << to;
        EXPECT_EQ(path->nodes.front(), 0u);
        EXPECT_EQ(path->nodes.back(), to);
        EXPECT_EQ(path->nodes.size(), path->edges.size() + 1);
    }
    EXPECT_GT(found, 300u);
}

TEST(PathSearch, NeverCrossesAForbiddenGate) {
    const SeaNetwork network(GridSea());
    GateMask forbidden;
    forbidden[0] = true;
    EXPECT_TRUE(FindPath(network, 0, 399, GateMask{}));
    EXPECT_FALSE(FindPath(network, 0, 399, forbidden));
    for (std::uint32_t to = 0; to < 400; ++to) {
        if (network.data().nodes[to].x < 10) {
            continue;
        }
        EXPECT_FALSE(FindPath(network, 0, to, forbidden)) << to;
    }
}

TEST(Basins, AreJoinedAsTheSearchFindsThem) {
    const SeaNetwork network(GridSea());
    for (const bool shut : {false, true}) {
        GateMask forbidden;
        forbidden[0] = shut;
        for (std::uint32_t to = 0; to < 400; to += 3) {
            EXPECT_EQ(network.Waters().Joined(5, to, forbidden),
                      FindPath(network, 5, to, forbidden).has_value());
        }
    }
}

TEST(Basins, NodesWithoutAGateBetweenThemShareOne) {
    const SeaNetwork network(SmallSea());
    const Basins& basins = network.Waters();
    EXPECT_EQ(basins.BasinOf(5), basins.BasinOf(6));
    EXPECT_NE(basins.BasinOf(0), basins.BasinOf(7));
    EXPECT_FALSE(basins.Joined(0, 7, GateMask{}));
    EXPECT_TRUE(basins.Joined(0, 3, network.ShutGates()));
}

TEST(Landmarks, NeverExceedTheWay) {
    const NetworkData data = GridSea();
    const ArcTable table = TableOf(data);
    const Landmarks landmarks(table, 4);
    for (std::uint32_t from = 0; from < 400; from += 57) {
        const std::vector<float> all = DistancesFrom(table, from);
        for (std::uint32_t to = 0; to < 400; ++to) {
            if (!std::isfinite(all[to])) {
                continue;
            }
            EXPECT_LE(landmarks.Bound(from, to), all[to] + 0.05F);
        }
    }
}

TEST(Landmarks, KnowNothingWithoutNodes) {
    const Landmarks none(ArcTable{{0}, {}}, 4);
    EXPECT_EQ(none.Bound(0, 0), 0.0F);
}

}  // namespace
}  // namespace Tarvik::Server

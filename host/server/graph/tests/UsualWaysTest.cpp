// SPDX-License-Identifier: MIT
// The search over the usual ways alone finds what the search over all of them finds.
#include <gtest/gtest.h>

#include "host/server/graph/NamedWays.h"
#include "host/server/graph/PathSearch.h"
#include "host/server/graph/tests/GridSea.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

/// The grid with every ninth place a port.
NetworkData GridWithPorts() {
    NetworkData data = GridSea();
    for (std::uint32_t node = 4; node < data.nodes.size(); node += 9) {
        data.ports.push_back({std::to_string(40001 + node), "", "", node});
    }
    return data;
}

SeaNetwork WithTables(NetworkData data) {
    data.tables = SeaNetwork(data).Tables();
    return SeaNetwork(std::move(data));
}

TEST(UsualWays, AreThoseOnAShortestWayBetweenNamedNodes) {
    // 0 - 1 - 2 with a longer way 0 - 3 - 2 beside it and a dead end 2 - 4.
    ArcTable table;
    const auto add = [&table](std::vector<Arc> arcs) {
        table.start.push_back(static_cast<std::uint32_t>(table.arcs.size()));
        table.arcs.insert(table.arcs.end(), arcs.begin(), arcs.end());
    };
    add({{1, 0, 10.0F}, {3, 2, 10.0F}});
    add({{0, 0, 10.0F}, {2, 1, 10.0F}});
    add({{1, 1, 10.0F}, {3, 3, 11.0F}, {4, 4, 5.0F}});
    add({{0, 2, 10.0F}, {2, 3, 11.0F}});
    add({{2, 4, 5.0F}});
    add({});
    using Marks = std::vector<std::uint8_t>;
    EXPECT_EQ(EdgesOfWays(table, {0, 2}, 5), (Marks{1, 1, 0, 0, 0}));
    EXPECT_EQ(EdgesOfWays(table, {0, 4}, 5), (Marks{1, 1, 0, 0, 1}));
    EXPECT_EQ(EdgesOfWays(table, {3, 2}, 5), (Marks{0, 0, 0, 1, 0}));
    table.arcs[3].nm = table.arcs[4].nm = 11.0F;
    EXPECT_EQ(EdgesOfWays(table, {0, 2}, 5), (Marks{1, 1, 1, 1, 0})) << "two ways of the same length";
    const ArcTable marked = MarkedArcs(table, Marks{1, 1, 0, 0, 0});
    EXPECT_EQ(marked.start, (std::vector<std::uint32_t>{0, 1, 3, 4, 4, 4}));
    EXPECT_EQ(marked.arcs[3].to, 1u);
}

TEST(UsualWays, BetweenPortsAreAsLongAsAnyWays) {
    const SeaNetwork all(GridWithPorts());
    const SeaNetwork usual = WithTables(GridWithPorts());
    const auto& ports = all.data().ports;
    EXPECT_LT(usual.ArcsBetween(ports[0].node, ports[1].node, all.ShutGates()).arcs.size(),
              2 * all.data().edges.size());
    GateMask closed = all.ShutGates();
    closed[0] = true;
    for (const GateMask& forbidden : {all.ShutGates(), closed, GateMask()}) {
        for (const NetworkPort& from : ports) {
            for (const NetworkPort& to : ports) {
                const auto plain = FindPath(all, from.node, to.node, forbidden);
                const auto found = FindPath(usual, from.node, to.node, forbidden);
                ASSERT_EQ(found.has_value(), plain.has_value()) << from.node << " " << to.node;
                if (found) {
                    EXPECT_EQ(found->nm, plain->nm) << from.node << " " << to.node;
                }
            }
        }
    }
}

TEST(UsualWays, AreNotEnoughForOtherPlacesOrPermissions) {
    const SeaNetwork usual = WithTables(SmallSea());
    const std::size_t all = 2 * usual.data().edges.size();
    EXPECT_LT(usual.ArcsBetween(0, 3, usual.ShutGates()).arcs.size(), all);
    EXPECT_EQ(usual.ArcsBetween(0, 3, GateMask()).arcs.size(), all) << "the canal is open";
    EXPECT_TRUE(FindPath(usual, 0, 3, usual.ForbiddenBy(1))) << "round the south, when it is chosen";
    const SeaNetwork grid = WithTables(GridWithPorts());
    EXPECT_EQ(grid.ArcsBetween(5, 13, grid.ShutGates()).arcs.size(), 2 * grid.data().edges.size())
        << "node 5 is no port";
    for (std::uint32_t to = 0; to < 400; ++to) {
        EXPECT_EQ(FindPath(grid, 5, to, grid.ShutGates()).has_value(),
                  grid.Waters().Joined(5, to, grid.ShutGates()));
    }
}

}  // namespace
}  // namespace Tarvik::Server

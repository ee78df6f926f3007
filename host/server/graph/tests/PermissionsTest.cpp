// SPDX-License-Identifier: MIT
// The search against one that tries every edge until nothing changes, under permissions drawn by lot.
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "host/server/graph/PathSearch.h"

namespace Tarvik::Server {

namespace {

constexpr std::size_t kNodes = 160;
constexpr std::size_t kGates = 24;
constexpr unsigned kSeeds = 20;
constexpr std::size_t kPairs = 25;

class Lots {
  public:
    explicit Lots(unsigned seed) : random_(seed) {}
    std::size_t Below(std::size_t end) { return random_() % end; }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    /// Each gate with a chance of one in `rarity`.
    GateMask Gates(std::size_t rarity) {
        GateMask mask;
        for (std::size_t i = 0; i < kGates; ++i) {
            mask[i] = OneIn(rarity);
        }
        return mask;
    }

  private:
    std::mt19937 random_;
};

/// Places anywhere on the globe, joined to some others; edges cross gates by lot, gates are shut and costly
/// by lot, and some places stay alone.
NetworkData RandomSea(Lots& lots) {
    NetworkData data;
    for (std::size_t i = 0; i < kNodes; ++i) {
        data.nodes.push_back({static_cast<double>(lots.Below(360)) - 180.0,
                              static_cast<double>(lots.Below(140)) - 70.0 + 1e-3 * static_cast<double>(i)});
    }
    for (std::size_t i = 0; i < kGates; ++i) {
        RoutePoint point{std::to_string(i), "", static_cast<std::uint32_t>(i), lots.OneIn(5), {}, {}};
        const GeoPoint at = data.nodes[i];
        point.gate = {{at.x, at.y - 1.0}, {at.x, at.y + 1.0}};
        point.cost = lots.OneIn(4) ? static_cast<float>(lots.Below(400)) : 0.0F;
        data.routePoints.push_back(std::move(point));
    }
    data.masks.resize(30);
    for (std::size_t i = 1; i < data.masks.size(); ++i) {
        data.masks[i] = lots.Gates(10);
    }
    for (std::size_t i = 0; i < 3 * kNodes; ++i) {
        const auto a = static_cast<std::uint32_t>(lots.Below(kNodes));
        const auto b = static_cast<std::uint32_t>(lots.Below(kNodes));
        const std::size_t mask = lots.OneIn(3) ? 0 : lots.Below(data.masks.size());
        data.edges.push_back({a, b, static_cast<float>(ArcNm(data.nodes[a], data.nodes[b])),
                              static_cast<std::uint16_t>(mask), EdgeKind::Sea});
    }
    return data;
}

double MilesOf(const NetworkData& data, const NetworkEdge& edge) {
    double miles = edge.nm;
    for (std::size_t i = 0; i < data.routePoints.size(); ++i) {
        miles += data.masks[edge.mask][i] ? data.routePoints[i].cost : 0.0F;
    }
    return miles;
}

/// The miles to every place, by trying all edges until none gives a shorter way.
std::vector<double> TriedFrom(const NetworkData& data, std::uint32_t from, const GateMask& forbidden) {
    std::vector<double> best(data.nodes.size(), std::numeric_limits<double>::infinity());
    best[from] = 0.0;
    for (bool changed = true; changed;) {
        changed = false;
        for (const NetworkEdge& edge : data.edges) {
            if ((data.masks[edge.mask] & forbidden).any()) {
                continue;
            }
            const double miles = MilesOf(data, edge);
            for (const auto& [a, b] : {std::pair(edge.a, edge.b), std::pair(edge.b, edge.a)}) {
                if (best[a] + miles < best[b]) {
                    best[b] = best[a] + miles;
                    changed = true;
                }
            }
        }
    }
    return best;
}

/// That the path is one over open edges, and as long as it says.
void CheckPath(const NetworkData& data, const NodePath& path, const GateMask& forbidden) {
    ASSERT_EQ(path.nodes.size(), path.edges.size() + 1);
    double miles = 0.0;
    for (std::size_t i = 0; i < path.edges.size(); ++i) {
        const NetworkEdge& edge = data.edges[path.edges[i]];
        EXPECT_TRUE((edge.a == path.nodes[i] && edge.b == path.nodes[i + 1]) ||
                    (edge.b == path.nodes[i] && edge.a == path.nodes[i + 1]));
        EXPECT_TRUE((data.masks[edge.mask] & forbidden).none());
        miles += MilesOf(data, edge);
    }
    EXPECT_NEAR(path.nm, miles, 0.05);
}

TEST(Permissions, WaysAreAsShortAsThoseTriedUnderAnyOfThem) {
    std::size_t found = 0;
    std::size_t none = 0;
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        SCOPED_TRACE(seed);
        Lots lots(seed);
        const SeaNetwork network(RandomSea(lots));
        for (std::size_t i = 0; i < kPairs; ++i) {
            // Every other one keeps shut what is shut, for which the landmarks know bounds.
            const GateMask forbidden = lots.Gates(3) | (i % 2 == 0 ? network.ShutGates() : GateMask());
            const auto from = static_cast<std::uint32_t>(lots.Below(kNodes));
            const auto to = static_cast<std::uint32_t>(lots.Below(kNodes));
            const double tried = TriedFrom(network.data(), from, forbidden)[to];
            const auto path = FindPath(network, from, to, forbidden);
            ASSERT_EQ(path.has_value(), std::isfinite(tried)) << from << " to " << to;
            if (!path) {
                ++none;
                continue;
            }
            ++found;
            EXPECT_NEAR(path->nm, tried, 0.05) << from << " to " << to;
            EXPECT_EQ(path->nodes.front(), from);
            EXPECT_EQ(path->nodes.back(), to);
            CheckPath(network.data(), *path, forbidden);
        }
    }
    EXPECT_GT(found, 200U);
    EXPECT_GT(none, 25U);
}

// What a search keeps of the one before must not show, whichever network that had.
TEST(Permissions, NetworksInTurnDoNotSeeEachOther) {
    Lots lots(99);
    const SeaNetwork first(RandomSea(lots));
    const SeaNetwork second(RandomSea(lots));
    for (std::uint32_t to = 0; to < kNodes; to += 7) {
        for (const SeaNetwork* network : {&first, &second, &first}) {
            const double tried = TriedFrom(network->data(), 3, network->ShutGates())[to];
            const auto path = FindPath(*network, 3, to, network->ShutGates());
            ASSERT_EQ(path.has_value(), std::isfinite(tried)) << to;
            if (path) {
                EXPECT_NEAR(path->nm, tried, 0.05) << to;
            }
        }
    }
}

}  // namespace

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
// The search through the shipped network against a plain one without bounds, under permissions drawn by lot.
#include <cmath>
#include <functional>
#include <limits>
#include <queue>
#include <random>

#include <gtest/gtest.h>

#include "host/server/graph/PathSearch.h"

namespace Tarvik::Data {

namespace {

using Server::GateMask;
using Server::NetworkData;
using Server::NetworkEdge;

constexpr std::size_t kPairs = 24;

/// The edges of every node and their miles, with what the gates add.
class PlainSearch {
  public:
    explicit PlainSearch(const NetworkData& data) : data_(data), edges_(data.nodes.size()) {
        for (std::uint32_t i = 0; i < data.edges.size(); ++i) {
            edges_[data.edges[i].a].push_back(i);
            edges_[data.edges[i].b].push_back(i);
        }
    }

    double Miles(std::uint32_t from, std::uint32_t to, const GateMask& forbidden) const {
        std::vector<double> best(data_.nodes.size(), std::numeric_limits<double>::infinity());
        using Item = std::pair<double, std::uint32_t>;
        std::priority_queue<Item, std::vector<Item>, std::greater<>> open;
        best[from] = 0.0;
        open.emplace(0.0, from);
        while (!open.empty() && open.top().second != to) {
            const auto [miles, at] = open.top();
            open.pop();
            for (const std::uint32_t number : edges_[at]) {
                const NetworkEdge& edge = data_.edges[number];
                const std::uint32_t next = edge.a == at ? edge.b : edge.a;
                const double there = miles + MilesOf(edge);
                if (miles <= best[at] && there < best[next] && (data_.masks[edge.mask] & forbidden).none()) {
                    best[next] = there;
                    open.emplace(there, next);
                }
            }
        }
        return best[to];
    }

  private:
    double MilesOf(const NetworkEdge& edge) const {
        double miles = edge.nm;
        for (std::size_t i = 0; i < data_.routePoints.size(); ++i) {
            miles += data_.masks[edge.mask][i] ? data_.routePoints[i].cost : 0.0F;
        }
        return miles;
    }

    const NetworkData& data_;
    std::vector<std::vector<std::uint32_t>> edges_;
};

TEST(BuiltSearch, WaysAreAsShortAsThoseOfAPlainSearch) {
    std::string error;
    const auto network = Server::SeaNetwork::Load(SHARE_FOLDER "/network.bin", error);
    ASSERT_TRUE(network) << error;
    const NetworkData& data = network->data();
    const PlainSearch plain(data);
    std::mt19937 lots(20261122);
    std::size_t found = 0;
    for (std::size_t i = 0; i < kPairs; ++i) {
        // The first third sails as usual, the second without some passages, the last with what is shut
        // opened.
        GateMask forbidden = i < kPairs / 3 * 2 ? network->ShutGates() : GateMask();
        for (std::size_t gate = 0; i >= kPairs / 3 && gate < data.routePoints.size(); ++gate) {
            forbidden[gate] = forbidden[gate] || lots() % 6 == 0;
        }
        const auto& from = data.ports[lots() % data.ports.size()];
        const auto& to = data.ports[lots() % data.ports.size()];
        const double miles = plain.Miles(from.node, to.node, forbidden);
        const auto path = FindPath(*network, from.node, to.node, forbidden);
        ASSERT_EQ(path.has_value(), std::isfinite(miles)) << from.name << " - " << to.name;
        if (path) {
            ++found;
            EXPECT_NEAR(path->nm, miles, 0.5) << from.name << " - " << to.name;
        }
    }
    EXPECT_GT(found, kPairs / 2);
}

}  // namespace

}  // namespace Tarvik::Data

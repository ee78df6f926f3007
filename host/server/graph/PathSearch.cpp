// SPDX-License-Identifier: MIT
#include "host/server/graph/PathSearch.h"

#include <algorithm>
#include <limits>
#include <queue>

namespace Tarvik::Server {

namespace {

/// Edge lengths are rounded to 32 bits, so the great-circle bound is lowered by more than that rounding.
constexpr double kBoundFactor = 0.999999;
constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

struct OpenNode {
    float estimate;
    float nm;
    std::uint32_t node;
    bool operator<(const OpenNode& other) const { return estimate > other.estimate; }
};

struct Label {
    float nm = std::numeric_limits<float>::infinity();
    std::uint32_t edge = kNone;
};

/// Lower bounds of the ways to one node.
class Bound {
  public:
    Bound(const SeaNetwork& network, std::uint32_t to, const GateMask& forbidden)
        : network_(network), to_(to), usual_((network.ShutGates() & ~forbidden).none()) {}

    float From(std::uint32_t node) const {
        const double straight = ArcNm(network_.Vector(node), network_.Vector(to_)) * kBoundFactor;
        const auto nm = static_cast<float>(straight);
        // The table's sums are rounded as well; a mile of slack keeps the bound below the true way.
        return usual_ ? std::max(nm, network_.Bounds().Bound(node, to_) - 1.0F) : nm;
    }

  private:
    const SeaNetwork& network_;
    std::uint32_t to_;
    bool usual_;
};

NodePath WalkBack(const SeaNetwork& network, const std::vector<Label>& labels, std::uint32_t from,
                  std::uint32_t to) {
    NodePath path;
    path.nm = labels[to].nm;
    path.nodes.push_back(to);
    for (std::uint32_t at = to; at != from;) {
        const NetworkEdge& edge = network.data().edges[labels[at].edge];
        path.edges.push_back(labels[at].edge);
        at = edge.a == at ? edge.b : edge.a;
        path.nodes.push_back(at);
    }
    std::reverse(path.nodes.begin(), path.nodes.end());
    std::reverse(path.edges.begin(), path.edges.end());
    return path;
}

}  // namespace

std::optional<NodePath> FindPath(const SeaNetwork& network, std::uint32_t from, std::uint32_t to,
                                 const GateMask& forbidden) {
    const NetworkData& data = network.data();
    if (!network.Waters().Joined(from, to, forbidden)) {
        return std::nullopt;
    }
    std::vector<char> blocked(data.masks.size());
    for (std::size_t i = 0; i < blocked.size(); ++i) {
        blocked[i] = (data.masks[i] & forbidden).any() ? 1 : 0;
    }
    std::vector<Label> labels(data.nodes.size());
    std::priority_queue<OpenNode> open;
    const Bound bound(network, to, forbidden);
    labels[from].nm = 0.0F;
    open.push({bound.From(from), 0.0F, from});
    while (!open.empty()) {
        const OpenNode at = open.top();
        open.pop();
        if (at.node == to) {
            return WalkBack(network, labels, from, to);
        }
        if (at.nm > labels[at.node].nm) {
            continue;
        }
        for (const Arc& arc : network.Arcs(at.node)) {
            const float nm = at.nm + arc.nm;
            if (nm >= labels[arc.to].nm || blocked[data.edges[arc.edge].mask] != 0) {
                continue;
            }
            labels[arc.to] = {nm, arc.edge};
            open.push({nm + bound.From(arc.to), nm, arc.to});
        }
    }
    return std::nullopt;
}

}  // namespace Tarvik::Server

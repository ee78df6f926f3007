// SPDX-License-Identifier: MIT
// The shortest way between two nodes: A* (Hart, Nilsson and Raphael 1968) over the arcs of the network, with
// the larger of the great circle and the landmarks' bound (Goldberg and Harrelson 2005) as what is still
// ahead. What a search writes is kept per thread and told apart by a stamp, so that no search clears or
// allocates it; each node's bound is reckoned once. Cost: arcs looked at times the logarithm of the heap, and
// memory of one label a node and thread. About two thousand of the nodes are settled on the way between two
// ports. Where the network tells the way from a place to another, it is walked and not searched.
#include "host/server/graph/PathSearch.h"

#include <algorithm>
#include <limits>

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

/// What is known of a node, in the search of its stamp.
struct Label {
    std::uint32_t stamp = 0;
    float nm = 0.0F;
    std::uint32_t edge = kNone;
    float bound = 0.0F;
};

struct Desk {
    std::uint32_t stamp = 0;
    std::vector<Label> labels;
    std::vector<char> blocked;
    std::vector<OpenNode> open;  ///< a heap
};

/// The thread's desk, ready for a search over this many nodes.
Desk& ClearDesk(std::size_t nodes) {
    thread_local Desk desk;
    if (desk.labels.size() < nodes || desk.stamp == kNone) {
        desk.labels.assign(nodes, {});
        desk.stamp = 0;
    }
    ++desk.stamp;
    desk.open.clear();
    return desk;
}

/// Lower bounds of the ways to one node.
class Bound {
  public:
    Bound(const SeaNetwork& network, std::uint32_t to, const GateMask& forbidden)
        : network_(network), to_(to), usual_((network.ShutGates() & ~forbidden).none()) {}

    float From(std::uint32_t node) const {
        // The table's sums are rounded as well; a mile of slack keeps the bound below the true way.
        const float known = usual_ ? network_.Bounds().Bound(node, to_) - 1.0F : 0.0F;
        const UnitVector& here = network_.Vector(node);
        const UnitVector& there = network_.Vector(to_);
        if (usual_ && ArcNmAtMost(here, there) < known) {
            return known;
        }
        return std::max(static_cast<float>(ArcNm(here, there) * kBoundFactor), known);
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

NodePath PathOf(std::uint32_t from, const std::vector<Arc>& arcs) {
    NodePath path;
    path.nodes.reserve(arcs.size() + 1);
    path.edges.reserve(arcs.size());
    path.nodes.push_back(from);
    float nm = 0.0F;
    for (const Arc& arc : arcs) {
        path.nodes.push_back(arc.to);
        path.edges.push_back(arc.edge);
        nm += arc.nm;
    }
    path.nm = nm;
    return path;
}

/// Puts the better ways over the arcs of a node on the desk.
void Relax(const ArcTable& arcs, const Bound& bound, const OpenNode& at, Desk& desk) {
    for (const Arc& arc : arcs.Of(at.node)) {
        const float nm = at.nm + arc.nm;
        Label& label = desk.labels[arc.to];
        const bool known = label.stamp == desk.stamp;
        if ((known && nm >= label.nm) || desk.blocked[arc.mask] != 0) {
            continue;
        }
        label = {desk.stamp, nm, arc.edge, known ? label.bound : bound.From(arc.to)};
        desk.open.push_back({nm + label.bound, nm, arc.to});
        std::push_heap(desk.open.begin(), desk.open.end());
    }
}

}  // namespace

std::optional<NodePath> FindPath(const SeaNetwork& network, std::uint32_t from, std::uint32_t to,
                                 const GateMask& forbidden) {
    const NetworkData& data = network.data();
    if (!network.Waters().Joined(from, to, forbidden)) {
        return std::nullopt;
    }
    if (const auto told = network.UsualWay(from, to, forbidden)) {
        return PathOf(from, *told);
    }
    Desk& desk = ClearDesk(data.nodes.size());
    desk.blocked.resize(data.masks.size());
    for (std::size_t i = 0; i < desk.blocked.size(); ++i) {
        desk.blocked[i] = (data.masks[i] & forbidden).any() ? 1 : 0;
    }
    const ArcTable& arcs = network.ArcsBetween(from, to, forbidden);
    const Bound bound(network, to, forbidden);
    desk.labels[from] = {desk.stamp, 0.0F, kNone, 0.0F};
    desk.open.push_back({bound.From(from), 0.0F, from});
    while (!desk.open.empty()) {
        std::pop_heap(desk.open.begin(), desk.open.end());
        const OpenNode at = desk.open.back();
        desk.open.pop_back();
        if (at.node == to) {
            return WalkBack(network, desk.labels, from, to);
        }
        if (at.nm <= desk.labels[at.node].nm) {
            Relax(arcs, bound, at, desk);
        }
    }
    return std::nullopt;
}

}  // namespace Tarvik::Server

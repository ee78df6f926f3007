// SPDX-License-Identifier: MIT
#include "host/data/builder/PortLinker.h"

#include <algorithm>
#include <set>
#include <utility>

namespace Tarvik::Data {
namespace {

/// Smaller parts of the network are ponds and lagoons without a way out; inland seas with ports are larger.
constexpr uint32_t kSmallestPart = 30;
constexpr size_t kNodesLookedAt = 60;
constexpr double kFarthestWaterNm = 80.0;
/// A hand-made way this much farther than the water is still the better approach.
constexpr double kWayBonusNm = 1.5;

}  // namespace

PortLinker::PortLinker(std::vector<BuildNode>& nodes, SpannerEdges& edges, const Server::LandIndex& land)
    : nodes_(nodes), edges_(edges), land_(land) {
    std::vector<uint32_t> sizes;
    const std::vector<uint32_t> part = edges.components(sizes);
    std::set<uint32_t> ways;
    for (const Server::NetworkEdge& e : edges.edges()) {
        if (e.kind != Server::EdgeKind::Chain) continue;
        ways.insert(e.a);
        ways.insert(e.b);
    }
    wayNodes_.assign(ways.begin(), ways.end());
    for (uint32_t i = 0; i < nodes.size(); ++i) {
        if (nodes[i].free && sizes[part[i]] >= kSmallestPart) seaNodes_.push_back(i);
    }
}

bool PortLinker::seesNetwork(GeoPoint place) const {
    return std::any_of(around_.begin(), around_.end(),
                       [&](const auto& near) { return !land_.blocks(place, nodes_[near.second].at); });
}

bool PortLinker::findWater(GeoPoint port, GeoPoint& water, double& nm) {
    around_.clear();
    for (const uint32_t i : seaNodes_) around_.emplace_back(Server::arcNm(port, nodes_[i].at), i);
    const size_t looked = std::min(kNodesLookedAt, around_.size());
    std::partial_sort(around_.begin(), around_.begin() + static_cast<std::ptrdiff_t>(looked), around_.end());
    around_.resize(looked);
    for (nm = 0.0; nm <= kFarthestWaterNm; nm += nm < 4.0 ? 0.25 : 1.0) {
        const int directions = nm == 0.0 ? 1 : 24;
        for (int i = 0; i < directions; ++i) {
            water = Server::roundPoint(Server::destination(port, 360.0 / directions * i, nm));
            if (!land_.isLand(water) && seesNetwork(water)) return true;
        }
    }
    return false;
}

uint32_t PortLinker::nearestWayNode(GeoPoint port, double& nm) const {
    uint32_t best = wayNodes_.front();
    nm = Server::arcNm(port, nodes_[best].at);
    for (const uint32_t i : wayNodes_) {
        const double d = Server::arcNm(port, nodes_[i].at);
        if (d >= nm) continue;
        nm = d;
        best = i;
    }
    return best;
}

uint32_t PortLinker::linkOne(GeoPoint port) {
    GeoPoint water;
    double waterNm = 0.0;
    const bool hasWater = findWater(port, water, waterNm);
    double wayNm = 1e9;
    uint32_t target = wayNodes_.empty() ? 0 : nearestWayNode(port, wayNm);
    const auto node = static_cast<uint32_t>(nodes_.size());
    if (hasWater && waterNm + kWayBonusNm < wayNm) {
        nodes_.push_back({water, true, false, {}, {}});
        if (waterNm == 0.0) return node;
        target = node;
    }
    nodes_.push_back({port, false, false, {}, {}});
    const auto own = static_cast<uint32_t>(nodes_.size() - 1);
    edges_.addFixed(own, target, Server::EdgeKind::Link);
    return own;
}

std::vector<uint32_t> PortLinker::link(const std::vector<PortSource>& ports) {
    std::vector<uint32_t> result;
    const auto first = static_cast<uint32_t>(nodes_.size());
    for (const PortSource& port : ports) result.push_back(linkOne(port.at));
    edges_.connect(first);
    return result;
}

}  // namespace Tarvik::Data

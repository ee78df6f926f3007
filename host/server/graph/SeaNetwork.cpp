// SPDX-License-Identifier: MIT
#include "host/server/graph/SeaNetwork.h"

#include <utility>

#include "host/server/graph/Gate.h"
#include "host/server/graph/SeaNetworkFile.h"

namespace Tarvik::Server {

namespace {

constexpr std::size_t kLandmarkCount = 16;

}  // namespace

std::shared_ptr<const SeaNetwork> SeaNetwork::Load(const std::string& path, std::string& error) {
    std::optional<NetworkData> data = SeaNetworkFile::Read(path, error);
    if (!data) {
        return nullptr;
    }
    return std::make_shared<const SeaNetwork>(std::move(*data));
}

SeaNetwork::SeaNetwork(NetworkData data) : data_(std::move(data)), land_(data_.land), basins_(data_) {
    BuildArcs();
    vectors_.reserve(data_.nodes.size());
    for (const GeoPoint p : data_.nodes) {
        vectors_.push_back(ToVector(p));
    }
    for (const NetworkPort& port : data_.ports) {
        nodeById_.emplace(port.id, port.node);
    }
    for (std::size_t i = 0; i < data_.routePoints.size(); ++i) {
        const RoutePoint& point = data_.routePoints[i];
        nodeById_.emplace(point.id, point.node);
        routePointById_.emplace(point.id, static_cast<std::uint16_t>(i));
        shut_[i] = point.shut;
    }
    shut_[kIceBit] = true;
    landmarks_ = Landmarks(OpenArcs(), kLandmarkCount);
}

ArcTable SeaNetwork::OpenArcs() const {
    ArcTable open;
    open.start.push_back(0);
    for (std::uint32_t node = 0; node < data_.nodes.size(); ++node) {
        for (const Arc& arc : Arcs(node)) {
            if ((data_.masks[data_.edges[arc.edge].mask] & shut_).none()) {
                open.arcs.push_back(arc);
            }
        }
        open.start.push_back(static_cast<std::uint32_t>(open.arcs.size()));
    }
    return open;
}

void SeaNetwork::BuildArcs() {
    table_.start.assign(data_.nodes.size() + 1, 0);
    for (const NetworkEdge& e : data_.edges) {
        ++table_.start[e.a + 1];
        ++table_.start[e.b + 1];
    }
    for (std::size_t i = 1; i < table_.start.size(); ++i) {
        table_.start[i] += table_.start[i - 1];
    }
    table_.arcs.resize(table_.start.back());
    std::vector<std::uint32_t> next(table_.start.begin(), table_.start.end() - 1);
    for (std::uint32_t i = 0; i < data_.edges.size(); ++i) {
        const NetworkEdge& e = data_.edges[i];
        table_.arcs[next[e.a]++] = {e.b, i, e.nm};
        table_.arcs[next[e.b]++] = {e.a, i, e.nm};
    }
}

std::span<const Arc> SeaNetwork::Arcs(std::uint32_t node) const {
    return {table_.arcs.data() + table_.start[node], table_.start[node + 1] - table_.start[node]};
}

std::optional<std::uint32_t> SeaNetwork::NodeOf(const std::string& id) const {
    const auto it = nodeById_.find(id);
    return it == nodeById_.end() ? std::nullopt : std::optional(it->second);
}

std::optional<std::uint16_t> SeaNetwork::RoutePointIndex(const std::string& id) const {
    const auto it = routePointById_.find(id);
    return it == routePointById_.end() ? std::nullopt : std::optional(it->second);
}

GateMask SeaNetwork::GatesCrossed(GeoPoint a, GeoPoint b) const {
    return Server::GatesCrossed(GreatCircle(a, b), data_.routePoints);
}

GateMask GatesCrossed(const std::vector<GeoPoint>& way, const std::vector<RoutePoint>& routePoints) {
    GateMask mask;
    const Bounds bounds = BoundsOf(way);
    for (std::size_t i = 0; i < routePoints.size(); ++i) {
        const std::vector<GeoPoint>& gate = routePoints[i].gate;
        mask[i] = MayMeet(bounds, BoundsOf(gate)) && FirstCrossing(way, gate).has_value();
    }
    for (const GeoPoint p : way) {
        if (p.y > kNorthLimit || p.y < kSouthLimit) {
            mask[kIceBit] = true;
        }
    }
    return mask;
}

}  // namespace Tarvik::Server

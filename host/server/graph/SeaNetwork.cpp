// SPDX-License-Identifier: MIT
#include "host/server/graph/SeaNetwork.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <set>
#include <utility>

#include "host/server/graph/NamedWays.h"
#include "host/server/graph/PassageReach.h"
#include "host/server/graph/SeaNetworkFile.h"

namespace Tarvik::Server {

namespace {

constexpr std::size_t kLandmarkCount = 16;

std::uint64_t NextNumber() {
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

LandIndex LandOf(const NetworkData& data) {
    return data.tables ? LandIndex(data.tables->land) : LandIndex(data.land, data.areas);
}

/// Where ships turn to sail along a parallel: Cape Horn needs 57 degrees, tables of distances sail the South
/// Pacific and the Indian Ocean along 46 to 52.
constexpr GeoPoint kSouthLimits[] = {{-180, -52}, {-100, -52}, {-82, -57}, {-78, -60}, {-50, -60}, {-45, -52},
                                     {15, -48},   {25, -46},   {140, -47}, {160, -52}, {180, -52}};

std::vector<std::uint32_t> NamedNodes(const NetworkData& data) {
    std::set<std::uint32_t> nodes;
    for (const NetworkPort& port : data.ports) {
        nodes.insert(port.node);
    }
    for (const RoutePoint& point : data.routePoints) {
        nodes.insert(point.node);
    }
    return {nodes.begin(), nodes.end()};
}

}  // namespace

double SouthLimit(double longitude) {
    const double x = WrapLongitude(longitude);
    const auto* east = std::upper_bound(std::begin(kSouthLimits), std::end(kSouthLimits), x,
                                        [](double value, GeoPoint limit) { return value < limit.x; });
    if (east == std::end(kSouthLimits)) {
        return std::prev(east)->y;
    }
    const GeoPoint west = *std::prev(east);
    return west.y + (x - west.x) / (east->x - west.x) * (east->y - west.y);
}

std::shared_ptr<const SeaNetwork> SeaNetwork::Load(const std::string& path, std::string& error) {
    std::optional<NetworkData> data = SeaNetworkFile::Read(path, error);
    if (!data) {
        return nullptr;
    }
    return std::make_shared<const SeaNetwork>(std::move(*data));
}

SeaNetwork::SeaNetwork(NetworkData data)
    : number_(NextNumber()), data_(std::move(data)), land_(LandOf(data_)), basins_(data_) {
    gates_.cells = GateCells(data_.routePoints, data_.nodes);
    BuildArcs();
    vectors_.reserve(data_.nodes.size());
    for (const GeoPoint p : data_.nodes) {
        vectors_.push_back(ToVector(p));
    }
    for (const NetworkPort& port : data_.ports) {
        AddNamed(port.id, port.node);
    }
    for (std::size_t i = 0; i < data_.routePoints.size(); ++i) {
        const RoutePoint& point = data_.routePoints[i];
        AddNamed(point.id, point.node);
        routePointById_.emplace(point.id, static_cast<std::uint16_t>(i));
        gates_.shut[i] = point.shut;
        gates_.costly[i] = point.cost > 0.0F;
    }
    gates_.shut[kIceBit] = true;
    landmarks_ = data_.tables ? Landmarks(data_.tables->landmarks, data_.nodes.size())
                              : Landmarks(OpenArcs(), kLandmarkCount);
    if (data_.tables) {
        ways_.usual = MarkedArcs(ways_.all, data_.tables->usual.View());
        ways_.isNamed.assign(data_.nodes.size(), 0);
        const std::vector<std::uint32_t> named = NamedNodes(data_);
        for (const std::uint32_t node : named) {
            ways_.isNamed[node] = 1;
        }
        ways_.steps = NextSteps(ways_.usual, named, data_.tables->steps);
    }
    if (data_.reach.empty()) {
        FillReach();
    }
}

const ArcTable& SeaNetwork::ArcsBetween(std::uint32_t a, std::uint32_t b, const GateMask& forbidden) const {
    const bool usual =
        !ways_.isNamed.empty() && ways_.isNamed[a] != 0 && ways_.isNamed[b] != 0 && forbidden == gates_.shut;
    return usual ? ways_.usual : ways_.all;
}

std::optional<std::vector<Arc>> SeaNetwork::UsualWay(std::uint32_t from, std::uint32_t to,
                                                     const GateMask& forbidden) const {
    return &ArcsBetween(from, to, forbidden) == &ways_.usual ? ways_.steps.Walk(ways_.usual, from, to)
                                                             : std::nullopt;
}

NetworkTables SeaNetwork::Tables() const {
    const std::vector<std::uint32_t> named = NamedNodes(data_);
    std::vector<std::uint8_t> usual = EdgesOfWays(OpenArcs(), named, data_.edges.size());
    std::vector<std::uint8_t> steps = NextSteps::Reckon(MarkedArcs(ways_.all, usual), named);
    return {land_.Tables(), landmarks_.Distances(), FrozenArray(std::move(usual)),
            FrozenArray(std::move(steps))};
}

void SeaNetwork::AddNamed(const std::string& id, std::uint32_t node) {
    named_.emplace(id, Named{node, static_cast<std::uint32_t>(named_.size())});
}

void SeaNetwork::FillReach() {
    std::vector<std::uint32_t> targets;
    for (const NetworkPort& port : data_.ports) {
        targets.push_back(port.node);
    }
    for (const RoutePoint& point : data_.routePoints) {
        targets.push_back(point.node);
    }
    for (std::size_t i = 0; i < data_.routePoints.size(); ++i) {
        data_.reach.push_back(ReachFrom(data_, ways_.all, data_.routePoints[i],
                                        ForbiddenBy(static_cast<std::uint16_t>(i)), targets));
    }
}

const ReachEntry& SeaNetwork::Reach(std::uint16_t routePoint, const std::string& id) const {
    return data_.reach[routePoint][named_.at(id).column];
}

GateMask SeaNetwork::ForbiddenBy(std::uint16_t routePoint) const {
    GateMask forbidden = gates_.shut;
    const RoutePoint& chosen = data_.routePoints[routePoint];
    for (const AlternativeGroup& group : chosen.groups) {
        for (const std::uint16_t other : group) {
            forbidden[other] = true;
        }
    }
    if (IsIce(routePoint)) {
        OpenIce(forbidden);
    }
    forbidden[routePoint] = false;
    return forbidden;
}

bool SeaNetwork::IsIce(std::uint16_t routePoint) const {
    const RoutePoint& point = data_.routePoints[routePoint];
    return point.shut && data_.nodes[point.node].y > kIceLatitude;
}

void SeaNetwork::OpenIce(GateMask& forbidden) const {
    for (std::size_t i = 0; i < data_.routePoints.size(); ++i) {
        if (IsIce(static_cast<std::uint16_t>(i))) {
            forbidden[i] = false;
        }
    }
    forbidden[kIceBit] = false;
}

ArcTable SeaNetwork::OpenArcs() const {
    ArcTable open;
    open.start.push_back(0);
    for (std::uint32_t node = 0; node < data_.nodes.size(); ++node) {
        for (const Arc& arc : Arcs(node)) {
            if ((data_.masks[arc.mask] & gates_.shut).none()) {
                open.arcs.push_back(arc);
            }
        }
        open.start.push_back(static_cast<std::uint32_t>(open.arcs.size()));
    }
    return open;
}

void SeaNetwork::BuildArcs() {
    std::vector<float> cost;
    for (const GateMask& mask : data_.masks) {
        cost.push_back(0.0F);
        for (std::size_t i = 0; i < data_.routePoints.size(); ++i) {
            cost.back() += mask[i] ? data_.routePoints[i].cost : 0.0F;
        }
    }
    ways_.all.start.assign(data_.nodes.size() + 1, 0);
    for (const NetworkEdge& e : data_.edges) {
        ++ways_.all.start[e.a + 1];
        ++ways_.all.start[e.b + 1];
    }
    for (std::size_t i = 1; i < ways_.all.start.size(); ++i) {
        ways_.all.start[i] += ways_.all.start[i - 1];
    }
    ways_.all.arcs.resize(ways_.all.start.back());
    std::vector<std::uint32_t> next(ways_.all.start.begin(), ways_.all.start.end() - 1);
    for (std::uint32_t i = 0; i < data_.edges.size(); ++i) {
        const NetworkEdge& e = data_.edges[i];
        const float nm = e.nm + cost[e.mask];
        ways_.all.arcs[next[e.a]++] = {e.b, i, nm, e.mask};
        ways_.all.arcs[next[e.b]++] = {e.a, i, nm, e.mask};
    }
}

std::optional<std::uint32_t> SeaNetwork::NodeOf(const std::string& id) const {
    const auto it = named_.find(id);
    return it == named_.end() ? std::nullopt : std::optional(it->second.node);
}

std::optional<std::uint16_t> SeaNetwork::RoutePointIndex(const std::string& id) const {
    const auto it = routePointById_.find(id);
    return it == routePointById_.end() ? std::nullopt : std::optional(it->second);
}

GateMask SeaNetwork::GatesCrossed(GeoPoint a, GeoPoint b) const {
    return Server::GatesCrossed(GreatCircle(a, b), data_.routePoints, gates_.cells);
}

}  // namespace Tarvik::Server

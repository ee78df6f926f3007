// SPDX-License-Identifier: MIT
// Where a port's ships get onto the network. Rings of 16 directions around the port, every half mile and then
// every mile, are tried for a place on the water, and judged by how many of the 40 nearest nodes it sees,
// less three for each mile: a dock sees little, the roads before it all round. Once water is found only three
// miles more are looked at. Own method. Cost: for each port a distance to every sea node, and up to 40 looks
// at the land for each place tried.
#include "host/data/builder/PortLinker.h"

#include <algorithm>
#include <set>
#include <utility>

namespace Tarvik::Data {

namespace {

constexpr std::size_t kNodesLookedAt = 40;
/// A place that sees this many of them lies open enough.
constexpr int kEnoughSeen = 16;
/// How far behind the first water the open roads are looked for, and the view that a mile more must bring.
constexpr double kRoadsNm = 3.0;
constexpr double kSeenPerNm = 3.0;
/// Farther from the water no ship comes: the list of ports holds inland towns too.
constexpr double kFarthestNm = 35.0;
/// A hand-made way this much farther than the water is still the better approach.
constexpr double kWayBonusNm = 1.5;

}  // namespace

PortLinker::PortLinker(std::vector<BuildNode>& nodes, SpannerEdges& edges, const Server::LandIndex& land)
    : nodes_(nodes), edges_(edges), land_(land) {
    std::vector<std::uint32_t> sizes;
    const std::vector<std::uint32_t> part = edges.Components(sizes);
    std::set<std::uint32_t> ways;
    for (const Server::NetworkEdge& e : edges.Edges()) {
        if (e.kind != Server::EdgeKind::Chain) {
            continue;
        }
        ways.insert(e.a);
        ways.insert(e.b);
    }
    wayNodes_.assign(ways.begin(), ways.end());
    // Other parts are lagoons and basins that the map shows without their way out.
    const auto oceans =
        static_cast<std::uint32_t>(std::max_element(sizes.begin(), sizes.end()) - sizes.begin());
    for (std::uint32_t i = 0; i < nodes.size(); ++i) {
        if (nodes[i].free && part[i] == oceans) {
            seaNodes_.push_back(i);
        }
    }
    std::erase_if(wayNodes_, [&](std::uint32_t i) { return part[i] != oceans; });
}

double PortLinker::Water::Score() const {
    return seen - kSeenPerNm * nm;
}

void PortLinker::LookAround(GeoPoint port) {
    around_.clear();
    for (const std::uint32_t i : seaNodes_) {
        around_.emplace_back(Server::ArcNm(port, nodes_[i].at), i);
    }
    const std::size_t looked = std::min(kNodesLookedAt, around_.size());
    std::partial_sort(around_.begin(), around_.begin() + static_cast<std::ptrdiff_t>(looked), around_.end());
    around_.resize(looked);
}

std::optional<PortLinker::Water> PortLinker::LookFrom(GeoPoint place, double nm) const {
    if (land_.IsLand(place)) {
        return std::nullopt;
    }
    Water water{place, nm, 0, 0};
    for (const auto& [distance, node] : around_) {
        if (land_.Blocks(place, nodes_[node].at)) {
            continue;
        }
        if (water.seen == 0) {
            water.nearest = node;
        }
        if (++water.seen == kEnoughSeen) {
            break;
        }
    }
    return water.seen == 0 ? std::nullopt : std::optional(water);
}

std::optional<PortLinker::Water> PortLinker::FindWater(GeoPoint port) {
    LookAround(port);
    std::optional<Water> best;
    double last = kFarthestNm;
    for (double nm = 0.0; nm <= last; nm += nm < 4.0 ? 0.5 : 1.0) {
        const int directions = nm == 0.0 ? 1 : 16;
        for (int i = 0; i < directions; ++i) {
            const GeoPoint place = Server::RoundPoint(Server::Destination(port, 360.0 / directions * i, nm));
            const std::optional<Water> water = LookFrom(place, nm);
            if (!water || (best && water->Score() <= best->Score())) {
                continue;
            }
            if (!best) {
                last = std::min(last, nm + kRoadsNm);
            }
            best = water;
        }
    }
    return best;
}

std::uint32_t PortLinker::NearestWayNode(GeoPoint port, double& nm) const {
    std::uint32_t best = wayNodes_.front();
    nm = Server::ArcNm(port, nodes_[best].at);
    for (const std::uint32_t i : wayNodes_) {
        const double d = Server::ArcNm(port, nodes_[i].at);
        if (d >= nm) {
            continue;
        }
        nm = d;
        best = i;
    }
    return best;
}

std::optional<std::uint32_t> PortLinker::LinkOne(GeoPoint port) {
    const std::optional<Water> water = FindWater(port);
    double wayNm = 1e9;
    std::uint32_t target = wayNodes_.empty() ? 0 : NearestWayNode(port, wayNm);
    if (!water && wayNm > kFarthestNm) {
        return std::nullopt;
    }
    const auto node = static_cast<std::uint32_t>(nodes_.size());
    if (water && water->nm + kWayBonusNm < wayNm) {
        nodes_.push_back({water->at, true, false, {}, {}});
        edges_.AddFixed(node, water->nearest, Server::EdgeKind::Sea);
        if (water->nm == 0.0) {
            return node;
        }
        target = node;
    }
    nodes_.push_back({port, false, false, {}, {}});
    const auto own = static_cast<std::uint32_t>(nodes_.size() - 1);
    edges_.AddFixed(own, target, Server::EdgeKind::Link);
    return own;
}

std::vector<std::optional<std::uint32_t>> PortLinker::Link(const std::vector<PortSource>& ports) {
    std::vector<std::optional<std::uint32_t>> result;
    result.reserve(ports.size());
    const auto first = static_cast<std::uint32_t>(nodes_.size());
    for (const PortSource& port : ports) {
        result.push_back(LinkOne(port.at));
    }
    edges_.Connect(first, 0.0);
    return result;
}

}  // namespace Tarvik::Data

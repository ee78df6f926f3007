// SPDX-License-Identifier: MIT
#include "host/data/builder/NetworkBuilder.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "host/data/builder/CoastCorners.h"
#include "host/data/builder/PortLinker.h"
#include "host/geo/RingShape.h"
#include "host/geo/Sphere.h"
#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Data {

namespace {

constexpr double kLatticeStep = 5.0;
constexpr double kLatticeNorth = 75.0;
constexpr double kLatticeSouth = -55.0;
/// How many degrees of longitude lie between the nodes along the southern limit.
constexpr double kLimitStep = 3.0;
/// How far off a closed area's corners ships turn.
constexpr double kAreaOffsetNm = 0.15;
/// How far ways along a coast keep off it.
constexpr double kMarginNm = 3.0;
/// How far around ports and hand-made ways the coast is followed closely.
constexpr double kBusyNm = 30.0;
constexpr double kUsedNm = 40.0;
constexpr double kLatticeClearNm = 15.0;
/// Hand-made ways get a node at least this often, so that ports along a river find one near.
constexpr double kPassageStepNm = 5.0;

std::vector<std::vector<GeoPoint>> RingsOf(const std::vector<Polygon>& land) {
    std::vector<std::vector<GeoPoint>> rings;
    for (const Polygon& polygon : land) {
        rings.insert(rings.end(), polygon.begin(), polygon.end());
    }
    return rings;
}

std::vector<std::vector<GeoPoint>> RingsOf(const std::vector<AreaSource>& areas) {
    std::vector<std::vector<GeoPoint>> rings;
    rings.reserve(areas.size());
    for (const AreaSource& area : areas) {
        rings.push_back(area.ring);
    }
    return rings;
}

/// The points after a up to b, in even steps.
std::vector<GeoPoint> Steps(GeoPoint a, GeoPoint b) {
    const int count = std::max(1, static_cast<int>(std::ceil(Server::ArcNm(a, b) / kPassageStepNm)));
    std::vector<GeoPoint> points;
    for (int i = 1; i < count; ++i) {
        const double t = static_cast<double>(i) / count;
        points.push_back(Server::RoundPoint({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)}));
    }
    points.push_back(b);
    return points;
}

}  // namespace

NetworkBuilder::NetworkBuilder(const Sources& sources, const std::vector<Polygon>& land)
    : sources_(sources),
      land_(land),
      rings_(RingsOf(land)),
      areas_(RingsOf(sources.areas)),
      index_(rings_, areas_) {}

std::uint32_t NetworkBuilder::NodeAt(GeoPoint at) {
    at.x = Server::RoundPoint({Server::WrapLongitude(at.x), at.y}).x;
    const auto [it, isNew] = named_.try_emplace({at.x, at.y}, static_cast<std::uint32_t>(nodes_.size()));
    if (isNew) {
        nodes_.push_back({at, !index_.IsLand(at), false, {}, {}});
    }
    return it->second;
}

void NetworkBuilder::AddPassages(SpannerEdges& edges) {
    for (const PassageSource& passage : sources_.passages) {
        if (passage.vertices.empty()) {
            continue;
        }
        std::uint32_t before = NodeAt(passage.vertices.front().at);
        for (std::size_t i = 1; i < passage.vertices.size(); ++i) {
            for (const GeoPoint p : Steps(passage.vertices[i - 1].at, passage.vertices[i].at)) {
                const std::uint32_t node = NodeAt(p);
                edges.AddFixed(before, node, Server::EdgeKind::Chain);
                before = node;
            }
        }
    }
}

void NetworkBuilder::AddCapes() {
    std::vector<GeoPoint> places;
    for (const PortSource& port : sources_.ports) {
        places.push_back(port.at);
    }
    for (const RoutePointSource& point : sources_.routePoints) {
        places.push_back(point.at);
    }
    for (const PassageSource& passage : sources_.passages) {
        for (const PassageVertex& vertex : passage.vertices) {
            places.push_back(vertex.at);
        }
    }
    const Waters waters{BusyWaters(places, kBusyNm), BusyWaters(places, kUsedNm)};
    for (const Corner& corner : FindCorners(land_, index_, waters)) {
        if (!InArea(corner.at)) {
            nodes_.push_back({corner.at, true, !corner.shared, corner.toPrevious, corner.toNext});
        }
    }
}

void NetworkBuilder::AddLattice() {
    for (double y = kLatticeSouth; y <= kLatticeNorth; y += kLatticeStep) {
        const int count = static_cast<int>(std::round(360.0 / kLatticeStep * std::cos(y * Server::kDegree)));
        for (int i = 0; i < count; ++i) {
            const GeoPoint at = Server::RoundPoint({Server::WrapLongitude(2.5 + 360.0 / count * i), y});
            if (!index_.IsLand(at) && !InArea(at) && at.y >= Server::SouthLimit(at.x) &&
                index_.IsClear(at, kLatticeClearNm)) {
                nodes_.push_back({at, true, false, {}, {}});
            }
        }
    }
}

void NetworkBuilder::AddAreas() {
    for (const std::vector<GeoPoint>& ring : areas_) {
        for (const GeoPoint at : CornersOutside(ring, kAreaOffsetNm)) {
            if (!index_.IsLand(at) && !InArea(at)) {
                nodes_.push_back({at, true, false, {}, {}});
            }
        }
    }
}

void NetworkBuilder::AddSouthLimit() {
    for (double x = -180.0; x < 180.0; x += kLimitStep) {
        const GeoPoint at{x, Server::SouthLimit(x)};
        if (!index_.IsLand(at)) {
            nodes_.push_back({at, true, false, {}, {}});
        }
    }
}

bool NetworkBuilder::InArea(GeoPoint p) const {
    return std::any_of(areas_.begin(), areas_.end(),
                       [p](const std::vector<GeoPoint>& ring) { return IsInside(p, ring); });
}

void NetworkBuilder::AddGroups(Server::NetworkData& data) const {
    std::map<std::string, Server::AlternativeGroup> members;
    for (std::size_t i = 0; i < sources_.routePoints.size(); ++i) {
        for (const std::string& group : sources_.routePoints[i].groups) {
            members[group].push_back(static_cast<std::uint16_t>(i));
        }
    }
    for (std::size_t i = 0; i < sources_.routePoints.size(); ++i) {
        for (const std::string& name : sources_.routePoints[i].groups) {
            Server::AlternativeGroup others = members[name];
            std::erase(others, static_cast<std::uint16_t>(i));
            if (!others.empty()) {
                data.routePoints[i].groups.push_back(std::move(others));
            }
        }
    }
}

void NetworkBuilder::AddMasks(Server::NetworkData& data) const {
    std::unordered_map<Server::GateMask, std::uint16_t> known;
    const Server::GateCells cells(data.routePoints, data.nodes);
    for (Server::NetworkEdge& edge : data.edges) {
        const Server::GateMask mask = Server::GatesCrossed(
            Server::GreatCircle(data.nodes[edge.a], data.nodes[edge.b]), data.routePoints, cells);
        const auto [it, isNew] = known.try_emplace(mask, static_cast<std::uint16_t>(data.masks.size()));
        if (isNew) {
            data.masks.push_back(mask);
        }
        edge.mask = it->second;
    }
}

Server::NetworkData NetworkBuilder::Build() {
    SpannerEdges edges(nodes_, index_);
    Server::NetworkData data;
    for (const RoutePointSource& p : sources_.routePoints) {
        data.routePoints.push_back({p.id, p.name, NodeAt(p.at), p.shut, p.gate, {}, p.cost});
    }
    AddPassages(edges);
    AddCapes();
    AddAreas();
    AddLattice();
    AddSouthLimit();
    edges.Connect(0, kMarginNm);
    PortLinker linker(nodes_, edges, index_);
    const std::vector<std::optional<std::uint32_t>> portNodes = linker.Link(sources_.ports);
    for (std::size_t i = 0; i < sources_.ports.size(); ++i) {
        const PortSource& port = sources_.ports[i];
        if (portNodes[i]) {
            data.ports.push_back({port.id, port.unlocode, port.name, *portNodes[i]});
        }
    }
    for (const BuildNode& node : nodes_) {
        data.nodes.push_back(node.at);
    }
    data.edges = edges.Edges();
    data.land = rings_;
    data.areas = areas_;
    AddGroups(data);
    AddMasks(data);
    std::vector<std::uint32_t> sizes;
    const std::vector<std::uint32_t> part = edges.Components(sizes);
    const auto largest =
        static_cast<std::uint32_t>(std::max_element(sizes.begin(), sizes.end()) - sizes.begin());
    for (const auto& p : data.routePoints) {
        if (part[p.node] != largest) {
            remarks_.push_back("route point " + p.name + " is not joined to the oceans");
        }
    }
    for (const auto& p : data.ports) {
        if (part[p.node] != largest) {
            remarks_.push_back("port " + p.unlocode + " " + p.name + " is not joined to the oceans");
        }
    }
    const Server::SeaNetwork made(data);
    data.reach = made.data().reach;
    data.tables = made.Tables();
    return data;
}

}  // namespace Tarvik::Data

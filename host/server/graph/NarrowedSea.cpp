// SPDX-License-Identifier: MIT
// A network cut down to what a server allows. Forbidden areas join the areas that the map closes, and a limit
// of latitude is a line round the globe, so that searches, taut ways, offers and ways from a position keep to
// them without asking. Ways that touch them go; corners outside the areas, and places along the limits, are
// joined to the nearest nodes in sight, since the nodes that are there may lie far from the best way round.
// Own method. Cost: a look at every edge, some hundred lines of sight for each new node, and the tables that
// the file tells of the whole network reckoned anew when the network is made of this.
#include "host/server/graph/NarrowedSea.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

#include "host/geo/RingShape.h"
#include "host/server/graph/PassageReach.h"

namespace Tarvik::Server {

namespace {

/// How far outside an area's corners, and inside the limits, ships turn.
constexpr double kOutsideNm = 0.5;
constexpr double kInsideDegrees = 0.02;
/// How many degrees of longitude lie between the places along a limit.
constexpr double kStepDegrees = 3.0;
/// How far a new node looks for others, how many lines of sight it tries, and how many old nodes it joins.
constexpr double kCornerReachNm = 600.0;
constexpr std::size_t kLooks = 400;
constexpr std::size_t kJoined = 40;

using Ring = std::vector<GeoPoint>;

/// A line round the globe.
Ring Parallel(double latitude) {
    constexpr double kPiece = 10.0;
    Ring ring;
    for (double x = -180.0; x < 180.0; x += kPiece) {
        ring.push_back({x, latitude});
    }
    return ring;
}

std::vector<Ring> BarriersOf(const ForbiddenWaters& waters) {
    std::vector<Ring> rings;
    for (const ForbiddenWaters::Area& area : waters.areas) {
        rings.push_back(area.ring);
    }
    for (const double latitude : {waters.north, waters.south}) {
        if (std::abs(latitude) < 90.0) {
            rings.push_back(Parallel(latitude));
        }
    }
    return rings;
}

/// Takes the ways that are left, and adds those of new nodes.
class Narrowing {
  public:
    Narrowing(const NetworkData& whole, const ForbiddenWaters& waters)
        : waters_(waters), barriers_(BarriersOf(waters)), data_(whole), oldNodes_(whole.nodes.size()) {
        data_.tables.reset();
        data_.reach.clear();
        data_.areas.insert(data_.areas.end(), barriers_.begin(), barriers_.end());
        land_ = LandIndex(data_.land, data_.areas);
        for (const GeoPoint node : data_.nodes) {
            shut_.push_back(waters_.Hold(node) ? 1 : 0);
            vectors_.push_back(ToVector(node));
        }
    }

    NetworkData Made() {
        DropEdges();
        AddNodes();
        cells_ = GateCells(data_.routePoints, data_.nodes);
        for (std::size_t i = 0; i < data_.masks.size(); ++i) {
            masks_.try_emplace(data_.masks[i], static_cast<std::uint16_t>(i));
        }
        for (std::size_t i = oldNodes_; i < data_.nodes.size(); ++i) {
            Join(static_cast<std::uint32_t>(i));
        }
        return std::move(data_);
    }

  private:
    void DropEdges() {
        const LandIndex barriers({}, barriers_);
        std::erase_if(data_.edges, [&](const NetworkEdge& edge) {
            return shut_[edge.a] != 0 || shut_[edge.b] != 0 ||
                   barriers.Blocks(data_.nodes[edge.a], data_.nodes[edge.b]);
        });
    }
    void AddNodes() {
        for (const ForbiddenWaters::Area& area : waters_.areas) {
            for (const GeoPoint corner : Data::CornersOutside(Data::Unwrapped(area.ring), kOutsideNm)) {
                AddNode(corner);
            }
        }
        for (double x = -180.0; x < 180.0; x += kStepDegrees) {
            if (waters_.north < 90.0) {
                AddNode({x, waters_.north - kInsideDegrees});
            }
            if (waters_.south > -90.0) {
                AddNode({x, waters_.south + kInsideDegrees});
            }
        }
    }
    void AddNode(GeoPoint at) {
        at = RoundPoint(at);
        if (!waters_.Hold(at) && !land_.IsLand(at)) {
            data_.nodes.push_back(at);
            vectors_.push_back(ToVector(at));
            shut_.push_back(0);
        }
    }
    void Join(std::uint32_t node) {
        std::vector<std::pair<double, std::uint32_t>> near;
        for (std::uint32_t i = 0; i < node; ++i) {
            const double nm = ArcNm(vectors_[node], vectors_[i]);
            if (nm <= kCornerReachNm && shut_[i] == 0) {
                near.emplace_back(nm, i);
            }
        }
        std::sort(near.begin(), near.end());
        std::size_t looks = 0;
        std::size_t joined = 0;
        for (const auto& [nm, other] : near) {
            const bool old = other < oldNodes_;
            if (old && (joined == kJoined || looks == kLooks)) {
                continue;
            }
            looks += old ? 1 : 0;
            if (land_.IsLand(data_.nodes[other]) ||
                !IsSeaRoom(land_, data_.nodes[node], data_.nodes[other])) {
                continue;
            }
            joined += old ? 1 : 0;
            data_.edges.push_back({node, other, static_cast<float>(nm), MaskOf(node, other), EdgeKind::Sea});
        }
    }
    std::uint16_t MaskOf(std::uint32_t a, std::uint32_t b) {
        const GateMask mask =
            GatesCrossed(GreatCircle(data_.nodes[a], data_.nodes[b]), data_.routePoints, cells_);
        const auto [it, isNew] = masks_.try_emplace(mask, static_cast<std::uint16_t>(data_.masks.size()));
        if (isNew) {
            data_.masks.push_back(mask);
        }
        return it->second;
    }

    const ForbiddenWaters& waters_;
    std::vector<Ring> barriers_;
    NetworkData data_;
    std::size_t oldNodes_;
    LandIndex land_;
    GateCells cells_;
    std::vector<char> shut_;
    std::vector<UnitVector> vectors_;
    std::unordered_map<GateMask, std::uint16_t> masks_;
};

}  // namespace

bool ForbiddenWaters::Hold(GeoPoint place) const {
    if (place.y > north || place.y < south) {
        return true;
    }
    return std::any_of(areas.begin(), areas.end(), [place](const Area& area) {
        const Ring ring = Data::Unwrapped(area.ring);
        const auto holds = [&ring, place](double turn) {
            return Data::IsInside({place.x + turn, place.y}, ring);
        };
        return holds(0.0) || holds(360.0) || holds(-360.0);
    });
}

NetworkData Narrowed(const NetworkData& whole, const ForbiddenWaters& waters) {
    return Narrowing(whole, waters).Made();
}

}  // namespace Tarvik::Server

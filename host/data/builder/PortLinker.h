// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "host/data/builder/Sources.h"
#include "host/data/builder/SpannerEdges.h"

namespace Tarvik::Data {

/// Puts ports into a network whose other nodes are joined already.
///
/// A port on the map's land (most stand in the town's centre) is joined by a link to the nearest place on the
/// water with a free view of the network, or to a hand-made way when that is nearer.
class PortLinker {
  public:
    PortLinker(std::vector<BuildNode>& nodes, SpannerEdges& edges, const Server::LandIndex& land);

    /// Adds the nodes and links of all ports; the result holds the node of each, nothing for a place too far
    /// inland.
    std::vector<std::optional<std::uint32_t>> Link(const std::vector<PortSource>& ports);

  private:
    std::optional<std::uint32_t> LinkOne(GeoPoint port);
    /// A place on the water that sees the network.
    struct Water {
        GeoPoint at;
        double nm = 0.0;            ///< distance from the port
        std::uint32_t nearest = 0;  ///< the nearest node in sight
        int seen = 0;               ///< nodes in sight
        double Score() const;
    };
    void LookAround(GeoPoint port);
    std::optional<Water> LookFrom(GeoPoint place, double nm) const;
    /// The water near the port from which ships get away best: a dock sees little, the roads before it all
    /// round.
    std::optional<Water> FindWater(GeoPoint port);
    std::uint32_t NearestWayNode(GeoPoint port, double& nm) const;

    std::vector<BuildNode>& nodes_;
    SpannerEdges& edges_;
    const Server::LandIndex& land_;
    std::vector<std::uint32_t> wayNodes_;
    std::vector<std::uint32_t> seaNodes_;
    std::vector<std::pair<double, std::uint32_t>> around_;
};

}  // namespace Tarvik::Data

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/data/builder/Sources.h"
#include "host/data/builder/SpannerEdges.h"

namespace Tarvik::Data {

/// Puts ports into a network whose other nodes are joined already.
///
/// A port on the map's land (most stand in the town's centre) is joined by a link to the nearest place on the
/// water that sees the network, or to a hand-made way when that is nearer.
class PortLinker {
  public:
    PortLinker(std::vector<BuildNode>& nodes, SpannerEdges& edges, const Server::LandIndex& land);

    /// Adds the nodes and links of all ports; the result holds the node of each.
    std::vector<uint32_t> link(const std::vector<PortSource>& ports);

  private:
    uint32_t linkOne(GeoPoint port);
    bool seesNetwork(GeoPoint place) const;
    bool findWater(GeoPoint port, GeoPoint& water, double& nm);
    uint32_t nearestWayNode(GeoPoint port, double& nm) const;

    std::vector<BuildNode>& nodes_;
    SpannerEdges& edges_;
    const Server::LandIndex& land_;
    std::vector<uint32_t> wayNodes_;
    std::vector<uint32_t> seaNodes_;
    std::vector<std::pair<double, uint32_t>> around_;
};

}  // namespace Tarvik::Data

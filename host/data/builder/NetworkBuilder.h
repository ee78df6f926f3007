// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/data/builder/Sources.h"
#include "host/data/builder/SpannerEdges.h"
#include "host/data/builder/TopoLand.h"

namespace Tarvik::Data {

/// Makes the sea network from land, ports, route points and hand-made ways.
class NetworkBuilder {
  public:
    NetworkBuilder(const Sources& sources, const std::vector<Polygon>& land);

    /// The whole network; the same input gives the same result.
    Server::NetworkData build();

    /// What the input leaves to be wished for, a line each, after `build`.
    const std::vector<std::string>& remarks() const { return remarks_; }

  private:
    uint32_t nodeAt(GeoPoint at);
    void addPassages(SpannerEdges& edges);
    void addCapes();
    void addLattice();
    void addGroups(Server::NetworkData& data) const;
    void addMasks(Server::NetworkData& data) const;

    const Sources& sources_;
    const std::vector<Polygon>& land_;
    std::vector<std::vector<GeoPoint>> rings_;
    Server::LandIndex index_;
    std::vector<BuildNode> nodes_;
    std::map<std::pair<double, double>, uint32_t> named_;
    std::vector<std::string> remarks_;
};

}  // namespace Tarvik::Data

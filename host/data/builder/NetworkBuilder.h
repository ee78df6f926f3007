// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/data/builder/Land.h"
#include "host/data/builder/Sources.h"
#include "host/data/builder/SpannerEdges.h"

namespace Tarvik::Data {

/// Makes the sea network from land, ports, route points and hand-made ways.
class NetworkBuilder {
  public:
    NetworkBuilder(const Sources& sources, const std::vector<Polygon>& land);

    /// The whole network; the same input gives the same result.
    Server::NetworkData Build();

    /// What the input leaves to be wished for, a line each, after `build`.
    const std::vector<std::string>& Remarks() const { return remarks_; }

  private:
    std::uint32_t NodeAt(GeoPoint at);
    void AddPassages(SpannerEdges& edges);
    void AddCapes();
    void AddAreas();
    void AddLattice();
    void AddSouthLimit();
    bool InArea(GeoPoint p) const;
    void AddGroups(Server::NetworkData& data) const;
    void AddMasks(Server::NetworkData& data) const;

    const Sources& sources_;
    const std::vector<Polygon>& land_;
    std::vector<std::vector<GeoPoint>> rings_;
    std::vector<std::vector<GeoPoint>> areas_;
    Server::LandIndex index_;
    std::vector<BuildNode> nodes_;
    std::map<std::pair<double, double>, std::uint32_t> named_;
    std::vector<std::string> remarks_;
};

}  // namespace Tarvik::Data

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "host/geo/LandIndex.h"
#include "host/geo/Sphere.h"
#include "host/server/graph/NetworkData.h"

namespace Tarvik::Data {

using Server::GeoPoint;

/// A node while the network is made.
struct BuildNode {
    GeoPoint at;
    bool free = true;     ///< may have ways over open water; false for places on the map's land
    bool corner = false;  ///< a cape: only ways that pass it on one side are worth having
    GeoPoint toPrevious;
    GeoPoint toNext;
};

/// Joins nodes by open-water ways so that every way in sight has a counterpart over the chosen edges that is
/// at most 1 % longer.
///
/// Pairs are taken by length; one is skipped when the edges chosen so far already lead there well enough, and
/// refused when land lies between. The order is fixed by length and then by node number, so the result
/// depends on the input alone.
class SpannerEdges {
  public:
    SpannerEdges(const std::vector<BuildNode>& nodes, const Server::LandIndex& land);

    /// Takes an edge as it is.
    void AddFixed(std::uint32_t a, std::uint32_t b, Server::EdgeKind kind);

    /// Joins all nodes in reach of each other of which at least one has a number from `firstNew` on.
    /// Ways keep `marginNm` off the land but for their beginning and end; short ones need not.
    void Connect(std::uint32_t firstNew, double marginNm);

    const std::vector<Server::NetworkEdge>& Edges() const { return edges_; }
    /// For every node the number of its connected part, and the sizes of the parts.
    std::vector<std::uint32_t> Components(std::vector<std::uint32_t>& sizes) const;

  private:
    struct Pair {
        float nm;
        std::uint32_t a;
        std::uint32_t b;
    };
    struct Neighbour {
        std::uint32_t node;
        float nm;
    };
    std::vector<Pair> PairsInReach(std::uint32_t firstNew) const;
    bool WorthHaving(std::uint32_t node, std::uint32_t other) const;
    bool HasShortDetour(const Pair& pair) const;
    bool SearchDetour(const Pair& pair);
    void Extend();

    const std::vector<BuildNode>& nodes_;
    const Server::LandIndex& land_;
    std::vector<Server::UnitVector> vectors_;
    std::vector<std::vector<Neighbour>> neighbours_;
    std::vector<Server::NetworkEdge> edges_;
    std::vector<float> reached_;
    std::vector<std::uint32_t> touched_;
};

}  // namespace Tarvik::Data

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/graph/PathSearch.h"
#include "host/server/graph/RouteTypes.h"

namespace Tarvik::Server {

/// Turns ways through the network into what a chart draws.
class PathShape {
  public:
    explicit PathShape(const SeaNetwork& network) : network_(network) {}

    /// The way as corner points, pulled taut: a node is left out where the great circle past it meets neither
    /// land nor a forbidden gate. Hand-made ways and nodes in `pinned` keep all their points.
    std::vector<GeoPoint> Taut(const NodePath& path, const GateMask& forbidden,
                               const std::vector<std::uint32_t>& pinned) const;

    /// Corner points filled up along the great circles; longitudes run on past ±180.
    static std::vector<GeoPoint> Densify(const std::vector<GeoPoint>& corners);

    /// A dense way cut at every route point whose gate it passes, from `fromId` to `endId`.
    std::vector<RouteLeg> Split(const std::vector<GeoPoint>& way, const std::string& fromId,
                                const std::string& endId) const;

    /// Longitudes brought back to ±180, with the two points at the date line put in.
    static std::vector<GeoPoint> CutAtDateLine(const std::vector<GeoPoint>& way);

    /// WGS-84 length in km of a way, cut or not.
    static double LengthKm(const std::vector<GeoPoint>& way);

  private:
    /// Nodes in a row.
    using Run = std::vector<std::uint32_t>;
    bool IsOpen(std::uint32_t a, std::uint32_t b, const GateMask& forbidden) const;
    /// The place of a run at which to turn between two of its places: the one that makes the way shortest,
    /// where the farthest in sight often leads too far.
    std::size_t BetterTurn(const Run& run, std::size_t before, std::size_t turn, std::size_t behind,
                           const GateMask& forbidden) const;
    void AppendTaut(Run run, const GateMask& forbidden, std::vector<GeoPoint>& out) const;

    const SeaNetwork& network_;
};

}  // namespace Tarvik::Server

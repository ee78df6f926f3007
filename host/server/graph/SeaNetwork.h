// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>

#include "host/geo/LandIndex.h"
#include "host/geo/Sphere.h"
#include "host/server/graph/Basins.h"
#include "host/server/graph/GateCells.h"
#include "host/server/graph/Landmarks.h"
#include "host/server/graph/NetworkData.h"
#include "host/server/graph/NextSteps.h"

namespace Tarvik::Server {

/// The bit of ways north of `kNorthLimit` or south of `SouthLimit`; no route point owns it.
inline constexpr std::size_t kIceBit = kMaxRoutePoints - 1;
inline constexpr double kNorthLimit = 72.5;
/// Passages north of this latitude that are shut are shut for ice.
inline constexpr double kIceLatitude = 65.0;
/// No ship goes farther south than this in any ocean.
inline constexpr double kSouthLimit = -60.0;

/// The latitude that ships keep north of at a longitude: ice and storms end the great circle there, and they
/// sail along it. It is that of each ocean, with straight lines between.
double SouthLimit(double longitude);

/// The sea network in memory: nodes, ways, named route points, ports and the land. Never changes once made,
/// so any number of threads may ask it.
class SeaNetwork {
  public:
    /// Reads the file; nothing and an error text when it is missing, foreign, cut or damaged.
    static std::shared_ptr<const SeaNetwork> Load(const std::string& path, std::string& error);

    /// A network of data that is already consistent (`SeaNetworkFile::decode` sees to that).
    explicit SeaNetwork(NetworkData data);

    const NetworkData& data() const { return data_; }
    /// A number from 1 on that no other network of this program has or had.
    std::uint64_t Number() const { return number_; }
    const LandIndex& Land() const { return land_; }
    /// Bounds over the edges that are open unless asked for; of no use once a shut gate is open.
    const Landmarks& Bounds() const { return landmarks_; }
    /// What `NetworkData::tables` holds when this network is written.
    NetworkTables Tables() const;
    /// The gates at which the search adds miles.
    const GateMask& CostlyGates() const { return gates_.costly; }
    const Basins& Waters() const { return basins_; }
    std::span<const Arc> Arcs(std::uint32_t node) const { return ways_.all.Of(node); }
    /// The arcs that a search needs: between ports and route points under the usual permissions only those on
    /// a shortest way between two of them, else all.
    const ArcTable& ArcsBetween(std::uint32_t a, std::uint32_t b, const GateMask& forbidden) const;
    /// The arcs of the shortest way between two such places under the usual permissions, which the file
    /// tells; nothing where it does not.
    std::optional<std::vector<Arc>> UsualWay(std::uint32_t from, std::uint32_t to,
                                             const GateMask& forbidden) const;
    const UnitVector& Vector(std::uint32_t node) const { return vectors_[node]; }

    /// The node of a port or route point.
    std::optional<std::uint32_t> NodeOf(const std::string& id) const;
    /// The index of a route point.
    std::optional<std::uint16_t> RoutePointIndex(const std::string& id) const;
    /// How a route point leads to the port or route point of an id, which must exist.
    const ReachEntry& Reach(std::uint16_t routePoint, const std::string& id) const;
    /// What choosing a route point forbids: the passages beside it, and what is shut unless asked for.
    GateMask ForbiddenBy(std::uint16_t routePoint) const;
    /// The gates that stay shut unless asked for.
    const GateMask& ShutGates() const { return gates_.shut; }
    /// Whether a route point is shut for ice.
    bool IsIce(std::uint16_t routePoint) const;
    /// Opens the ice: one passage in it is of no use without its neighbours, so that all of them open
    /// together.
    void OpenIce(GateMask& forbidden) const;
    /// The gates that a straight great-circle way crosses, the ice bit included.
    GateMask GatesCrossed(GeoPoint a, GeoPoint b) const;
    /// The route points by cells of the globe.
    const GateCells& CellsOfGates() const { return gates_.cells; }

  private:
    /// A port or route point.
    struct Named {
        std::uint32_t node = 0;
        std::uint32_t column = 0;  ///< in the rows of the reach
    };
    /// Of the route points, in their order.
    struct Gates {
        GateCells cells;
        GateMask shut;
        GateMask costly;
    };
    struct Ways {
        ArcTable all;
        ArcTable usual;             ///< those between named nodes; nothing in a network just put together
        std::vector<char> isNamed;  ///< by node, where `usual` is known
        NextSteps steps;            ///< over `usual`
    };
    void AddNamed(const std::string& id, std::uint32_t node);
    void BuildArcs();
    void FillReach();
    ArcTable OpenArcs() const;

    std::uint64_t number_;
    NetworkData data_;
    LandIndex land_;
    Basins basins_;
    Ways ways_;
    Landmarks landmarks_;
    std::vector<UnitVector> vectors_;
    std::unordered_map<std::string, Named> named_;
    std::unordered_map<std::string, std::uint16_t> routePointById_;
    Gates gates_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/server/graph/LegPlanner.h"
#include "host/server/graph/RouteTypes.h"
#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Server {

/// Answers route requests from a network. Holds no state of its own: any number of threads may call it.
class RouteEngine {
  public:
    /// `network` must not be null. `standing` holds for every request beside the request's own limits.
    explicit RouteEngine(std::shared_ptr<const SeaNetwork> network, RouteLimits standing = {});

    /// The ways along a list of at least two stops. The first stop of the answer has no legs.
    /// Stops may be of `own`, too: the way begins at such a port itself, and joins the network at a node in
    /// sight, or at the nearest one in a harbour, where the map shows land.
    RouteResult Plan(const std::vector<RouteRequestPoint>& points, const std::vector<OwnPort>& own = {},
                     const RouteLimits& limits = {}) const;

    /// The way from a position (degrees; on the water, in port or on a river) to a port, also one of
    /// `own`, or route point. It begins at the position itself.
    NearestResult Nearest(GeoPoint position, const std::string& destPort,
                          const std::vector<OwnPort>& own = {}) const;

    /// Whether there is a port or route point of this id.
    bool Knows(const std::string& id) const { return network_->NodeOf(id).has_value(); }

  private:
    /// Where a way to or from the stop begins in the network; nothing for an unknown id.
    std::optional<RouteEnd> EndOf(const std::string& id, const std::vector<OwnPort>& own) const;
    std::vector<std::uint32_t> EntryNodes(GeoPoint position, bool& inSight) const;
    /// The shortest dense way from the position to the end; empty when there is none.
    std::vector<GeoPoint> ShortestWay(GeoPoint position, const RouteEnd& end, double& km) const;

    std::shared_ptr<const SeaNetwork> network_;
    RouteLimits standing_;
};

}  // namespace Tarvik::Server

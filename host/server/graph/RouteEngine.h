// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/server/graph/RouteTypes.h"
#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Server {

/// Answers route requests from a network. Holds no state of its own: any number of threads may call it.
class RouteEngine {
  public:
    /// `network` must not be null.
    explicit RouteEngine(std::shared_ptr<const SeaNetwork> network);

    /// The ways along a list of at least two stops. The first stop of the answer has no legs.
    RouteResult Plan(const std::vector<RouteRequestPoint>& points, const RouteLimits& limits = {}) const;

    /// The way from a position (degrees; on the water, in port or on a river) to a port or route point. It
    /// begins at the position itself.
    NearestResult Nearest(GeoPoint position, const std::string& destPort) const;

    /// Whether there is a port or route point of this id.
    bool Knows(const std::string& id) const { return network_->NodeOf(id).has_value(); }

  private:
    std::vector<std::uint32_t> EntryNodes(GeoPoint position, bool& inSight) const;

    std::shared_ptr<const SeaNetwork> network_;
};

}  // namespace Tarvik::Server

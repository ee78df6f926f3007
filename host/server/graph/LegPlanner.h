// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/server/graph/PathShape.h"

namespace Tarvik::Server {

/// Plans the way between two stops under choices of passages.
///
/// A choice forces its route point into the way and forbids the other passages of its groups, unless they are
/// chosen too. Passages shut by default open when chosen, and as the last resort, when a stop cannot be
/// reached otherwise.
class LegPlanner {
  public:
    explicit LegPlanner(const SeaNetwork& network) : network_(network), shape_(network) {}

    /// The stop at `toId` with legs, groups and locks; nothing and `error` set when there is no way or an id
    /// in the choices is unknown. Both stops must be known.
    std::optional<PlannedStop> Plan(const std::string& fromId, const RouteRequestPoint& to,
                                    std::string& error) const;

    /// The dense way from one node to another under the default limits; empty when there is none.
    std::vector<GeoPoint> Way(std::uint32_t from, std::uint32_t to) const;

  private:
    struct Stretch {
        std::uint16_t chosen = 0;
        std::vector<std::uint32_t>
            nodes;         ///< the chosen point, between its range's ends where those are route points
        std::string text;  ///< "new=from,end"
    };
    using Stretches = std::vector<Stretch>;

    std::optional<Stretches> StretchesOf(const std::string& fromId, const RouteRequestPoint& to,
                                         std::string& error) const;
    bool Resolve(const RouteChoice& choice, const std::string& fromId, const std::string& toId,
                 Stretch& out) const;
    GateMask ForbiddenFor(const Stretches& chosen) const;
    std::optional<NodePath> PathThrough(const std::vector<std::uint32_t>& stations,
                                        const GateMask& forbidden) const;
    std::optional<NodePath> BestOrder(std::uint32_t from, std::uint32_t to, Stretches chosen,
                                      const GateMask& forbidden) const;
    std::vector<std::string> Offers(std::uint32_t from, std::uint32_t to, std::uint16_t passed) const;

    const SeaNetwork& network_;
    PathShape shape_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/server/graph/PathShape.h"

namespace Tarvik::Server {

/// An end of a way: the nodes at which it may enter or leave the network, and the place beside them where it
/// really begins or ends, when that is no node itself.
struct RouteEnd {
    std::string id;
    std::vector<std::uint32_t> nodes;
    std::optional<GeoPoint> beside;
};

/// Plans the way between two stops under choices of passages.
///
/// A choice forces its route point into the way and forbids the other passages of its groups, unless they are
/// chosen too. Passages shut by default open when chosen, and as the last resort, when a stop cannot be
/// reached otherwise.
class LegPlanner {
  public:
    explicit LegPlanner(const SeaNetwork& network, const RouteLimits& limits = {});

    /// The stop at `toId` with legs, groups and locks; nothing and `error` set when there is no way or an id
    /// in the choices is unknown. Both stops must be known.
    std::optional<PlannedStop> Plan(const std::string& fromId, const RouteRequestPoint& to,
                                    std::string& error) const;

    /// The same between two ends, of which `stop` asks for the second. An end without nodes cannot be
    /// reached.
    std::optional<PlannedStop> Plan(const RouteEnd& from, const RouteEnd& to, const RouteRequestPoint& stop,
                                    std::string& error) const;

    /// Whether a straight way from one place to another passes nothing that the limits forbid.
    bool MayRun(GeoPoint from, GeoPoint to) const {
        return never_.none() || (network_.GatesCrossed(from, to) & never_).none();
    }

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
    /// The corners of a way and its miles as the search counts them.
    struct Drawn {
        std::vector<GeoPoint> corners;
        double nm = 0.0;
    };

    std::optional<Stretches> StretchesOf(const std::string& fromId, const RouteRequestPoint& to,
                                         std::string& error) const;
    bool Resolve(const RouteChoice& choice, const std::string& fromId, const std::string& toId,
                 Stretch& out) const;
    GateMask ForbiddenFor(const Stretches& chosen) const;
    std::optional<NodePath> PathThrough(const std::vector<std::uint32_t>& stations,
                                        const GateMask& forbidden) const;
    std::optional<NodePath> BestOrder(std::uint32_t from, std::uint32_t to, Stretches chosen,
                                      const GateMask& forbidden) const;
    /// What may be chosen in place of a passage: a passage beside it that the way would pass and not only
    /// touch, and that does not lead far round a way of `nm` miles.
    std::vector<std::string> Offers(const RouteEnd& from, const RouteEnd& to, std::uint16_t passed,
                                    double nm) const;
    /// How a passage leads to an end while the passages beside it are forbidden.
    ReachEntry ReachOf(std::uint16_t passage, const RouteEnd& end) const;
    /// What `search` finds; where it finds nothing, passages that are shut are opened: the ice, then one
    /// after the other, at last all. `forbidden` tells afterwards what was shut.
    template <typename Search>
    auto OpeningBySteps(GateMask& forbidden, Search search) const;
    /// The shortest over all nodes of both ends, with the way beside the network counted.
    std::optional<NodePath> BestBetween(const RouteEnd& from, const RouteEnd& to, const Stretches& chosen,
                                        const GateMask& forbidden) const;
    /// The way from one end to the other: straight where nothing lies between a place beside the network and
    /// the other end, else taut through it. Nothing when there is no way.
    std::optional<Drawn> Corners(const RouteEnd& from, const RouteEnd& to, const Stretches& chosen) const;
    /// Where an end lies.
    GeoPoint PlaceOf(const RouteEnd& end) const;
    /// The miles from an end to one of its nodes, beside the network.
    double NmAside(const RouteEnd& end, std::uint32_t node) const;

    const SeaNetwork& network_;
    PathShape shape_;
    GateMask closed_;  ///< what no choice has opened
    GateMask never_;   ///< what the request forbids, choices or not
};

}  // namespace Tarvik::Server

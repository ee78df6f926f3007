// SPDX-License-Identifier: MIT
// What holds of routes between random ports, counted on the shipped network: A to B is B to A, a third port
// on the way makes none shorter, an offered passage leads through it and not far round, and in the open sea
// no place comes near land. Run by hand: route_check NETWORK [PAIRS].
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "host/geo/Sphere.h"
#include "host/server/graph/RouteEngine.h"

namespace {

using namespace Tarvik::Server;

constexpr unsigned kSeed = 20261123;
constexpr std::size_t kPairs = 500;
/// Offers are tried on this share of the pairs: each is a search of its own.
constexpr std::size_t kOffersEvery = 5;
constexpr double kSame = 1e-4;
constexpr double kTriangleSlack = 5e-4;
constexpr double kFarthestOffer = 2.0;
constexpr double kFromPortNm = 40.0;
constexpr double kOffLandNm = 3.0;
/// Lines that are drawn in pieces as long as this lie in the open sea: those of straits, canals and rivers
/// are shorter.
constexpr double kOpenPieceNm = 40.0;

struct Counts {
    std::size_t pairs = 0;
    std::size_t uneven = 0;     ///< A to B is not as long as B to A
    std::size_t triangles = 0;  ///< A to C is longer than by B
    std::size_t offers = 0;
    std::size_t refused = 0;  ///< offers that give no way
    std::size_t far = 0;      ///< offers of more than twice the way
    std::size_t places = 0;   ///< in open sea and far from both ports
    std::size_t near = 0;     ///< of them near land
};

class Check {
  public:
    explicit Check(std::shared_ptr<const SeaNetwork> network)
        : network_(std::move(network)), engine_(network_), land_(network_->data().land) {}

    Counts Run(std::size_t pairs) {
        std::mt19937 random(kSeed);
        const auto& ports = network_->data().ports;
        std::uniform_int_distribution<std::size_t> any(0, ports.size() - 1);
        for (std::size_t i = 0; i < pairs; ++i) {
            const NetworkPort& a = ports[any(random)];
            const NetworkPort& b = ports[any(random)];
            const NetworkPort& middle = ports[any(random)];
            const auto stop = Way(a.id, b.id, {});
            if (!stop) {
                continue;
            }
            ++counts_.pairs;
            Lengths(a, b, middle, stop->distanceKm);
            Shores(a, b, *stop);
            if (i % kOffersEvery == 0) {
                Offers(a, b, *stop);
            }
        }
        return counts_;
    }

  private:
    std::optional<PlannedStop> Way(const std::string& from, const std::string& to,
                                   const std::vector<RouteChoice>& choices) const {
        const RouteResult result = engine_.Plan({{from, {}, {}}, {to, {}, choices}});
        return result.error == kRouteOk ? std::optional(result.stops[1]) : std::nullopt;
    }
    void Lengths(const NetworkPort& a, const NetworkPort& b, const NetworkPort& middle, double km) {
        const auto back = Way(b.id, a.id, {});
        counts_.uneven += !back || std::abs(back->distanceKm - km) > kSame * km ? 1 : 0;
        const auto first = Way(a.id, middle.id, {});
        const auto second = Way(middle.id, b.id, {});
        if (first && second && km > (first->distanceKm + second->distanceKm) * (1.0 + kTriangleSlack)) {
            ++counts_.triangles;
        }
    }
    void Shores(const NetworkPort& a, const NetworkPort& b, const PlannedStop& stop) {
        const auto& nodes = network_->data().nodes;
        for (const RouteLeg& leg : stop.legs) {
            for (std::size_t i = 1; i + 1 < leg.points.size(); ++i) {
                const GeoPoint p = leg.points[i];
                const bool open =
                    ArcNm(leg.points[i - 1], p) > kOpenPieceNm && ArcNm(p, leg.points[i + 1]) > kOpenPieceNm;
                if (open && ArcNm(p, nodes[a.node]) > kFromPortNm && ArcNm(p, nodes[b.node]) > kFromPortNm) {
                    ++counts_.places;
                    counts_.near += land_.IsClear(p, kOffLandNm) ? 0 : 1;
                }
            }
        }
    }
    void Offers(const NetworkPort& a, const NetworkPort& b, const PlannedStop& stop) {
        for (const RouteAlternativeGroup& group : stop.groups) {
            for (const std::string& other : group.alternatives) {
                ++counts_.offers;
                const auto way = Way(a.id, b.id, {{other, a.id + "," + b.id}});
                counts_.refused += way ? 0 : 1;
                counts_.far += way && way->distanceKm > kFarthestOffer * stop.distanceKm ? 1 : 0;
            }
        }
    }

    std::shared_ptr<const SeaNetwork> network_;
    RouteEngine engine_;
    LandIndex land_;
    Counts counts_;
};

}  // namespace

int main(int count, char** words) {
    std::string error = "route_check NETWORK [PAIRS]";
    const auto network = count > 1 ? SeaNetwork::Load(words[1], error) : nullptr;
    if (!network) {
        fmt::print(stderr, "{}\n", error);
        return 2;
    }
    const std::size_t pairs = count > 2 ? std::strtoul(words[2], nullptr, 10) : kPairs;
    const Counts found = Check(network).Run(pairs);
    fmt::print("{} pairs: {} unlike backwards, {} longer than by a third port\n", found.pairs, found.uneven,
               found.triangles);
    fmt::print("{} offers: {} without a way, {} above twice the way\n", found.offers, found.refused,
               found.far);
    fmt::print("{} places in open sea over {} NM from both ports: {} within {} NM of land\n", found.places,
               kFromPortNm, found.near, kOffLandNm);
    return 0;
}

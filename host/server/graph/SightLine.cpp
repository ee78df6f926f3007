// SPDX-License-Identifier: MIT
// Lines asked for before, per thread: a table in which a line has one place, so that a newer one takes it. An
// answer from it costs some 10 ns, one reckoned anew some 5 us and more.
#include <bit>
#include <cstdint>
#include <vector>

#include "host/server/graph/PassageReach.h"

namespace Tarvik::Server {

namespace {

constexpr unsigned kPlaceBits = 16;

struct Kept {
    std::uint64_t network = 0;  ///< number of the network; no network has 0
    GeoPoint a;
    GeoPoint b;
    SightLine line;
};

std::size_t PlaceOf(GeoPoint a, GeoPoint b) {
    constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15ULL;  // 2^64 over the golden ratio
    std::uint64_t sum = 0;
    for (const double part : {a.x, a.y, b.x, b.y}) {
        sum = (std::rotl(sum, 23) ^ std::bit_cast<std::uint64_t>(part)) * kMix;
    }
    return sum >> (64U - kPlaceBits);
}

bool ComesNear(const LandIndex& land, GeoPoint a, GeoPoint b) {
    return ArcNm(a, b) > kFreeHandNm && land.Grazes(a, b, kOffCoastNm, LandIndex::kApproachNm);
}

SightLine Reckon(const SeaNetwork& network, GeoPoint a, GeoPoint b) {
    const std::vector<GeoPoint> way = GreatCircle(a, b);
    if (network.Land().Blocks(way) || ComesNear(network.Land(), a, b)) {
        return {};
    }
    return {true, GatesCrossed(way, network.data().routePoints, network.CellsOfGates())};
}

}  // namespace

bool IsSeaRoom(const LandIndex& land, GeoPoint a, GeoPoint b) {
    return !land.Blocks(a, b) && !ComesNear(land, a, b);
}

const SightLine& SightLineOf(const SeaNetwork& network, GeoPoint a, GeoPoint b) {
    thread_local std::vector<Kept> table(std::size_t{1} << kPlaceBits);
    Kept& kept = table[PlaceOf(a, b)];
    if (kept.network != network.Number() || !(kept.a == a) || !(kept.b == b)) {
        kept = {network.Number(), a, b, Reckon(network, a, b)};
    }
    return kept.line;
}

}  // namespace Tarvik::Server

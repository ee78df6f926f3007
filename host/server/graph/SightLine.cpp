// SPDX-License-Identifier: MIT
// Lines asked for before, per thread: a table in which a line has one place, so that a newer one takes it. A
// line takes 16 bytes, 4 MB in all; the few sets of gates that lines cross are kept once. An answer from the
// table costs some 10 ns, one reckoned anew some 5 us and more.
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "host/server/graph/PassageReach.h"

namespace Tarvik::Server {

namespace {

constexpr unsigned kPlaceBits = 18;
constexpr std::uint16_t kHidden = 0xFFFF;

bool ComesNear(const LandIndex& land, GeoPoint a, GeoPoint b) {
    return ArcNm(a, b) > kFreeHandNm && land.Grazes(a, b, kOffCoastNm, LandIndex::kApproachNm);
}

class LineTable {
  public:
    SightLine Of(const SeaNetwork& network, std::uint32_t a, std::uint32_t b) {
        const auto number = static_cast<std::uint32_t>(network.Number());
        Kept& kept = table_[PlaceOf(a, b)];
        if (kept.network != number || kept.a != a || kept.b != b) {
            const std::uint16_t crossed = Reckon(network, a, b);
            kept = {number, a, b, crossed};
        }
        return {kept.crossed != kHidden, kept.crossed == kHidden ? masks_.front() : masks_[kept.crossed]};
    }

  private:
    struct Kept {
        std::uint32_t network = 0;  ///< number of the network; no network has 0
        std::uint32_t a = 0;
        std::uint32_t b = 0;
        std::uint16_t crossed = kHidden;  ///< of `masks_`
    };

    static std::size_t PlaceOf(std::uint32_t a, std::uint32_t b) {
        constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15ULL;  // 2^64 over the golden ratio
        return (((static_cast<std::uint64_t>(a) << 32U) | b) * kMix) >> (64U - kPlaceBits);
    }
    std::uint16_t Reckon(const SeaNetwork& network, std::uint32_t a, std::uint32_t b) {
        const GeoPoint from = network.data().nodes[a];
        const GeoPoint to = network.data().nodes[b];
        const std::vector<GeoPoint> way = GreatCircle(from, to);
        if (network.Land().Blocks(way) || ComesNear(network.Land(), from, to)) {
            return kHidden;
        }
        return NumberOf(GatesCrossed(way, network.data().routePoints, network.CellsOfGates()));
    }
    std::uint16_t NumberOf(const GateMask& mask) {
        if (masks_.size() == kHidden) {
            // The caller's place in the table stays where it is.
            table_.assign(table_.size(), {});
            masks_.resize(1);
            numbers_ = {{GateMask{}, 0}};
        }
        const auto [it, isNew] = numbers_.try_emplace(mask, static_cast<std::uint16_t>(masks_.size()));
        if (isNew) {
            masks_.push_back(mask);
        }
        return it->second;
    }

    std::vector<Kept> table_ = std::vector<Kept>(std::size_t{1} << kPlaceBits);
    std::vector<GateMask> masks_{GateMask{}};
    std::unordered_map<GateMask, std::uint16_t> numbers_{{GateMask{}, 0}};
};

}  // namespace

bool IsSeaRoom(const LandIndex& land, GeoPoint a, GeoPoint b) {
    return !land.Blocks(a, b) && !ComesNear(land, a, b);
}

SightLine SightLineOf(const SeaNetwork& network, std::uint32_t a, std::uint32_t b) {
    thread_local LineTable table;
    return table.Of(network, a, b);
}

}  // namespace Tarvik::Server

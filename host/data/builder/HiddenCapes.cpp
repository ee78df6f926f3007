// SPDX-License-Identifier: MIT
// Corners stand off along the bisector of their cape, so two capes in a row may just not see each other.
// Between such two the cape in the way gets a corner of its own, and so on to a fixed depth.
#include "host/data/builder/CornerSet.h"
#include "host/geo/RingShape.h"

namespace Tarvik::Data {

namespace {

constexpr int kDepth = 4;
/// Farther apart than this the two belong to different coasts.
constexpr double kFarthestNm = 250.0;

/// One coast while its gaps are filled.
class GapFiller {
  public:
    GapFiller(const Coast& coast, CornerSet& found)
        : ring_(coast.ring),
          seaSide_(coast.landToTheLeft ? -1.0 : 1.0),
          offsetNm_(coast.offsetNm),
          index_(coast.land),
          found_(found) {}

    void Fill(const PlacedCorner& a, const PlacedCorner& b, int depth) {
        if (depth == 0 || Server::ArcNm(a.at, b.at) > kFarthestNm || !index_.Blocks(a.at, b.at)) {
            return;
        }
        const std::size_t cape = Farthest(a, b);
        if (cape == a.index || cape == b.index) {
            return;
        }
        const std::optional<GeoPoint> at = MoveOff(ring_[cape], a.at, b.at);
        if (!at) {
            return;
        }
        const PlacedCorner middle{cape, Add(*at)};
        Fill(a, middle, depth - 1);
        Fill(middle, b, depth - 1);
    }

  private:
    static constexpr double kApart = 0.1;

    GeoPoint Add(GeoPoint at) {
        if (Corner* other = found_.Near(at, kApart * offsetNm_)) {
            other->shared = true;
            return other->at;
        }
        found_.Add({at, {}, {}, true});
        return at;
    }
    /// A place in the run of longitudes that the ring has there.
    GeoPoint NearRing(GeoPoint p, std::size_t index) const {
        p.x += 360.0 * std::round((ring_[index].x - p.x) / 360.0);
        return p;
    }
    std::size_t Farthest(const PlacedCorner& a, const PlacedCorner& b) const {
        const GeoPoint from = NearRing(a.at, a.index);
        const GeoPoint to = NearRing(b.at, a.index);
        std::size_t best = a.index;
        double farthest = -1e9;
        for (std::size_t i = (a.index + 1) % ring_.size(); i != b.index; i = (i + 1) % ring_.size()) {
            const double out = seaSide_ * LeftOf(NearRing(ring_[i], a.index), from, to);
            if (out > farthest) {
                farthest = out;
                best = i;
            }
        }
        return best;
    }
    std::optional<GeoPoint> MoveOff(GeoPoint cape, GeoPoint a, GeoPoint b) const {
        const GeoPoint along = DirectionTo(a, {b.x + 360.0 * std::round((a.x - b.x) / 360.0), b.y});
        const double bearing = std::atan2(-seaSide_ * along.y, seaSide_ * along.x) / Server::kDegree;
        for (const double nm : {offsetNm_, 0.5 * offsetNm_, 0.2 * offsetNm_}) {
            const GeoPoint at =
                Server::RoundPoint(Server::Destination({Server::WrapLongitude(cape.x), cape.y}, bearing, nm));
            if (!index_.IsLand(at) && index_.IsClear(at, 0.7 * nm)) {
                return at;
            }
        }
        return std::nullopt;
    }

    const Ring& ring_;
    double seaSide_;
    double offsetNm_;
    const Server::LandIndex& index_;
    CornerSet& found_;
};

}  // namespace

void AddHiddenCapes(const Coast& coast, const std::vector<PlacedCorner>& placed, CornerSet& found) {
    GapFiller filler(coast, found);
    for (std::size_t i = 0; i < placed.size(); ++i) {
        const PlacedCorner& next = placed[(i + 1) % placed.size()];
        if (next.index != placed[i].index) {
            filler.Fill(placed[i], next, kDepth);
        }
    }
}

}  // namespace Tarvik::Data

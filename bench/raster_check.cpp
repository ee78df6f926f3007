// SPDX-License-Identifier: MIT
// The network's ways against an independent method: a plain Dijkstra over water cells of 0.05 degrees, 16
// directions, from every port to all others within 300 miles. A cell that a coast or a closed area touches is
// none, and stair steps are longer than lines, so that the raster's way is at least as long as the shortest;
// where the network's is much longer still, it lacks a passage or avoids one on purpose (a cost, a shut one).
// Run by hand: raster_check NETWORK [PORTS]. Cost: some 25 million cells of memory, milliseconds a port.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <queue>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "host/geo/Sphere.h"
#include "host/server/graph/RouteEngine.h"

namespace {

using namespace Tarvik::Server;

constexpr double kCell = 0.05;
constexpr int kColumns = 7200;
constexpr int kRows = 3600;
constexpr double kReachNm = 300.0;
/// Nearer ports say nothing: the snapping to cells is as long as the way.
constexpr double kNearestNm = 30.0;
/// Ports farther from open cells lie up rivers that the raster does not show.
constexpr int kSnapCells = 3;
constexpr double kLongerShare = 1.03;
constexpr double kLongerNm = 10.0;
/// The Sea of Azov has some 1,500 cells.
constexpr std::size_t kLeastSea = 1000;
/// Coasts are walked in steps of this part of a cell.
constexpr double kCoastStep = 0.2;

class Raster {
  public:
    explicit Raster(const NetworkData& data)
        : water_(std::size_t{kColumns} * kRows, 1), miles_(water_.size(), -1.0F) {
        for (const auto* rings : {&data.land, &data.areas}) {
            for (const std::vector<GeoPoint>& ring : *rings) {
                Fill(ring);
            }
        }
        KeepSeas();
    }

    /// The nearest cell of a sea, -1 where none is near.
    int CellOf(GeoPoint p) const {
        int best = -1;
        double nearest = 1e9;
        for (int y = -kSnapCells; y <= kSnapCells; ++y) {
            for (int x = -kSnapCells; x <= kSnapCells; ++x) {
                const int cell = Index(Column(p.x) + x, Row(p.y) + y);
                const double nm = cell < 0 || water_[cell] == 0 ? 1e9 : ArcNm(p, At(cell));
                best = nm < nearest ? cell : best;
                nearest = std::min(nearest, nm);
            }
        }
        return best;
    }
    static GeoPoint At(int cell) {
        const int row = cell / kColumns;
        return {(cell % kColumns + 0.5) * kCell - 180.0, (row + 0.5) * kCell - 90.0};
    }
    /// Miles from the last `Search`, negative where it did not come.
    double Miles(int cell) const { return miles_[cell]; }
    void Search(int from) {
        for (const int cell : touched_) {
            miles_[cell] = -1.0F;
        }
        touched_.clear();
        queue_.emplace(0.0F, from);
        while (!queue_.empty()) {
            const auto [nm, cell] = queue_.top();
            queue_.pop();
            if (miles_[cell] >= 0.0F) {
                continue;
            }
            miles_[cell] = nm;
            touched_.push_back(cell);
            Spread(cell, nm);
        }
    }

  private:
    static int Column(double x) { return static_cast<int>(std::floor((x + 180.0) / kCell)); }
    static int Row(double y) { return static_cast<int>(std::floor((y + 90.0) / kCell)); }
    static int Index(int x, int y) {
        return y < 0 || y >= kRows ? -1 : y * kColumns + (x % kColumns + kColumns) % kColumns;
    }
    bool IsWater(int x, int y) const {
        const int cell = Index(x, y);
        return cell >= 0 && water_[cell] != 0;
    }
    /// Marks what a ring touches and holds. Lakes count as land; of a ring round a pole only the coast is
    /// marked.
    void Fill(std::vector<GeoPoint> ring) {
        for (std::size_t i = 1; i < ring.size(); ++i) {
            ring[i].x = ring[i - 1].x + std::remainder(ring[i].x - ring[i - 1].x, 360.0);
        }
        GeoPoint last = ring.front();
        last.x = ring.back().x + std::remainder(last.x - ring.back().x, 360.0);
        ring.push_back(last);
        std::vector<std::pair<int, double>> crossings;
        for (std::size_t i = 1; i < ring.size(); ++i) {
            Walk(ring[i - 1], ring[i]);
            Cross(ring[i - 1], ring[i], crossings);
        }
        std::sort(crossings.begin(), crossings.end());
        const bool isRoundPole = std::abs(ring.back().x - ring.front().x) > 180.0;
        for (std::size_t i = 0; i + 1 < crossings.size() && !isRoundPole; i += 2) {
            for (int x = Column(crossings[i].second); x <= Column(crossings[i + 1].second); ++x) {
                water_[Index(x, crossings[i].first)] = 0;
            }
        }
    }
    void Walk(GeoPoint a, GeoPoint b) {
        const double length = std::max(std::abs(b.x - a.x), std::abs(b.y - a.y));
        const int steps = 1 + static_cast<int>(length / (kCell * kCoastStep));
        for (int i = 0; i <= steps; ++i) {
            const double part = static_cast<double>(i) / steps;
            const int cell = Index(Column(a.x + (b.x - a.x) * part), Row(a.y + (b.y - a.y) * part));
            water_[std::max(cell, 0)] = 0;
        }
    }
    static void Cross(GeoPoint a, GeoPoint b, std::vector<std::pair<int, double>>& crossings) {
        const int first = std::max(0, Row(std::min(a.y, b.y)));
        for (int y = first; y <= std::min(kRows - 1, Row(std::max(a.y, b.y))); ++y) {
            const double middle = (y + 0.5) * kCell - 90.0;
            if ((a.y > middle) != (b.y > middle)) {
                crossings.emplace_back(y, a.x + (b.x - a.x) * (middle - a.y) / (b.y - a.y));
            }
        }
    }
    /// Lagoons and harbours whose mouth is narrower than a cell are no water for this search.
    void KeepSeas() {
        std::vector<std::uint8_t> seas(water_.size(), 0);
        for (std::size_t i = 0; i < water_.size(); ++i) {
            if (water_[i] == 0) {
                continue;
            }
            const std::vector<int> part = TakePart(static_cast<int>(i));
            for (const int cell : part.size() < kLeastSea ? std::vector<int>() : part) {
                seas[cell] = 1;
            }
        }
        water_ = std::move(seas);
    }
    /// The cells joined to this one, which are dry afterwards.
    std::vector<int> TakePart(int from) {
        std::vector<int> part = {from};
        water_[from] = 0;
        for (std::size_t i = 0; i < part.size(); ++i) {
            for (int k = 0; k < 9; ++k) {
                const int next = Index(part[i] % kColumns + k % 3 - 1, part[i] / kColumns + k / 3 - 1);
                if (next >= 0 && water_[next] != 0) {
                    water_[next] = 0;
                    part.push_back(next);
                }
            }
        }
        return part;
    }
    void Spread(int cell, float nm) {
        static constexpr std::array<std::pair<int, int>, 16> kSteps = {{{1, 0},
                                                                        {-1, 0},
                                                                        {0, 1},
                                                                        {0, -1},
                                                                        {1, 1},
                                                                        {1, -1},
                                                                        {-1, 1},
                                                                        {-1, -1},
                                                                        {2, 1},
                                                                        {2, -1},
                                                                        {-2, 1},
                                                                        {-2, -1},
                                                                        {1, 2},
                                                                        {1, -2},
                                                                        {-1, 2},
                                                                        {-1, -2}}};
        const int x = cell % kColumns;
        const int y = cell / kColumns;
        for (const auto& [dx, dy] : kSteps) {
            // The cells that the step passes have to be water too: both at a corner, the middle two of a long
            // one.
            const int halfX = dx / 2;
            const int halfY = dy / 2;
            const bool isFree = IsWater(x + dx, y + dy) &&
                                IsWater(x + (halfX != 0 ? halfX : dx), y + halfY) &&
                                IsWater(x + halfX, y + (halfY != 0 ? halfY : dy));
            const int next = Index(x + dx, y + dy);
            if (!isFree || miles_[next] >= 0.0F) {
                continue;
            }
            const auto far = nm + static_cast<float>(ArcNm(At(cell), At(next)));
            if (far < kReachNm) {
                queue_.emplace(far, next);
            }
        }
    }

    std::vector<std::uint8_t> water_;
    std::vector<float> miles_;
    std::vector<int> touched_;
    std::priority_queue<std::pair<float, int>, std::vector<std::pair<float, int>>, std::greater<>> queue_;
};

struct Counts {
    std::size_t untried = 0;  ///< ports without an open cell near
    std::size_t pairs = 0;
    std::size_t longer = 0;
};

void Compare(const NetworkData& data, const RouteEngine& engine, Raster& raster, std::size_t ports) {
    std::vector<int> cells;
    cells.reserve(data.ports.size());
    Counts counts;
    for (const NetworkPort& port : data.ports) {
        cells.push_back(raster.CellOf(data.nodes[port.node]));
        counts.untried += cells.back() < 0 ? 1 : 0;
    }
    const auto snap = [&](std::size_t i) {
        return ArcNm(data.nodes[data.ports[i].node], Raster::At(cells[i]));
    };
    for (std::size_t a = 0; a < std::min(ports, cells.size()); ++a) {
        if (cells[a] < 0) {
            continue;
        }
        raster.Search(cells[a]);
        for (std::size_t b = 0; b < cells.size(); ++b) {
            const double by = b == a || cells[b] < 0 ? -1.0 : raster.Miles(cells[b]);
            if (by < kNearestNm || (b < a && b < ports)) {
                continue;
            }
            const double most = by + snap(a) + snap(b);
            const auto way = engine.Plan({{data.ports[a].id, {}, {}}, {data.ports[b].id, {}, {}}});
            ++counts.pairs;
            const double nm = way.error == kRouteOk ? way.stops[1].distanceKm / kKmPerNm : 1e9;
            if (nm <= kLongerShare * most || nm <= most + kLongerNm) {
                continue;
            }
            ++counts.longer;
            fmt::print("{} {} - {} {}: {:.1f} miles, by the raster {:.1f}\n", data.ports[a].unlocode,
                       data.ports[a].name, data.ports[b].unlocode, data.ports[b].name, nm, most);
        }
    }
    fmt::print(
        "{} pairs within {} miles, {} longer than the raster's way by {:.0f} % and {} miles; "
        "{} of {} ports without a cell near\n",
        counts.pairs, kReachNm, counts.longer, (kLongerShare - 1.0) * 100.0, kLongerNm, counts.untried,
        cells.size());
}

}  // namespace

int main(int count, char** words) {
    std::string error = "raster_check NETWORK [PORTS]";
    const auto network = count > 1 ? SeaNetwork::Load(words[1], error) : nullptr;
    if (!network) {
        fmt::print(stderr, "{}\n", error);
        return 2;
    }
    Raster raster(network->data());
    const RouteEngine engine(network);
    Compare(network->data(), engine, raster,
            count > 2 ? std::strtoul(words[2], nullptr, 10) : network->data().ports.size());
    return 0;
}

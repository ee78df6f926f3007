// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/ChartShips.h"

#include <cmath>

#include <tarvik/util/Geodesy.h>

namespace Tarvik::Seamap {

void ChartShips::Set(const Interface::TrvMapShips& ships) {
    std::vector<ChartShip>& mine = byType_[ships.type];
    mine.clear();
    mine.reserve(ships.ships.size());
    for (const Interface::TrvMapShip& ship : ships.ships) {
        if (!Util::IsOnEarth(ship.x, ship.y)) {
            continue;
        }
        const GeoPoint position{ship.x, ship.y};
        mine.push_back(
            {ships.type, ship.id, ship.tip, position, Project(position), ship.heading, ship.colour});
    }
    if (mine.empty()) {
        byType_.erase(ships.type);
    }
    if (observer_) {
        observer_();
    }
}

const ChartShip* ChartShips::At(PixelPoint pixel, const MercatorView& view) const {
    const ChartShip* best = nullptr;
    double nearest = kReach;
    for (const auto& [type, ships] : byType_) {
        for (const ChartShip& ship : ships) {
            const auto turns = view.TurnsOf(ship.world.x, ship.world.x, static_cast<int>(kReach));
            for (int turn = turns.first; turn <= turns.last; ++turn) {
                const PixelPoint at = view.ToScreen(ship.world, turn);
                const double away = std::hypot(at.x - pixel.x, at.y - pixel.y);
                if (away <= nearest) {
                    nearest = away;
                    best = &ship;
                }
            }
        }
    }
    return best;
}

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#include <tarvik/util/Geodesy.h>

#include "seaplan/calculation/book/BookRows.h"

/// The leg under a place of the chart: the one with the least detour over it, since on a leg the two ways to
/// its ends are together as long as the leg, however it is sailed and on both sides of the date line. Cost:
/// three distances a leg.
namespace Tarvik::Seaplan {

std::optional<PosBookRowRef> LegAt(const PosBookData& book, const GeoPoint& position) {
    std::optional<PosBookRowRef> nearest;
    double least = 0;
    const PosBookPlace* from = nullptr;
    const auto look = [&](const PosBookPlace& to, const PosBookRowRef& ref) {
        if (from != nullptr) {
            const auto length = [&to](double x1, double y1, double x2, double y2) {
                return Util::CircleLineUtl::CalculateDistance(x1, y1, x2, y2, to.track);
            };
            const double detour = length(from->x, from->y, position.x, position.y) +
                                  length(position.x, position.y, to.x, to.y) -
                                  length(from->x, from->y, to.x, to.y);
            if (!nearest || detour < least) {
                nearest = ref;
                least = detour;
            }
        }
        from = &to;
    };
    for (int port = 0; port < static_cast<int>(book.ports.size()); ++port) {
        const PosBookPortRow& place = book.ports[static_cast<std::size_t>(port)];
        for (int sub = 0; sub < static_cast<int>(place.rows.size()); ++sub) {
            look(place.rows[static_cast<std::size_t>(sub)], {port, sub});
        }
        look(place, {port, PosBookRowRef::kPort});
    }
    return nearest;
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/calculation/BookLegs.h"

namespace Tarvik::Seaplan {

std::vector<BookLeg> LegsOf(const BookPoints& rows) {
    std::vector<BookLeg> legs;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].pst == PortPoint) {
            legs.push_back({legs.empty() ? 0 : legs.back().last, i});
        }
    }
    return legs;
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/VoyageOrder.h"

#include <algorithm>
#include <map>

namespace Tarvik::Seaplan {

int OrderVoyages(const std::vector<VoyageKeys>& voyages, const TreeSortState& sort,
                 std::vector<std::string>& out) {
    out.clear();
    if (sort.sortKey != SortByName && sort.sortKey != SortByDate) {
        return -5;
    }
    std::map<std::string, std::map<std::string, std::string>> order;
    for (const VoyageKeys& voyage : voyages) {
        if (sort.sortKey == SortByName) {
            order[voyage.name][voyage.date] = voyage.vi;
        } else {
            order[voyage.date][voyage.name] = voyage.vi;
        }
    }
    for (const auto& [outer, inner] : order) {
        for (const auto& [key, vi] : inner) {
            out.push_back(vi);
        }
    }
    if (sort.direction == Descending) {
        std::reverse(out.begin(), out.end());
    }
    return 0;
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

/// The two keys of a voyage in its category.
struct VoyageKeys {
    std::string vi;
    std::string name;
    std::string date;  ///< "%Y-%m-%d %H:%M:%S", or "0" and a running number for a voyage without a date
};

/// Ids in the order of the rows, by plain byte order of both keys. Of voyages with both keys equal the last
/// stays. -5 for an unknown sort key, with `out` empty.
int OrderVoyages(const std::vector<VoyageKeys>& voyages, const TreeSortState& sort,
                 std::vector<std::string>& out);

}  // namespace Tarvik::Seaplan

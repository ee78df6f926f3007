// SPDX-License-Identifier: MIT
#include "seaplan/controllers/PortIds.h"

#include <algorithm>
#include <cstddef>

#include "seaplan/data/PortDirectory.h"

namespace Tarvik::Seaplan {

void ResolvePortIds(PortCallRows& rows) {
    for (VoyPortCall& row : rows) {
        if (row.ppi.empty()) {
            row.ppi = PortIdOf(row.ppn);
        }
    }
}

void KeepPortIds(const PortCallRows& before, PortCallRows& rows) {
    for (std::size_t i = 0; i < std::min(before.size(), rows.size()); ++i) {
        if (rows[i].ppi.empty() && rows[i].ppn == before[i].ppn) {
            rows[i].ppi = before[i].ppi;
        }
    }
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PortPreparation.h"

namespace Tarvik::Seaplan {

namespace {

bool IsSamePlace(const VoyPortCall& before, const VoyPortCall& row, const SamePortLinks& links) {
    return row.ppn == before.ppn || links.count(before.ppi + "-" + row.ppi) > 0;
}

}  // namespace

void PrepareFirstPurpose(PortCallRows& rows) {
    if (!rows.empty() && IsPurposeMissing(rows.front().pp)) {
        rows.front().pp = kLoad;
    }
}

int DropSamePortRows(const PortCallRows& rows, const SamePortLinks& links, PortCallRows& out) {
    PortCallRows kept;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i > 0 && IsSamePlace(rows[i - 1], rows[i], links)) {
            continue;
        }
        kept.push_back(rows[i]);
        if (IsPurposeMissing(kept.back().pp)) {
            kept.back().pp = kDischarge;
        }
    }
    out.clear();
    if (kept.size() < 2) {
        return -1;
    }
    out = kept;
    return 0;
}

}  // namespace Tarvik::Seaplan

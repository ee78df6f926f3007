// SPDX-License-Identifier: MIT
#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/Outcome.h"

namespace Tarvik::Seaplan {

namespace {

enum class MoveStep { Insert, Remove };
/// Numbers of MoveRowUp and MoveRowDown.
constexpr CodeTable kMoveRowCodes{Code{MoveStep::Insert, -1}, Code{MoveStep::Remove, -2}};

int SizeOf(const PortCallRows& rows) {
    return static_cast<int>(rows.size());
}

/// Puts a copy of row `from` `by` places on and takes the row out that then stands `gone` places on.
Outcome<MoveStep> MoveRow(const PortCallRows& rows, int from, int by, int gone, PortCallRows& out) {
    PortCallRows inserted;
    const bool known = from >= 0 && from < SizeOf(rows);
    if (!known || InsertRowAt(rows, from + by, rows[static_cast<std::size_t>(from)], inserted) != 0) {
        out.clear();
        return MoveStep::Insert;
    }
    PortCallRows result;
    if (RemoveRowAt(inserted, from + gone, result) != 0) {
        out.clear();
        return MoveStep::Remove;
    }
    out = std::move(result);
    return {};
}

}  // namespace

bool IsSamePlace(const VoyPortCall& before, const VoyPortCall& row, const SamePortLinks& links) {
    return row.ppn == before.ppn || AreLinked(links, before.ppi, row.ppi);
}

void PrepareFirstPurpose(PortCallRows& rows) {
    if (!rows.empty() && IsPurposeMissing(rows.front().pp)) {
        rows.front().pp = kLoad;
    }
}

void FillMissingPurposes(PortCallRows& rows) {
    PrepareFirstPurpose(rows);
    for (VoyPortCall& row : rows) {
        if (IsPurposeMissing(row.pp)) {
            row.pp = kDischarge;
        }
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

int InsertRowAt(const PortCallRows& rows, int index, const VoyPortCall& row, PortCallRows& out) {
    if (index < 0) {
        return -1;
    }
    if (index > SizeOf(rows)) {
        return -2;
    }
    PortCallRows result = rows;
    result.insert(result.begin() + index, row);
    out = std::move(result);
    return 0;
}

int RemoveRowAt(const PortCallRows& rows, int index, PortCallRows& out) {
    if (index < 0) {
        return -1;
    }
    if (index >= SizeOf(rows)) {
        return -2;
    }
    PortCallRows result = rows;
    result.erase(result.begin() + index);
    out = std::move(result);
    return 0;
}

int MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out) {
    return kMoveRowCodes.Of(MoveRow(rows, index, -1, 1, out));
}

int MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out) {
    return kMoveRowCodes.Of(MoveRow(rows, index, 2, 0, out));
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/paste/PastedRows.h"

#include <algorithm>
#include <utility>

#include "seaplan/panels/paste/PastedText.h"

namespace Tarvik::Seaplan {

namespace {

PastedCell CellOf(int column, const std::string& text, const PortOfText& port) {
    PastedCell cell{text};
    const bool entered = column == ColEta || column == ColEtd ||
                         (column != kNoColumn && kPortCallColumns[static_cast<std::size_t>(column)].entered);
    // The first row of a voyage shows a speed of none.
    const bool noSpeed = column == ColSpeed && PastedNumber(text, {}) == 0.0;
    if (text.empty() || !entered || noSpeed) {
        return cell;
    }
    cell.value = PastedValue(column, text, port);
    cell.known = !cell.value.empty();
    if (!cell.known && column == ColPort && static_cast<unsigned char>(text.front()) < 0x80U) {
        cell.value = text;  // as it would be typed
    }
    return cell;
}

/// Of several columns of one kind one stays: the first, of ports the first that
/// is known.
void KeepOneOfEach(PastedRows& pasted) {
    for (std::size_t at = 0; at < pasted.columns.size(); ++at) {
        const auto first = std::find(pasted.columns.begin(), pasted.columns.end(), pasted.columns[at]);
        const auto before = static_cast<std::size_t>(first - pasted.columns.begin());
        if (pasted.columns[at] == kNoColumn || before == at) {
            continue;
        }
        for (auto& row : pasted.rows) {
            const bool better = pasted.columns[at] == ColPort && row[at].known && !row[at].value.empty() &&
                                (!row[before].known || row[before].value.empty());
            if (better) {
                row[before].value = row[at].value;
                row[before].known = true;
            }
            row[at] = {row[at].text};
        }
        pasted.columns[at] = kNoColumn;
    }
}

}  // namespace

void LeaveOtherUnits(PastedRows& pasted, const std::string& speedUnit) {
    for (std::size_t at = 0; at < pasted.columns.size(); ++at) {
        if (pasted.columns[at] != ColSpeed) {
            continue;
        }
        const bool wholeColumn = at < pasted.heads.size() && TellsOtherSpeedUnit(pasted.heads[at], speedUnit);
        for (auto& row : pasted.rows) {
            PastedCell& cell = row[at];
            if (!cell.text.empty() && (wholeColumn || TellsOtherSpeedUnit(cell.text, speedUnit))) {
                cell.value.clear();
                cell.known = false;
            }
        }
    }
}

PastedRows ReadPasted(const PastedText& text, PastedColumns columns, const PortOfText& port) {
    PastedRows pasted;
    pasted.cut = text.cut;
    pasted.columns = std::move(columns.columns);
    pasted.heads = std::move(columns.heads);
    const std::size_t first = pasted.heads.empty() ? 0 : 1;
    const std::size_t last = std::min(text.rows.size(), first + kMostPastedRows);
    pasted.cut = pasted.cut || last < text.rows.size();
    for (std::size_t i = first; i < last; ++i) {
        std::vector<PastedCell>& row = pasted.rows.emplace_back();
        row.reserve(text.rows[i].size());
        for (std::size_t at = 0; at < text.rows[i].size(); ++at) {
            row.push_back(CellOf(pasted.columns[at], text.rows[i][at], port));
        }
    }
    KeepOneOfEach(pasted);
    return pasted;
}

}  // namespace Tarvik::Seaplan

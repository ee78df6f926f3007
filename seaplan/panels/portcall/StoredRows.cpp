// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/StoredRows.h"

#include <algorithm>
#include <cstddef>

namespace Tarvik::Seaplan {

namespace {

/// Whether a person entered the same into both rows; the start is that of the first one.
bool SameEntered(const CellTexts& a, const CellTexts& b, bool first) {
    for (int column = 0; column < kPortCallColumnCount; ++column) {
        const bool counts = kPortCallColumns[column].entered || (first && column == ColEta);
        if (counts && a[column] != b[column]) {
            return false;
        }
    }
    return true;
}

std::vector<CellTexts> FilledRows(const PortCallTable& table) {
    std::vector<CellTexts> rows;
    for (int row = 0; row < table.RowCount(); ++row) {
        if (!table.IsBlank(row)) {
            rows.push_back(table.Rows()[row].cells);
        }
    }
    return rows;
}

}  // namespace

void StoredRows::Store(const PortCallTable& table, const PortCallRows& standard) {
    const std::vector<CellTexts> filled = FilledRows(table);
    const bool same = standard.size() == filled.size();
    rows_.clear();
    for (std::size_t i = 0; i < filled.size(); ++i) {
        rows_.push_back({filled[i], same ? standard[i].psp : CellsToRow(filled[i]).psp});
    }
}

void StoredRows::Clear() {
    rows_.clear();
    route_.clear();
}

void StoredRows::NoteRoute(const PortCallTable& table) {
    route_.clear();
    for (const CellTexts& cells : FilledRows(table)) {
        route_.push_back(cells[ColPort]);
    }
}

int StoredRows::RoutedPorts(const PortCallTable& table) const {
    const std::vector<CellTexts> now = FilledRows(table);
    std::size_t same = 0;
    while (same < now.size() && same < route_.size() && now[same][ColPort] == route_[same]) {
        ++same;
    }
    return static_cast<int>(same);
}

bool StoredRows::IsRouteOf(const PortCallTable& table) const {
    return FilledRows(table).size() == route_.size() && RoutedPorts(table) == static_cast<int>(route_.size());
}

void StoredRows::Convert(const std::string& from, const std::string& to) {
    PortCallRows rows;
    for (const Row& row : rows_) {
        rows.push_back(CellsToRow(row.cells));
    }
    PortCallRows converted;
    if (ConvertUnitValue(rows, from, to, converted) != 0) {
        return;
    }
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const std::string eta = rows_[i].cells[ColEta];
        rows_[i].cells = RowToCells(static_cast<int>(i), converted[i]);
        rows_[i].cells[ColEta] = eta;
    }
}

/// Rows that are the same at both ends are left out, so that one that was taken away counts as one.
int StoredRows::ChangedIn(const PortCallTable& table) const {
    const std::vector<CellTexts> now = FilledRows(table);
    const std::size_t common = std::min(now.size(), rows_.size());
    std::size_t head = 0;
    while (head < common && SameEntered(now[head], rows_[head].cells, head == 0)) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < common - head &&
           SameEntered(now[now.size() - 1 - tail], rows_[rows_.size() - 1 - tail].cells, false)) {
        ++tail;
    }
    return static_cast<int>(std::max(now.size(), rows_.size()) - head - tail);
}

void StoredRows::RestoreSpeeds(const PortCallTable& table, PortCallRows& standard) const {
    const std::vector<CellTexts> now = FilledRows(table);
    std::vector<bool> used(rows_.size(), false);
    for (std::size_t i = 1; i < now.size() && i < standard.size(); ++i) {
        for (std::size_t j = 1; j < rows_.size(); ++j) {
            const bool sameLeg = rows_[j - 1].cells[ColPort] == now[i - 1][ColPort] &&
                                 rows_[j].cells[ColPort] == now[i][ColPort];
            if (sameLeg && !used[j] && rows_[j].cells[ColSpeed] == now[i][ColSpeed]) {
                standard[i].psp = rows_[j].speed;
                used[j] = true;
                break;
            }
        }
    }
}

}  // namespace Tarvik::Seaplan

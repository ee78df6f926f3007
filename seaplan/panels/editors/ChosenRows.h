// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

/// Rows of a table that are chosen at once, as the port calls and the position book edit them.
namespace Tarvik::Seaplan {

/// The chosen rows and the one in front that `isRow` takes for rows, each once, from the first on.
template <class IsRow>
std::vector<int> RowsInOrder(std::vector<int> chosen, int front, IsRow isRow) {
    chosen.push_back(front);
    std::erase_if(chosen, [&isRow](int row) { return !isRow(row); });
    std::sort(chosen.begin(), chosen.end());
    chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
    return chosen;
}

/// A row whose cell comes into others.
struct FilledRows {
    int from = -1;
    std::vector<int> rows{};
};
/// What filling down does with chosen rows in order, of which there is one at least: the first goes into
/// those behind it, and into a row alone the one above it, which is -1 for the first of the table.
inline FilledRows RowsToFill(std::vector<int> chosen) {
    if (chosen.size() == 1) {
        return {chosen.front() - 1, std::move(chosen)};
    }
    const int from = chosen.front();
    chosen.erase(chosen.begin());
    return {from, std::move(chosen)};
}

}  // namespace Tarvik::Seaplan

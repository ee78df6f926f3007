// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Rules of the tree that ask no row: which names are kept, and in which order voyages stand.
namespace Tarvik::Seaplan {

/// Greatest widths of names; the editor takes as many UTF-16 units.
inline constexpr int kCategoryNameWidth = 30;
inline constexpr int kVoyageNameWidth = 20;

/// A typed name as it is kept: white space trimmed at both ends, apostrophe, quotation mark, backslash and
/// ampersand replaced by their fullwidth forms. Empty when nothing visible is left.
std::string NormalizeName(const std::string& typed);

enum SortKey : int { SortByName = 0, SortByDate = 1 };
enum SortDirection : int { Descending = 0, Ascending = 1 };

/// How the voyages of one category are ordered.
struct TreeSortState {
    int sortKey = SortByName;
    int direction = Ascending;
};

/// The two keys of a voyage in its category.
struct VoyageKeys {
    std::string vi;
    std::string name;
    std::string date;  ///< `kTimeFormat`, or "0" and a running number for a voyage without a date
};

/// Ids in the order of the rows, by plain byte order of both keys. Of voyages with both keys equal the last
/// stays. False for an unknown sort key, with `out` empty.
bool OrderVoyages(const std::vector<VoyageKeys>& voyages, const TreeSortState& sort,
                  std::vector<std::string>& out);

}  // namespace Tarvik::Seaplan

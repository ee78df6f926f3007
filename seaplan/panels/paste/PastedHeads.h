// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the columns of a pasted text are, by their heads or by a person's choice.
namespace Tarvik::Seaplan {

using PastedLines = std::vector<std::vector<std::string>>;

/// A column of a pasted text that holds nothing of the table's.
inline constexpr int kNoColumn = -1;

struct PastedColumns {
    std::vector<int> columns;        ///< the table's column of each, or kNoColumn
    std::vector<std::string> heads;  ///< of the columns, empty where there were none
};

/// What a column may be called beside the table's own title; in small letters.
struct HeadTitle {
    std::string_view title;
    int column;
};

/// The column of the longest title that a head begins with, whatever the case of its ASCII letters:
/// kNoColumn for none. `titles` are those of the table's columns in the language in force.
int KindOfHead(const std::string& head, const std::vector<std::string>& titles,
               std::span<const HeadTitle> others);
/// Whether the cells of a column count 1, 2, 3 and on.
bool CountsOn(const PastedLines& lines, std::size_t at);
/// Takes one column as a kind; another that was taken so is none from then on.
void TakeColumnAs(std::vector<int>& columns, std::size_t at, int kind);

}  // namespace Tarvik::Seaplan

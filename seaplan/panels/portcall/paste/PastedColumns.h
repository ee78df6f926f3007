// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/portcall/paste/PastedCells.h"

/// What the columns of a pasted text are.
namespace Tarvik::Seaplan {

/// A column of a pasted text that holds nothing of the table's.
inline constexpr int kNoColumn = -1;

/// What a person can take a column of a pasted text as, in the order of the table.
inline constexpr int kPastedKinds[] = {kNoColumn,  ColPort,     ColPurpose, ColSpeed,
                                       ColWeather, ColPortTime, ColEta,     ColEtd};

struct PastedColumns {
    std::vector<int> columns;        ///< the table's column of each, or kNoColumn
    std::vector<std::string> heads;  ///< of the columns, empty where there were none
};

/// Finds out what the columns of lines are: by a first line of heads, which names those of the table in the
/// language in force or in English, or else by what most of their cells look like.
PastedColumns UnderstandColumns(const std::vector<std::vector<std::string>>& lines, const PortOfText& port);

/// Takes one column as a kind; another that was taken so is none from then on.
void TakeColumnAs(std::vector<int>& columns, std::size_t at, int kind);

}  // namespace Tarvik::Seaplan

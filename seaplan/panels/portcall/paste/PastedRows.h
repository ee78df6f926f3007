// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/paste/PastedText.h"
#include "seaplan/panels/portcall/paste/PastedColumns.h"

namespace Tarvik::Seaplan {

/// Pasted rows with what their columns were taken for.
struct PastedRows {
    std::vector<int> columns;          ///< the table's column of each, or kNoColumn
    std::vector<std::string> heads{};  ///< of the columns, empty where there were none
    std::vector<std::vector<PastedCell>> rows;
    bool cut = false;
};

/// Reads the rows of a text whose columns are these, one for each cell of a row. Two columns of one kind are
/// told apart for ports alone, where the one that is known counts.
PastedRows ReadPasted(const PastedText& text, PastedColumns columns, const PortOfText& port);

/// Makes speeds that their own text or their head tells in another unit than
/// this one ("kts" or "KPH") unknown: a wrong speed would look like a right one.
void LeaveOtherUnits(PastedRows& pasted, const std::string& speedUnit);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/PointTables.h"
#include "seaplan/data/VoyPortCall.h"

/// What happens to typed rows before a calculation.
namespace Tarvik::Seaplan {

/// Gives row 0 the purpose "L" when it has none.
void PrepareFirstPurpose(PortCallRows& rows);
/// Leaves out every row that stands for the same place as the row before it in the list as read, by name or
/// by link; rows that stay without a purpose take "D". 0, or -1 with `out` empty when fewer than two rows are
/// left.
int DropSamePortRows(const PortCallRows& rows, const SamePortLinks& links, PortCallRows& out);

}  // namespace Tarvik::Seaplan

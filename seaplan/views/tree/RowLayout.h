// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeRows.h"
#include "seaplan/views/rows/RowParts.h"

/// Where the items of the tree's rows stand.
namespace Tarvik::Seaplan {

/// Whether an item's name has a command behind it.
using ItemCommand = std::function<bool(const std::string&)>;

/// All parts of a row in reading order; hidden items give none. Feeds drawing, clicks, tool tips and keys
/// alike.
std::vector<SubItem> LayoutRow(const TreeRowState& row, const QRect& rect, bool selected,
                               const TextWidth& width, const ItemCommand& hasCommand);

}  // namespace Tarvik::Seaplan

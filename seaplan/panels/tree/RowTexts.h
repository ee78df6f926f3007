// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeWidget.h"

/// Labels and tool tips of rows in the language in force.
namespace Tarvik::Seaplan {

/// Of one row, by its style.
void ApplyRowTexts(TreeWidget& tree, TreeRow row);
/// Of every row.
void ApplyAllRowTexts(TreeWidget& tree);

}  // namespace Tarvik::Seaplan

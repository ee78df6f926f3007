// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/TreeContext.h"

/// What rows show beside their records: labels and tool tips in the language in force, and how many voyages a
/// category has.
namespace Tarvik::Seaplan {

/// Labels and tips of one row, by its style.
void ApplyRowTexts(TreeWidget& tree, TreeRow row);
/// Of every row.
void ApplyAllRowTexts(TreeWidget& tree);

/// Text of a count, with two leading blanks.
std::string CountText(int count);
/// After all rows were made: counts, and on the first pass, while there are no marks, the marks of the
/// voyages, with the pinned ones drawn. -1 for a row without a record.
int CountAndMark(TreeContext& c);
/// Counts of all categories that have voyages. -1 for a row without a record.
int RefreshCounts(TreeContext& c);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/TreeCodes.h"

namespace Tarvik::Seaplan {

struct TreeParts;

/// The voyage that a port distance table is kept as, and its category.
struct TableVoyage {
    std::string ci;
    std::string vi;
};

/// Makes a voyage of this name with its row, and before it the category when none in use has that name. An
/// empty name and a voyage's that is taken are told in a notice, and `out` is empty then.
Outcome<TableVoyageStep> CreateVoyageFromTable(TreeParts& parts, const std::string& category,
                                               const std::string& voyage, TableVoyage& out);

}  // namespace Tarvik::Seaplan

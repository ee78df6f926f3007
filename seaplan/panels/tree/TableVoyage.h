// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

struct TreeParts;

/// The voyage that a port distance table is kept as, and its category.
struct TableVoyage {
    std::string ci;
    std::string vi;
};

/// Makes a voyage of this name with its row, and before it the category when none in use has that name. 0; -1
/// one of the names is empty, -2 the voyage's name is taken, both told in a notice; -3 the category, -4 the
/// voyage, -5 the counts. `out` is empty for -1 and -2.
int CreateVoyageFromTable(TreeParts& parts, const std::string& category, const std::string& voyage,
                          TableVoyage& out);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/VoyInfo.h"
#include "seaplan/panels/tree/TreeCodes.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

/// Shows the dates of a voyage on its row in place of the link to its port calls: the first departure and the
/// last arrival. Apart from TreeStatus, which asks the server, for who asks nothing. Fails with fewer than
/// two port calls, and nothing changes.
Outcome<DatesStep> ShowRowDates(TreeWidget& tree, TreeRow row, const VoyInfo& voyage);

}  // namespace Tarvik::Seaplan

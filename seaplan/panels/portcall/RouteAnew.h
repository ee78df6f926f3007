// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/calculation/Units.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/panels/portcall/RowsPreview.h"

namespace Tarvik::Seaplan {

/// The legs of rows as they are and as a new route would have them, side by side in the distance unit on
/// show. Both lists are in nautical miles and have the same ports in order.
RowsPreview PreviewOfRoute(const PortCallRows& now, const PortCallRows& anew, const UnitSet& units);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include <tarvik/interface/ChartRecords.h>

#include "seaplan/chart/LineSplit.h"

namespace Tarvik::Seaplan {

/// The view that shows all points: eastern, northern, western, southern limit with margins, clamped to the
/// globe; around the world a fixed view. Nothing when no point has a comma.
std::optional<Interface::TrvMapExtent> ExtentOf(const PointTexts& points);

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tarvik/interface/ChartRecords.h>

#include "seaplan/data/Position.h"

/// Lines and views of the chart, worked out from lists of places.
namespace Tarvik::Seaplan {

/// Cuts a list of "x,y" texts where it meets the date line; the test is on the text ("180", "-180"), which
/// becomes 179.99 or -179.99. 0 with the pieces of at least two points; -1 fewer than two points. Of a run of
/// equal texts only the last stays. A jump from 179 to -179 without a point at 180 is not cut.
int SplitAtDateLine(const PointTexts& points, std::vector<PointTexts>& pieces);
/// Both lists in one, without points equal to their predecessor in their own list.
PointTexts JoinTracks(const PointTexts& first, const PointTexts& second);

/// The view that shows all points: eastern, northern, western, southern limit with margins, clamped to the
/// globe; around the world a fixed view. Nothing when no point has a comma.
std::optional<Interface::TrvMapExtent> ExtentOf(const PointTexts& points);

}  // namespace Tarvik::Seaplan

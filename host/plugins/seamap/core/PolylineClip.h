// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "host/plugins/seamap/core/MercatorView.h"

namespace Tarvik::Seamap {

/// A stretch of a line that may be seen in the window.
struct PolylineRun {
    std::vector<PixelPoint> points;  ///< at least two
    double start = 0;                ///< length of the line in pixels before the first point, for the dashes
};

/// Pixels around the window in which things are still drawn.
inline constexpr double kDrawMargin = 32;

/// Pixels between the points of a line that are told apart on the screen.
inline constexpr double kLineDetail = 0.7;

/// The stretches of a line that cross the window widened by `margin` pixels, with the line moved `turn` turns
/// to the east. Segments are cut at the widened window, and points less than `detail` pixels behind the last
/// one kept are left out.
std::vector<PolylineRun> ClipPolyline(std::span<const WorldPoint> points, const MercatorView& view, int turn,
                                      double margin, double detail);

/// Leaves out the points of a line from which it would stray less than `tolerance` pixels without them. Its
/// ends stay.
void Straighten(std::vector<PixelPoint>& line, double tolerance);

/// A place on a run where an arrow tells the way.
struct CourseMark {
    PixelPoint at;
    double degrees = 0;  ///< clockwise from upwards
};
/// Marks along a run, `spacing` pixels apart, at places of the line that stay while the view moves.
std::vector<CourseMark> CourseMarks(const PolylineRun& run, double spacing);

/// A polygon cut at the window widened by `margin` pixels; what lies outside runs along the edge. Empty when
/// nothing of it lies inside.
std::vector<PixelPoint> ClipPolygon(std::vector<PixelPoint> points, double width, double height,
                                    double margin);

}  // namespace Tarvik::Seamap

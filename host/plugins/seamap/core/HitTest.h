// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/MercatorView.h"

namespace Tarvik::Seamap {

/// Distance in pixels from a point to a segment.
double DistanceToSegment(PixelPoint point, PixelPoint from, PixelPoint to);

/// The leg of a line that is nearest to a pixel: the index of the point at its end, from 1.
std::size_t LegNear(const ChartLine& line, PixelPoint pixel, const MercatorView& view);

/// Finds the object under a pixel.
class HitTest {
  public:
    static constexpr double kTolerance = 5;  ///< pixels beside an object that still count as on it

    /// Half the width and half the height in pixels of an image by its registered name.
    using ImageHalfSize = std::function<PixelPoint(const std::string&)>;

    HitTest(const ChartObjects& objects, const MercatorView& view, ImageHalfSize halfSize)
        : objects_(objects), view_(view), halfSize_(std::move(halfSize)) {}

    /// The nearest object within the tolerance, null without one. Points and images go before lines; of
    /// equals the one drawn last.
    const ChartObject* At(PixelPoint pixel) const;

  private:
    double Distance(const ChartLine& line, PixelPoint pixel) const;
    double Distance(const ChartLabel& label, PixelPoint pixel) const;
    double Distance(const ChartImage& image, PixelPoint pixel) const;

    const ChartObjects& objects_;
    const MercatorView& view_;
    ImageHalfSize halfSize_;
};

}  // namespace Tarvik::Seamap

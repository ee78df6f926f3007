// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/plugins/seamap/core/MercatorView.h"

namespace Tarvik::Seamap {

/// A line of the net of meridians or parallels.
struct GraticuleLine {
    double pixel = 0;   ///< x of a meridian, y of a parallel, in the window
    std::string label;  ///< "30° N", "004° 20' E"
};

/// The net of the view: a spacing that leaves about a hundred pixels between lines.
class Graticule {
  public:
    explicit Graticule(const MercatorView& view);
    /// Spacing in minutes of arc.
    double Spacing() const { return spacing_; }
    const std::vector<GraticuleLine>& Meridians() const { return meridians_; }
    const std::vector<GraticuleLine>& Parallels() const { return parallels_; }

  private:
    double spacing_;
    std::vector<GraticuleLine> meridians_;
    std::vector<GraticuleLine> parallels_;
};

/// The scale bar: a round length in nautical miles at the latitude in the middle of the view.
struct ScaleBar {
    double miles = 0;
    double pixels = 0;  ///< at most the longest length asked for
    std::string text;   ///< "200 NM"

    static ScaleBar For(const MercatorView& view, double longestPixels);
};

}  // namespace Tarvik::Seamap

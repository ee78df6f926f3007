// SPDX-License-Identifier: MIT
#pragma once

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/LabelRoom.h"
#include "host/plugins/seamap/core/MercatorView.h"

class QPainter;

namespace Tarvik::Seamap {

class HaloTexts;

/// What stands on the glass before the chart: the names of meridians and parallels along the edges and the
/// scale bar.
class Furniture {
  public:
    /// `graticule` tells whether the names of its lines are drawn.
    Furniture(const MercatorView& view, const ChartPalette& palette, HaloTexts& texts, bool graticule)
        : view_(view), palette_(palette), texts_(texts), graticule_(graticule) {}
    void Draw(QPainter& painter) const;
    /// Takes the places along the edges where it will be drawn.
    void Reserve(LabelRoom& room) const;

  private:
    void DrawNames(QPainter& painter) const;
    void DrawScaleBar(QPainter& painter) const;

    const MercatorView& view_;
    const ChartPalette& palette_;
    HaloTexts& texts_;
    bool graticule_;
};

}  // namespace Tarvik::Seamap

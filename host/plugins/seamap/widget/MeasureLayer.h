// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <optional>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/Measure.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/widget/HaloTexts.h"

class QPainter;

namespace Tarvik::Seamap {

/// Draws what is measured: the ways, their points, miles and course of each leg, and the leg that leads to
/// the pointer; and the mark at a place that a person went to.
class MeasureLayer {
  public:
    /// `pointer` is where the next leg would end; empty while the pointer is elsewhere.
    void Draw(QPainter& painter, const MercatorView& view, const ChartPalette& palette,
              const Measure& measure, std::optional<GeoPoint> pointer);
    void DrawMark(QPainter& painter, const MercatorView& view, const ChartPalette& palette, GeoPoint place);

  private:
    void DrawLeg(QPainter& painter, const MercatorView& view, const MeasuredLeg& leg, Track track);
    void DrawText(QPainter& painter, QPointF start, const std::string& text, const ChartPalette& palette);

    HaloTexts texts_;
};

}  // namespace Tarvik::Seamap

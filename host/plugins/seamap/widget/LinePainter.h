// SPDX-License-Identifier: MIT
#pragma once

#include <QPen>
#include <QtGlobal>
#include <cstdint>
#include <optional>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/core/PolylineClip.h"

class QImage;
class QPainter;

namespace Tarvik::Seamap {

/// A line with how it stands among the others.
struct LineStroke {
    const ChartLine* line = nullptr;
    ChartObjects::Tone tone = ChartObjects::Tone::Plain;
    bool highlighted = false;
    std::optional<std::uint32_t> tint = std::nullopt;  ///< 0x00RRGGBB, in place of the line's own colour
};

/// Draws the lines of a view: each with a rim and arrows that tell its way, or, where they are many, as bare
/// thin ones.
class LinePainter {
  public:
    LinePainter(const MercatorView& view, const ChartPalette& palette) : view_(view), palette_(palette) {}

    /// With rim and arrows.
    void Draw(QPainter& painter, const LineStroke& stroke) const;
    /// Bare and thin, on a picture of the view with `pixelRatio` pixels for one of the view.
    void DrawThin(QImage& canvas, qreal pixelRatio, const LineStroke& stroke) const;

  private:
    QColor ColourOf(const LineStroke& stroke) const;
    QPen RimOf(const LineStroke& stroke) const;
    void DrawArrows(QPainter& painter, const PolylineRun& run, const QColor& colour) const;

    const MercatorView& view_;
    const ChartPalette& palette_;
};

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <span>
#include <vector>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/CoastData.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/core/Plotter.h"

namespace Tarvik::Seamap {

/// Draws sea, land and coast into a part of a picture. Each part is drawn as in the whole, so that several of
/// these may draw parts of one picture at the same time.
class LandPainter {
  public:
    /// Land may be null: all is sea. `scale` is the picture's pixels for one of the window.
    LandPainter(const CoastData::Level* land, const MercatorView& view, const ChartPalette& palette,
                const PixelBoard& board, double scale)
        : level_(land), view_(view), palette_(palette), board_(board), scale_(scale) {}

    /// Draws a part of the picture.
    void Draw(const PixelRect& part);

  private:
    void DrawCells(Plotter& plotter);
    void DrawCoasts(Plotter& plotter);
    /// A shore that reaches so far out of the window that it is cut first.
    void DrawLongCoast(Plotter& plotter, std::span<const WorldPoint> points, int turn);
    /// Brings points into the window's pixels, without those too near to their predecessor.
    void Trace(std::span<const WorldPoint> points, int turn, double detail);
    /// Brings the traced points from the window's pixels to those of the picture.
    void Enlarge();

    const CoastData::Level* level_;
    const MercatorView& view_;
    const ChartPalette& palette_;
    PixelBoard board_;
    double scale_;
    QRect clip_;                     ///< the part being drawn, in pixels of the window
    std::vector<PixelPoint> trace_;  ///< the shape being drawn
};

}  // namespace Tarvik::Seamap

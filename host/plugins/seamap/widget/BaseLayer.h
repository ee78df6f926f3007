// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPixmap>
#include <QRegion>
#include <span>
#include <vector>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/CoastData.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/core/Plotter.h"

class QPainter;

namespace Tarvik::Seamap {

/// Sea, land, coast and the lines of the graticule, kept as a picture: while the view is panned the picture
/// is shifted and only the strips that come into sight are drawn.
class BaseLayer {
  public:
    void SetLand(CoastData land);
    void ShowGraticule(bool shown);
    /// The picture of the view; drawn anew as far as needed.
    const QPixmap& Picture(const MercatorView& view, const ChartPalette& palette, qreal pixelRatio);

  private:
    bool Shift(const MercatorView& view, QRegion& missing);
    void Draw(QImage& canvas, const QRegion& region);
    void DrawLand(Plotter& plotter);
    void DrawCells(Plotter& plotter, const CoastData::Level& level);
    void DrawCoasts(Plotter& plotter, const CoastData::Level& level);
    /// A shore that reaches so far out of the window that it is cut first.
    void DrawLongCoast(Plotter& plotter, std::span<const WorldPoint> points, int turn);
    /// Brings points into the window's pixels, without those too near to their predecessor.
    void Trace(std::span<const WorldPoint> points, int turn, double detail);
    /// Brings the traced points from the window's pixels to those of the picture.
    void Enlarge();
    void DrawGraticule(QPainter& painter, const QRect& bounds) const;

    CoastData land_;
    bool graticule_ = true;
    MercatorView view_;
    const ChartPalette* palette_ = nullptr;
    QPixmap picture_;
    QRect clip_;                     ///< the strip being drawn
    double scale_ = 1;               ///< the picture's pixels for one of the window
    std::vector<PixelPoint> trace_;  ///< the shape being drawn
};

}  // namespace Tarvik::Seamap

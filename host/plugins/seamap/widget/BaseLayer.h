// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPixmap>
#include <QRegion>
#include <future>
#include <utility>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/CoastData.h"
#include "host/plugins/seamap/core/MercatorView.h"

class QPainter;

namespace Tarvik::Seamap {

/// Sea, land, coast and the lines of the graticule, kept as a picture: while the view is panned the picture
/// is shifted and only the strips that come into sight are drawn.
class BaseLayer {
  public:
    void SetLand(CoastData land);
    /// Takes land that is still being read: the first picture waits for it.
    void SetLand(std::future<CoastData> land) { coming_ = std::move(land); }
    void ShowGraticule(bool shown);
    /// The picture of the view; drawn anew as far as needed.
    const QPixmap& Picture(const MercatorView& view, const ChartPalette& palette, qreal pixelRatio);

  private:
    bool Shift(const MercatorView& view, QRegion& missing);
    void Draw(QImage& canvas, const QRegion& region);
    void DrawGraticule(QPainter& painter, const QRect& bounds) const;

    CoastData land_;
    std::future<CoastData> coming_;  ///< valid until it has become the land
    bool graticule_ = true;
    MercatorView view_;
    const ChartPalette* palette_ = nullptr;
    QPixmap picture_;
};

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <cstdint>
#include <vector>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/MercatorView.h"

class QPainter;

namespace Tarvik::Seamap {

struct LineStroke;

/// The lines of the chart, kept as a picture while neither they nor the view change: ships that move and a
/// pointer that wanders cost no stroke.
class LineLayer {
  public:
    /// From so many lines on they are thin and bare, but for the voyage that stands out.
    static constexpr std::size_t kMany = 50;

    /// Makes the picture of the lines where it is not good any more. Uses nothing of the window system, so
    /// that it may run on another thread while neither lines nor this are used otherwise.
    void Prepare(const MercatorView& view, const ChartPalette& palette, const ChartObjects& objects,
                 qreal pixelRatio);
    /// Whether the picture is as Prepare would make it.
    bool IsGood(const MercatorView& view, const ChartPalette& palette, const ChartObjects& objects,
                qreal pixelRatio) const;
    /// Draws all lines, that of the key `highlighted` above the others; null without one.
    void Draw(QPainter& painter, const MercatorView& view, const ChartPalette& palette,
              const ChartObjects& objects, const ObjectKey* highlighted);
    /// Whether each voyage has a colour of its own.
    void ShowTints(bool shown);
    /// How often the picture was made.
    int Made() const { return made_; }

  private:
    void Make(const ChartObjects& objects, qreal pixelRatio);
    LineStroke StrokeOf(const ChartObjects& objects, const ChartObject& object, const ChartLine& line) const;
    std::vector<LineStroke> StrokesOf(const ChartObjects& objects) const;

    QImage picture_;  ///< null without lines
    MercatorView view_;
    const ChartPalette* palette_ = nullptr;
    std::uint64_t revision_ = 0;
    std::uint64_t plans_ = 0;  ///< revision of the plans, which give the lines their colours
    bool tints_ = false;
    bool madeWithTints_ = false;
    qreal pixelRatio_ = 0;
    int made_ = 0;
};

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/LabelRoom.h"
#include "host/plugins/seamap/core/MercatorView.h"

class QPainter;
class QString;

namespace Tarvik::Seamap {

class HaloTexts;
class ImageStore;

/// What objects are drawn with, whatever the view.
struct ChartLook {
    const ChartPalette& palette;
    ImageStore& images;
    HaloTexts& texts;
    qreal pixelRatio;
};

/// Draws the objects of the chart above its lines: points and images, then the texts that find room. What
/// they take is told to `room`.
class ObjectPainter {
  public:
    ObjectPainter(QPainter& painter, const MercatorView& view, const ChartLook& look, LabelRoom& room)
        : painter_(painter), view_(view), look_(look), room_(room) {}

    /// `highlighted` is the object under the pointer, null without one. With `planned` the ships of plans are
    /// left out: they stand elsewhere.
    void Draw(const ChartObjects& objects, const ObjectKey* highlighted, bool planned = false);

    /// Draws a text in the painter's font on the first side of a round thing where it finds room; `always`
    /// where none is free too, as long as it is whole in the window.
    void DrawBeside(PixelPoint centre, double radius, const QString& text, bool always);

  private:
    void DrawPoint(const ChartLabel& label, bool highlighted);
    void DrawImage(const ChartObjects& objects, const ChartImage& image, bool highlighted);
    void DrawText(const ChartLabel& label, bool always);
    bool IsSeen(PixelPoint centre) const;

    QPainter& painter_;
    const MercatorView& view_;
    ChartLook look_;
    LabelRoom& room_;
};

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <vector>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/LabelRoom.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/core/PolylineClip.h"

class QColor;
class QPainter;

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

/// Draws the objects of the chart: lines below, then points and images, then the texts that find room. What
/// they take is told to `room`.
class ObjectPainter {
  public:
    ObjectPainter(QPainter& painter, const MercatorView& view, const ChartLook& look, LabelRoom& room)
        : painter_(painter), view_(view), look_(look), room_(room) {}

    /// `highlighted` is the object under the pointer, null without one.
    void Draw(const ChartObjects& objects, const ObjectKey* highlighted);

  private:
    struct Stroke {
        const ChartLine* line;
        bool highlighted;
        ChartObjects::Tone tone;
    };
    void DrawLines(const std::vector<Stroke>& lines);
    void DrawLine(const Stroke& stroke, bool thin);
    void DrawArrows(const PolylineRun& run, const QColor& colour);
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

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/ChartParts.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/widget/BaseLayer.h"
#include "host/plugins/seamap/widget/HaloTexts.h"
#include "host/plugins/seamap/widget/ImageStore.h"
#include "host/plugins/seamap/widget/LineLayer.h"
#include "host/plugins/seamap/widget/NameLayer.h"
#include "host/plugins/seamap/widget/ObjectPainter.h"
#include "host/plugins/seamap/widget/ShipPainter.h"

namespace Tarvik::Seamap {

/// What the chart shows, whatever the view: land, objects, names and furniture in the colours of a theme, and
/// what lies under a pixel.
class ChartScene {
  public:
    /// The objects must live longer than the scene.
    explicit ChartScene(const ChartObjects& objects) : objects_(objects) {}

    void SetLand(CoastData land) { base_.SetLand(std::move(land)); }
    void SetLand(std::future<CoastData> land) { base_.SetLand(std::move(land)); }
    /// Names of waters and ports, in the order in which they find room.
    void SetNames(const std::vector<ChartName>& names) { names_.SetNames(names); }
    /// What is drawn of it from now on.
    void ShowParts(const ChartParts& parts);
    const ChartParts& Parts() const { return parts_; }
    void SetTheme(ChartPalette::Theme theme);
    /// Shows the ships of plans where they are at this time, and the night of it; without one as they were
    /// drawn, and the present night.
    void SetPlanTime(std::optional<PlanTime> time) { planTime_ = time; }
    const ChartPalette& Palette() const { return *palette_; }

    /// `highlighted` is the object under the pointer, null without one.
    void Paint(QPainter& painter, const MercatorView& view, qreal pixelRatio, const ObjectKey* highlighted);
    /// What lies under a pixel.
    struct Met {
        ObjectKey key;
        QString tip;  ///< what is told of it to someone who points at it; of a line the leg there
        bool isLine = false;
    };
    /// The object or ship under a pixel: points and images before ships, ships before lines.
    std::optional<Met> At(PixelPoint pixel, const MercatorView& view, qreal pixelRatio);
    /// A port of the chart itself under a pixel, null without one: below points, images and ships, above
    /// lines.
    const ChartName* PortAt(PixelPoint pixel, const MercatorView& view, qreal pixelRatio);
    /// The extent that holds all objects; the inhabited world without any.
    Extent ExtentOfAll() const;

  private:
    void PaintBase(QPainter& painter, const MercatorView& view, qreal pixelRatio);
    void PaintNight(QPainter& painter, const MercatorView& view) const;
    void PaintPlans(QPainter& painter, const MercatorView& view, const ChartLook& look, LabelRoom& room);
    QString TipOf(const ChartObject& object, PixelPoint pixel, const MercatorView& view) const;
    QString TipOf(const ChartObject& object, const ChartLine& line, std::size_t leg) const;

    const ChartObjects& objects_;
    const ChartPalette* palette_ = &ChartPalette::Of(ChartPalette::Theme::Light);
    ChartParts parts_;
    BaseLayer base_;
    LineLayer lines_;
    ImageStore images_;
    HaloTexts texts_;
    NameLayer names_;
    ShipPainter shipPainter_;
    std::optional<PlanTime> planTime_;
};

}  // namespace Tarvik::Seamap

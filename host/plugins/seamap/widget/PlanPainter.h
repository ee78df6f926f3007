// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

#include "host/plugins/seamap/core/LabelRoom.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/core/VoyagePlans.h"
#include "host/plugins/seamap/widget/ObjectPainter.h"

class QPainter;

namespace Tarvik::Seamap {

/// Draws what the plans of voyages tell: the ports of one by number with their times, and the ships at a time
/// of the plan. What they take is told to `room`.
class PlanPainter {
  public:
    PlanPainter(QPainter& painter, const MercatorView& view, const ChartLook& look, LabelRoom& room)
        : painter_(painter), view_(view), look_(look), room_(room) {}

    void DrawPorts(const VoyagePlan& plan);
    /// With `tints` each ship in the colour of its voyage.
    void DrawShips(const VoyagePlans& plans, PlanTime time, bool tints);

    /// The ship under a pixel at a time; nothing without one.
    static std::optional<PlannedShip> ShipAt(const VoyagePlans& plans, PlanTime time, PixelPoint pixel,
                                             const MercatorView& view);
    /// What is told of a ship to who points at it.
    static QString TipOf(const PlannedShip& ship);
    /// The same of a leg.
    static QString TipOf(const PlanLeg& leg);

  private:
    void DrawText(PixelPoint at, double radius, const QString& text);
    /// A place that is still free for the disc of a port, beside others that stand there.
    PixelPoint DiscPlace(PixelPoint at) const;

    QPainter& painter_;
    const MercatorView& view_;
    ChartLook look_;
    LabelRoom& room_;
};

}  // namespace Tarvik::Seamap

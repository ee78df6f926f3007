// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>
#include <vector>

#include "host/plugins/seamap/core/ChartNames.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/LabelRoom.h"
#include "host/plugins/seamap/core/MercatorView.h"

class QPainter;

namespace Tarvik::Seamap {

class HaloTexts;

/// The names of waters and ports: each where the zoom shows it, whole, and off what stands there already.
class NameLayer {
  public:
    /// Replaces all names, given in the order in which they find room.
    void SetNames(const std::vector<ChartName>& names);
    /// Draws the names that find room in the window and takes it.
    void Draw(QPainter& painter, const MercatorView& view, const ChartPalette& palette, HaloTexts& texts,
              LabelRoom& room);
    /// Draws none, and so none is met.
    void Hide() { drawn_.clear(); }
    /// The port whose dot or name was drawn last under a pixel, null without one.
    const ChartName* PortAt(PixelPoint pixel) const;
    /// The names that would be drawn, in order, with their boxes: what Draw draws, without a painter.
    struct Placed {
        const ChartName* name = nullptr;
        QString text;
        LabelBox box;
        PixelPoint place;  ///< of the port's dot
    };
    std::vector<Placed> Place(const MercatorView& view, LabelRoom& room) const;

  private:
    /// A name with what measuring its text costs time for.
    struct Entry {
        ChartName name;
        QString text;
        double width = 0;  ///< pixels
    };
    static QFont FontOf(ChartName::Kind kind);
    static bool PlaceWater(const Entry& entry, const MercatorView& view, LabelRoom& room, Placed& placed);
    static bool PlacePort(const Entry& entry, const MercatorView& view, LabelRoom& room, Placed& placed);

    std::vector<Entry> entries_;
    std::vector<Placed> drawn_;
};

}  // namespace Tarvik::Seamap

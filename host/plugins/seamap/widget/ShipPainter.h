// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/ChartShips.h"
#include "host/plugins/seamap/core/MercatorView.h"

class QPainter;

namespace Tarvik::Seamap {

/// Draws ships by heading. Each colour and heading is a small picture that is drawn once and then copied;
/// where ships stand so close that one hides the other, one is drawn. Cost: some 0.2 µs a ship in view.
class ShipPainter {
  public:
    /// What the ships are drawn with from now on; the pictures are made anew for another look.
    void Adopt(const ChartPalette& palette, qreal pixelRatio);
    /// `type` and `id` name the ship under the pointer; empty without one.
    void Draw(QPainter& painter, const ChartShips& ships, const MercatorView& view,
              const std::pair<std::string, std::string>& highlighted);

  private:
    /// One picture for each heading, and the round one, in two sizes.
    using Pictures = std::array<QPixmap, 2 * 73>;
    void DrawShip(QPainter& painter, PixelPoint at, const ChartShip& ship);
    const QPixmap& Picture(std::int32_t colour, double heading);
    static bool AreMany(const ChartShips& ships, const MercatorView& view);
    /// Whether nothing was drawn at this pixel yet; marks it.
    bool TakeCell(PixelPoint at, const MercatorView& view);

    std::map<std::int32_t, Pictures> pictures_;  ///< by colour
    const ChartPalette* palette_ = nullptr;
    qreal pixelRatio_ = 1;
    bool small_ = false;
    std::vector<char> cells_;
};

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <tarvik/bus/PlacesContract.h>

#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/core/Projection.h"

namespace Tarvik::Seamap {

/// A ship on the chart, projected once.
struct ChartShip {
    std::string type;
    std::string id;
    std::string tip;
    GeoPoint position;
    WorldPoint world;
    double heading = -1;      ///< degrees; below 0 not known
    std::int32_t colour = 0;  ///< 0x00BBGGRR
};

/// The ships on the chart, by kind, without a window. Tens of thousands are set and drawn at once, so they
/// are kept in lists and not by name as other objects are.
class ChartShips {
  public:
    /// Pixels around a ship's middle that count as on it.
    static constexpr double kReach = 8;

    /// Takes these in place of those of the type before; a place that is none is left out.
    void Set(const Interface::TrvMapShips& ships);
    /// The ships of each type.
    const std::map<std::string, std::vector<ChartShip>>& ByType() const { return byType_; }
    /// The ship nearest to a pixel within reach, null without one; good until the next Set.
    const ChartShip* At(PixelPoint pixel, const MercatorView& view) const;
    /// Called after each change; an empty function ends it.
    void SetObserver(std::function<void()> observer) { observer_ = std::move(observer); }

  private:
    std::map<std::string, std::vector<ChartShip>> byType_;
    std::function<void()> observer_;
};

}  // namespace Tarvik::Seamap

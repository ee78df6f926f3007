// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/plugins/seamap/core/LandSource.h"
#include "host/plugins/seamap/core/Projection.h"

namespace Tarvik::Seamap {

/// Land in the projection of the chart, ready to be culled and drawn.
class CoastData {
  public:
    /// A run of points with its bounds.
    struct Shape {
        std::uint32_t first = 0;
        std::uint32_t count = 0;
        double minX = 0, maxX = 0, minY = 0, maxY = 0;
    };
    struct Level {
        std::vector<WorldPoint> points;
        std::vector<Shape> cells;
        std::vector<Shape> coasts;
        std::span<const WorldPoint> PointsOf(const Shape& shape) const {
            return std::span(points).subspan(shape.first, shape.count);
        }
    };

    CoastData() = default;
    explicit CoastData(const std::vector<LandLevel>& levels);

    bool IsEmpty() const { return levels_.empty(); }
    int LevelCount() const { return static_cast<int>(levels_.size()); }
    /// The level for a world of so many pixels: coarse for small worlds. Must not be called when empty.
    const Level& For(std::int64_t worldSize) const;
    const Level& At(int level) const { return levels_[static_cast<std::size_t>(level)]; }

  private:
    std::vector<Level> levels_;
    Level thinned_;  ///< the second level for a world that is whole in a window
};

}  // namespace Tarvik::Seamap

// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/CoastData.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/core/PolylineClip.h"

namespace Tarvik::Seamap {

namespace {

/// Long shores are cut into runs of so many points, so that most of them can be culled.
constexpr std::size_t kRunLength = 128;
/// Largest world in pixels drawn with the coarsest and with the next level.
constexpr std::array<std::int64_t, 2> kLevelLimit{900, 9000};
/// Largest world drawn with the level that is thinned from the second, and what is left out of it.
constexpr std::int64_t kThinLimit = 2600;
constexpr double kThinLattice = 4096;  ///< corners of areas are brought to so many places round the world
constexpr double kThinStray = 0.3;     ///< pixels of the largest world by which a shore may leave its way

/// The source's cut along the date line and its closing edge at the south pole are no shore.
bool IsCut(LandPoint a, LandPoint b) {
    const auto onDateLine = [](LandPoint p) { return std::fabs(std::fabs(p.lon) - 180.0F) < 1e-4F; };
    return (onDateLine(a) && onDateLine(b)) || (a.lat < -89.0F && b.lat < -89.0F);
}

void Append(CoastData::Level& level, std::vector<CoastData::Shape>& shapes,
            std::span<const LandPoint> points) {
    CoastData::Shape shape;
    shape.first = static_cast<std::uint32_t>(level.points.size());
    shape.count = static_cast<std::uint32_t>(points.size());
    shape.minX = shape.minY = 1e9;
    shape.maxX = shape.maxY = -1e9;
    for (const LandPoint& point : points) {
        const WorldPoint world = Project({point.lon, point.lat});
        shape.minX = std::min(shape.minX, world.x);
        shape.maxX = std::max(shape.maxX, world.x);
        shape.minY = std::min(shape.minY, world.y);
        shape.maxY = std::max(shape.maxY, world.y);
        level.points.push_back(world);
    }
    shapes.push_back(shape);
}

void AppendThinned(CoastData::Level& level, std::vector<CoastData::Shape>& shapes, CoastData::Shape shape,
                   const std::vector<PixelPoint>& points, double scale) {
    shape.first = static_cast<std::uint32_t>(level.points.size());
    shape.count = static_cast<std::uint32_t>(points.size());
    for (const PixelPoint& point : points) {
        level.points.push_back({point.x / scale, point.y / scale});
    }
    shapes.push_back(shape);
}

/// An area with its corners on a lattice, without those that say nothing there. Neighbours keep their common
/// side, as both have its points on the same places.
std::vector<PixelPoint> OnLattice(std::span<const WorldPoint> area) {
    std::vector<PixelPoint> kept;
    for (const WorldPoint& point : area) {
        const PixelPoint place{std::round(point.x * kThinLattice), std::round(point.y * kThinLattice)};
        if (kept.empty() || place.x != kept.back().x || place.y != kept.back().y) {
            kept.push_back(place);
        }
    }
    return kept;
}

CoastData::Level Thinned(const CoastData::Level& source) {
    CoastData::Level level;
    for (const CoastData::Shape& cell : source.cells) {
        const std::vector<PixelPoint> points = OnLattice(source.PointsOf(cell));
        if (points.size() >= 3) {
            AppendThinned(level, level.cells, cell, points, kThinLattice);
        }
    }
    constexpr double kScale = kThinLimit;
    for (const CoastData::Shape& coast : source.coasts) {
        std::vector<PixelPoint> points;
        for (const WorldPoint& point : source.PointsOf(coast)) {
            points.push_back({point.x * kScale, point.y * kScale});
        }
        Straighten(points, kThinStray);
        AppendThinned(level, level.coasts, coast, points, kScale);
    }
    return level;
}

void AppendCoast(CoastData::Level& level, const LandShape& coast) {
    std::size_t first = 0;
    for (std::size_t i = 1; i <= coast.size(); ++i) {
        const bool end = i == coast.size() || IsCut(coast[i - 1], coast[i]);
        if (!end && i - first < kRunLength) {
            continue;
        }
        // A run that goes on shares its last point with the next one.
        const std::size_t last = end ? i : i + 1;
        if (last - first >= 2) {
            Append(level, level.coasts, std::span(coast).subspan(first, last - first));
        }
        first = i;
    }
}

}  // namespace

CoastData::CoastData(const std::vector<LandLevel>& levels) {
    for (const LandLevel& source : levels) {
        Level& level = levels_.emplace_back();
        std::size_t count = 0;
        for (const LandShape& cell : source.cells) {
            count += cell.size();
        }
        for (const LandShape& coast : source.coasts) {
            count += coast.size() + coast.size() / kRunLength + 1;
        }
        level.points.reserve(count);
        for (const LandShape& cell : source.cells) {
            if (cell.size() >= 3) {
                Append(level, level.cells, cell);
            }
        }
        for (const LandShape& coast : source.coasts) {
            AppendCoast(level, coast);
        }
    }
    if (levels_.size() > 1) {
        thinned_ = Thinned(levels_[1]);
    }
}

const CoastData::Level& CoastData::For(std::int64_t worldSize) const {
    if (levels_.size() > 1 && worldSize > kLevelLimit[0] && worldSize <= kThinLimit) {
        return thinned_;
    }
    std::size_t level = 0;
    while (level < kLevelLimit.size() && worldSize > kLevelLimit[level]) {
        ++level;
    }
    return levels_[std::min(level, levels_.size() - 1)];
}

}  // namespace Tarvik::Seamap

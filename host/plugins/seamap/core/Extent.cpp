// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/Extent.h"

#include <algorithm>
#include <cmath>

#include <tarvik/bus/ChartContract.h>
#include <tarvik/util/Geodesy.h>

#include "host/geo/Sphere.h"

namespace Tarvik::Seamap {

std::optional<Extent> Extent::FromCorners(const Interface::TrvMapExtent& corners) {
    for (const double value : {corners.first, corners.second, corners.third, corners.fourth}) {
        if (!std::isfinite(value) || std::fabs(value) > 720.0) {
            return std::nullopt;
        }
    }
    Extent extent;
    const bool isOverDateLine = corners.first == Interface::Bus::kAroundTheWorldFrom &&
                                corners.third == Interface::Bus::kAroundTheWorldTo;
    if (isOverDateLine) {
        extent.west = corners.first;
        extent.east = corners.third + 360.0;
    } else {
        extent.west = std::min(corners.first, corners.third);
        extent.east = std::min(std::max(corners.first, corners.third), extent.west + 360.0);
    }
    extent.south =
        std::clamp(std::min(corners.second, corners.fourth), -Util::kMostLatitude, Util::kMostLatitude);
    extent.north =
        std::clamp(std::max(corners.second, corners.fourth), -Util::kMostLatitude, Util::kMostLatitude);
    return extent;
}

Interface::TrvMapExtent Extent::Corners() const {
    return {west, south, east, north};
}

std::optional<Extent> Extent::Around(const std::vector<GeoPoint>& points) {
    if (points.empty()) {
        return std::nullopt;
    }
    std::vector<double> lons;
    Extent extent{0, Util::kMostLatitude, 0, -Util::kMostLatitude};
    for (const GeoPoint& point : points) {
        lons.push_back(Server::WrapLongitude(point.x));
        extent.south = std::min(extent.south, point.y);
        extent.north = std::max(extent.north, point.y);
    }
    std::sort(lons.begin(), lons.end());
    // The widest empty stretch between neighbours stays outside; the extent starts behind it.
    double widest = lons.front() + 360.0 - lons.back();
    extent.west = lons.front();
    for (std::size_t i = 1; i < lons.size(); ++i) {
        const double gap = lons[i] - lons[i - 1];
        if (gap <= widest) {
            continue;
        }
        widest = gap;
        extent.west = lons[i];
    }
    extent.east = extent.west + 360.0 - widest;
    return extent;
}

bool Extent::Contains(GeoPoint point) const {
    if (point.y < south || point.y > north) {
        return false;
    }
    const double turned = point.x - 360.0 * std::floor((point.x - west) / 360.0);
    return turned <= east || (point.x >= west && point.x <= east);
}

}  // namespace Tarvik::Seamap

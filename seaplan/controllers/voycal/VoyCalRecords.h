// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <tarvik/interface/ChartRecords.h>

/// What the stand-alone calculator holds of a calculation. Degrees, longitude first; distances in km.
namespace Tarvik::Seaplan {

/// A port or route point.
struct VoyCalPoint {
    double x = 0;
    double y = 0;
    std::string id;
    std::string name;
};

using VoyCalPoints = std::map<std::string, VoyCalPoint>;

/// One corner of a route.
struct VoyCalCorner {
    double x = 0;
    double y = 0;
    /// Exact: corners are compared as they were read.
    bool operator==(const VoyCalCorner&) const = default;
};

/// The way between two named points.
struct VoyCalRoute {
    std::string from_cd;
    std::string end_cd;
    double distance = 0;
    std::int32_t crossing = -1;  ///< index of the first corner at the date line, -1 when there is none
    std::vector<VoyCalCorner> points;
};

/// A route point with those that can take its place; `ranges` tells which for which stretch, "a,b" to
/// "id|id".
struct VoyCalGroup {
    VoyCalPoint head;
    std::vector<VoyCalPoint> alternatives;
    std::map<std::string, std::string> ranges;
};

/// A port with the way that ends there.
struct VoyCalPort {
    VoyCalPoint point;
    double distance = 0;
    std::vector<VoyCalRoute> routes;
    std::vector<VoyCalGroup> groups;
    std::string rp_id_str;
    std::string lock_rp_id_str;
};

using Interface::VoyCalResult;

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/chart/ChartLines.h"

#include <algorithm>
#include <iterator>

#include <tarvik/bus/ChartContract.h>
#include <tarvik/util/Geodesy.h>
#include <tarvik/util/PointText.h>

#include "seaplan/data/Position.h"

/// A line is cut by walking its points once, in order: a point whose text begins with 180 or -180 closes the
/// piece that has something to close. The test is on text, as the points come from the server, so no
/// rounding decides where a line ends. Cost: one pass.
namespace Tarvik::Seaplan {

namespace {

/// The point just before the date line on the same side, its latitude as it stands; empty for a point
/// elsewhere.
std::string AtDateLine(const std::string& point) {
    const auto halves = Util::SplitPoint(point);
    const std::string tail = halves ? "," + std::string(halves->y) : "";
    if (point.starts_with("180")) {
        return "179.99" + tail;
    }
    if (point.starts_with("-180")) {
        return "-179.99" + tail;
    }
    return "";
}

struct Limits {
    double east = 0;
    double north = 0;
    double west = 0;
    double south = 0;
};

Limits Around(const GeoPoint& p) {
    return {p.x + 1.0, p.y + 1.0, p.x - 1.0, p.y - 1.0};
}

void Widen(Limits& limits, const GeoPoint& p) {
    limits.east = std::max(limits.east, p.x);
    limits.west = std::min(limits.west, p.x);
    limits.north = std::max(limits.north, p.y);
    limits.south = std::min(limits.south, p.y);
}

void AddMargins(Limits& limits) {
    limits.east = std::min(limits.east + 2.0, Util::kMostLongitude);
    limits.west = std::max(limits.west - 2.0, -Util::kMostLongitude);
    limits.north = std::min(limits.north + 1.0, Util::kMostLatitude);
    limits.south = std::max(limits.south - 1.0, -Util::kMostLatitude);
}

bool IsAroundTheWorld(const Limits& limits) {
    return (limits.east > 160.0 && limits.west < -160.0) || (limits.north > 80.0 && limits.south < -80.0);
}

}  // namespace

int SplitAtDateLine(const PointTexts& points, std::vector<PointTexts>& pieces) {
    pieces.clear();
    if (points.size() < 2) {
        return -1;
    }
    std::vector<PointTexts> all(1);
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i + 1 < points.size() && points[i] == points[i + 1]) {
            continue;
        }
        const std::string cut = AtDateLine(points[i]);
        all.back().push_back(cut.empty() ? points[i] : cut);
        // A piece that only begins at the date line stays open.
        if (!cut.empty() && all.back().size() > 1) {
            all.emplace_back();
        }
    }
    for (auto& piece : all) {
        if (piece.size() >= 2) {
            pieces.push_back(std::move(piece));
        }
    }
    return 0;
}

PointTexts JoinTracks(const PointTexts& first, const PointTexts& second) {
    PointTexts joined;
    for (const auto* list : {&first, &second}) {
        std::unique_copy(list->begin(), list->end(), std::back_inserter(joined));
    }
    return joined;
}

std::optional<Interface::TrvMapExtent> ExtentOf(const PointTexts& points) {
    std::optional<Limits> limits;
    for (const auto& point : points) {
        GeoPoint position;
        if (!ReadPosition(point, 0, position)) {
            continue;
        }
        if (limits) {
            Widen(*limits, position);
        } else {
            limits = Around(position);
        }
    }
    if (!limits) {
        return std::nullopt;
    }
    AddMargins(*limits);
    if (IsAroundTheWorld(*limits)) {
        limits->east = Interface::Bus::kAroundTheWorldFrom;
        limits->west = Interface::Bus::kAroundTheWorldTo;
    }
    return Interface::TrvMapExtent{limits->east, limits->north, limits->west, limits->south};
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/chart/ViewExtent.h"

#include <algorithm>

#include "seaplan/calculation/Pointset.h"

namespace Tarvik::Seaplan {

namespace {

struct Limits {
    double east = 0;
    double north = 0;
    double west = 0;
    double south = 0;
};

Limits Around(const Position& p) {
    return {p.x + 1.0, p.y + 1.0, p.x - 1.0, p.y - 1.0};
}

void Widen(Limits& limits, const Position& p) {
    limits.east = std::max(limits.east, p.x);
    limits.west = std::min(limits.west, p.x);
    limits.north = std::max(limits.north, p.y);
    limits.south = std::min(limits.south, p.y);
}

void AddMargins(Limits& limits) {
    limits.east = std::min(limits.east + 2.0, 180.0);
    limits.west = std::max(limits.west - 2.0, -180.0);
    limits.north = std::min(limits.north + 1.0, 90.0);
    limits.south = std::max(limits.south - 1.0, -90.0);
}

bool IsAroundTheWorld(const Limits& limits) {
    return (limits.east > 160.0 && limits.west < -160.0) || (limits.north > 80.0 && limits.south < -80.0);
}

}  // namespace

std::optional<Interface::TrvMapExtent> ExtentOf(const PointTexts& points) {
    std::optional<Limits> limits;
    for (const auto& point : points) {
        Position position;
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
        limits->east = 126.0;
        limits->west = -90.0;
    }
    return Interface::TrvMapExtent{limits->east, limits->north, limits->west, limits->south};
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/data/Position.h"

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/PointText.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

bool SplitPointset(const std::string& pointset, PointTexts& points) {
    points.clear();
    if (!Util::StringUtl::split(pointset, "|", points)) {
        return false;
    }
    std::erase_if(points, [](const std::string& point) { return point.empty(); });
    return true;
}

bool ReadPosition(const std::string& text, std::size_t leastComma, GeoPoint& out) {
    const auto halves = Util::SplitPoint(text);
    if (!halves || halves->x.size() < leastComma) {
        return false;
    }
    out = *Util::ReadPoint(text);
    return true;
}

std::string PositionText(const GeoPoint& position, int decimals) {
    return Util::PointText(position, decimals);
}

int PointsetLength(const std::string& pointset, float& km) {
    km = 0;
    PointTexts points;
    if (pointset.empty()) {
        return 0;
    }
    if (!SplitPointset(pointset, points) || points.empty()) {
        return -2;
    }
    GeoPoint previous;
    if (!ReadPosition(points.front(), 0, previous)) {
        return -3;
    }
    for (std::size_t i = 1; i < points.size(); ++i) {
        GeoPoint here;
        if (!ReadPosition(points[i], 0, here)) {
            continue;
        }
        const double step = Util::CircleLineUtl::CalculateDistance(previous.x, previous.y, here.x, here.y);
        km = static_cast<float>(static_cast<double>(km) + step);
        previous = here;
    }
    return 0;
}

}  // namespace Tarvik::Seaplan

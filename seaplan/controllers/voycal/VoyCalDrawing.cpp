// SPDX-License-Identifier: MIT
#include "seaplan/controllers/voycal/VoyCalDrawing.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

constexpr int kLineColour = 0x99FF;
constexpr int kPointColour = 0xFF0000;
constexpr int kAlternativeColour = 0xFFFF00;

/// Adds a route's corners, without the first where the line ends in it already.
void AddRoute(const VoyCalRoute& route, const VoyCalCorner* before, VoyCalLines& lines) {
    const bool isShared = before != nullptr && !route.points.empty() && route.points.front() == *before;
    for (std::size_t i = isShared ? 1 : 0; i < route.points.size(); ++i) {
        const VoyCalCorner& corner = route.points[i];
        Widen(lines.extent, corner.x, corner.y);
        lines.main.push_back(CornerText(corner.x, corner.y));
    }
}

}  // namespace

std::string CornerText(double x, double y) {
    return Util::StringUtl::Format("%0.4f,%0.4f", x, y);
}

void Widen(Interface::TrvMapExtent& extent, double x, double y) {
    extent.first = std::min(extent.first, x);
    extent.second = std::min(extent.second, y);
    extent.third = std::max(extent.third, x);
    extent.fourth = std::max(extent.fourth, y);
}

bool Holds(const Interface::TrvMapExtent& current, const Interface::TrvMapExtent& wanted) {
    return wanted.first >= current.first && wanted.third <= current.third &&
           wanted.second >= current.second && wanted.fourth <= current.fourth;
}

VoyCalLines LinesOf(const std::vector<VoyCalPort>& ports) {
    VoyCalLines lines;
    std::size_t eastStart = 0;
    const VoyCalCorner* before = nullptr;
    for (std::size_t p = 1; p < ports.size(); ++p) {
        for (const VoyCalRoute& route : ports[p].routes) {
            AddRoute(route, before, lines);
            if (!lines.crosses && route.crossing >= 0) {
                lines.crosses = true;
                const std::size_t behind = route.points.size() - static_cast<std::size_t>(route.crossing) - 1;
                eastStart = lines.main.size() - behind;
            }
            before = route.points.empty() ? before : &route.points.back();
        }
    }
    if (lines.crosses) {
        const auto first =
            lines.main.begin() + static_cast<std::ptrdiff_t>(std::min(eastStart, lines.main.size()));
        lines.east.assign(std::make_move_iterator(first), std::make_move_iterator(lines.main.end()));
        lines.main.erase(first, lines.main.end());
    }
    return lines;
}

Interface::TrvMapLineParams VoyCalLine(std::vector<std::string> points) {
    Interface::TrvMapLineParams line;
    line.ref = {kVoyCalLayer, Util::StringUtl::GenGUID(), kVoyCalLineType};
    line.colour = kLineColour;
    line.points = std::move(points);
    return line;
}

Interface::TrvMapPointParams VoyCalLabel(const VoyCalPoint& point, bool isAlternative) {
    Interface::TrvMapPointParams label;
    label.ref = {kVoyCalLayer, point.id, isAlternative ? kVoyCalAlternativeType : kVoyCalPointType};
    label.label = point.name;
    label.position = CornerText(point.x, point.y);
    label.colour = isAlternative ? kAlternativeColour : kPointColour;
    return label;
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/controllers/voycal/VoyCalReply.h"

#include <algorithm>
#include <utility>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/Jsona.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/Pointset.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kDateLine = 180.0;
constexpr double kBesideDateLine = 179.99;

using Texts = std::vector<std::string>;
using Util::Jsona;
using Util::StringUtl;

Texts SplitAt(const std::string& text, const char* separator) {
    Texts pieces;
    StringUtl::split(text, separator, pieces);
    return pieces;
}

/// Moves a corner at the date line to just beside it. Whether it was there.
bool MoveOffDateLine(VoyCalCorner& corner) {
    if (corner.x == kDateLine) {
        corner.x = kBesideDateLine;
        return true;
    }
    if (corner.x == -kDateLine) {
        corner.x = -kBesideDateLine;
        return true;
    }
    return false;
}

/// "range;id|id" of a group.
void ReadRange(const std::string& item, const VoyCalPoints& points, VoyCalGroup& group) {
    const Texts parts = SplitAt(item, ";");
    if (parts.size() < 2) {
        return;
    }
    for (const auto& id : SplitAt(parts[1], "|")) {
        if (const auto found = points.find(id); found != points.end()) {
            group.alternatives.push_back(found->second);
        }
    }
    group.ranges[parts[0]] = parts[1];
}

void ReadRoutes(const Jsona& routes, VoyCalPort& port) {
    for (int i = 0; i < routes.size(); ++i) {
        const Jsona item = routes.get(i);
        VoyCalRoute route;
        route.from_cd = item.getv("from_cd", "");
        route.end_cd = item.getv("end_cd", "");
        ReadVoyCalRoute(item.getv("pointset", ""), route);
        port.distance += route.distance;
        port.routes.push_back(std::move(route));
    }
}

bool ReadGroups(const Jsona& texts, const VoyCalPoints& points, VoyCalPort& port) {
    for (int i = 0; i < texts.size(); ++i) {
        const std::string text = texts.getv(i, "");
        if (text.empty()) {
            continue;
        }
        VoyCalGroup group;
        if (!ReadVoyCalGroup(text, points, group)) {
            return false;
        }
        port.groups.push_back(std::move(group));
    }
    return true;
}

bool ReadPort(const Jsona& item, const VoyCalPoints& points, VoyCalPort& port) {
    if (item.getv("point_cd", "") != port.point.id) {
        return false;
    }
    port.rp_id_str = item.getv("rp_id_str", "");
    port.lock_rp_id_str = item.getv("lock_rp_id_str", "");
    ReadRoutes(item.get("routes"), port);
    return ReadGroups(item.get("rp_groups"), points, port);
}

}  // namespace

bool ReadVoyCalReply(const std::string& reply, const VoyCalPoints& points, std::vector<VoyCalPort>& ports) {
    Jsona root;
    if (!root.parse(reply) || root.has("eid") || root.size() == 0 ||
        root.size() != static_cast<int>(ports.size())) {
        return false;
    }
    std::vector<VoyCalPort> filled;
    for (std::size_t i = 0; i < ports.size(); ++i) {
        VoyCalPort port;
        port.point = ports[i].point;
        if (!ReadPort(root.get(static_cast<int>(i)), points, port)) {
            return false;
        }
        filled.push_back(std::move(port));
    }
    ports = std::move(filled);
    return true;
}

void ReadVoyCalRoute(const std::string& pointset, VoyCalRoute& route) {
    for (const auto& text : SplitAt(pointset, "|")) {
        Position position;
        if (!ReadPosition(text, 0, position)) {
            continue;
        }
        VoyCalCorner corner{position.x, position.y};
        const bool marked = MoveOffDateLine(corner);
        if (!route.points.empty()) {
            const VoyCalCorner& before = route.points.back();
            if (before == corner) {
                continue;
            }
            route.distance += Util::CircleLineUtl::CalculateDistance(before.x, before.y, corner.x, corner.y);
        }
        if (marked && route.crossing < 0) {
            route.crossing = static_cast<std::int32_t>(route.points.size());
        }
        route.points.push_back(corner);
    }
}

bool ReadVoyCalGroup(const std::string& text, const VoyCalPoints& points, VoyCalGroup& group) {
    const Texts parts = SplitAt(text, "=");
    const auto head = parts.empty() ? points.end() : points.find(parts[0]);
    if (head == points.end()) {
        return false;
    }
    group.head = head->second;
    if (parts.size() > 1) {
        for (const auto& item : SplitAt(parts[1], ".")) {
            ReadRange(item, points, group);
        }
    }
    return true;
}

bool MeetsDateLine(const std::vector<VoyCalPort>& ports) {
    return std::any_of(ports.begin(), ports.end(), [](const VoyCalPort& port) {
        return std::any_of(port.routes.begin(), port.routes.end(),
                           [](const VoyCalRoute& route) { return route.crossing >= 0; });
    });
}

}  // namespace Tarvik::Seaplan

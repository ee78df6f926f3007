// SPDX-License-Identifier: MIT
#include "seaplan/calculation/RouteMessages.h"

namespace Tarvik::Seaplan {

namespace {

struct RequestParts {
    std::string newId;
    std::string oldId;
    int leg = -1;
    std::string group;
    std::string points;
};

std::string RequestText(const RequestParts& parts) {
    return R"({"rp_id":")" + parts.newId + R"(","orig_rp_id":")" + parts.oldId + R"(","leg":)" +
           std::to_string(parts.leg) + R"(,"rp_group":")" + parts.group + R"(","pointList":")" +
           parts.points + "\"}";
}

/// First group of the route point, with its stop; null when there is none.
const RoutePointGroup* FindGroup(const RouteStops& stops, const std::string& id, const RouteStop*& owner) {
    for (const auto& stop : stops) {
        for (const auto& group : stop.rp_groups) {
            if (group.rp_id == id) {
                owner = &stop;
                return &group;
            }
        }
    }
    return nullptr;
}

/// What stands behind the id of the stop whose route point changes: its chain, the choice, and the older
/// choices.
std::string ChoiceText(const RouteStop& stop, const std::string& newId, const std::string& range) {
    std::string text = "|" + stop.routes.front().from_cd;
    for (const auto& segment : stop.routes) {
        text += "," + segment.end_cd;
    }
    text += "|" + newId + "=" + range;
    for (const auto& lock : stop.locks) {
        if (lock.key != newId) {
            text += "." + lock.item;
        }
    }
    return text;
}

std::string AlternativesText(const RoutePointGroup& group, const std::string& oldId) {
    std::string text = group.range + ";";
    for (const auto& alternative : group.alternatives) {
        text += alternative + "|";
    }
    return text + oldId;
}

}  // namespace

std::string RouteRequestText(const std::vector<std::string>& pointIds) {
    RequestParts parts;
    for (const auto& id : pointIds) {
        parts.points += (&id == &pointIds.front() ? "" : "#") + id;
    }
    return RequestText(parts);
}

bool AlternativeRequestText(const RouteStops& stops, const std::string& oldId, const std::string& newId,
                            std::string& text) {
    const RouteStop* owner = nullptr;
    const RoutePointGroup* group = oldId.empty() ? nullptr : FindGroup(stops, oldId, owner);
    if (group == nullptr || owner->routes.empty()) {
        return false;
    }
    RequestParts parts{newId, oldId, group->leg, AlternativesText(*group, oldId), ""};
    for (const auto& stop : stops) {
        parts.points += (&stop == &stops.front() ? "" : "#") + stop.point_cd;
        if (&stop == owner) {
            parts.points += ChoiceText(stop, newId, group->range);
        }
    }
    text = RequestText(parts);
    return true;
}

std::string NearestRequestText(const std::string& position, const std::string& portId) {
    return R"({"nr_point":[)" + position + R"(],"dest_port":)" + portId + "}";
}

}  // namespace Tarvik::Seaplan

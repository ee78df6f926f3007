// SPDX-License-Identifier: MIT
#include "seaplan/controllers/voycal/VoyCalReply.h"

#include <algorithm>
#include <utility>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/Jsona.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/data/Position.h"

namespace Tarvik::Seaplan {

namespace {

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
    if (corner.x == Util::kMostLongitude) {
        corner.x = kBesideDateLine;
        return true;
    }
    if (corner.x == -Util::kMostLongitude) {
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

// clang-format off
constexpr const char* kSampleReply =
    R"([{point_cd:"40358",distance:0,routes:[],rp_groups:[],rp_id_str:"",lock_rp_id_str:""},)"
    R"({point_cd:"41117",distance:20353.5,routes:[)"
    R"({route:"1",from_cd:"40358",end_cd:"131",pointset:"117.75,38.9833|122.75,37.40761|122.7867,37.395",distance:474},)"
    R"({route:"2",from_cd:"131",end_cd:"179",pointset:"122.7867,37.395|122.8,34.5|122.6,31|121.3,26.5|119.7,24.5",distance:1502},)"
    R"({route:"3",from_cd:"179",end_cd:"164",pointset:"119.7,24.5|117.4,22|113.2,14|109.6,8.5|105.2,2.6|104.7,1.4|103.8,1.17",distance:3149},)"
    R"({route:"4",from_cd:"164",end_cd:"163",pointset:"103.8,1.17|103.35,1.2|102.2,1.95|100.95,2.85",distance:374},)"
    R"({route:"5",from_cd:"163",end_cd:"160",pointset:"100.95,2.85|98.6,4.7|95.2,6.1|80.6,5.75",distance:2355},)"
    R"({route:"6",from_cd:"160",end_cd:"151",pointset:"80.6,5.75|73,7.5|57.5,11.6|51.8,12.4|45.2,12.1|43.35,12.55",distance:4172},)"
    R"({route:"7",from_cd:"151",end_cd:"101",pointset:"43.35,12.55|42.3,14.6|37.6,22|34.1,27.4|32.56,29.8|32.34,30.45",distance:2294},)"
    R"({route:"8",from_cd:"101",end_cd:"140",pointset:"32.34,30.45|32.38,31.45|29.8,32.4|22.5,34.6|14.5,36.4",distance:1847},)"
    R"({route:"9",from_cd:"140",end_cd:"118",pointset:"14.5,36.4|11.3,37.2|9.9,37.6|2.2,37.2|-2.2,36.4|-5.6,35.95",distance:1822},)"
    R"({route:"10",from_cd:"118",end_cd:"122",pointset:"-5.6,35.95|-8.9,36.7|-9.7,38.7|-9.9,43.1",distance:1030},)"
    R"({route:"11",from_cd:"122",end_cd:"121",pointset:"-9.9,43.1|-5.9,48.75",distance:700},)"
    R"({route:"12",from_cd:"121",end_cd:"119",pointset:"-5.9,48.75|-2.4,49.9|1.4,50.98",distance:579},)"
    R"({route:"13",from_cd:"119",end_cd:"41117",pointset:"1.4,50.98|2.9,51.75|4.05,51.98",distance:218}],)"
    R"(rp_groups:["179=131,164;180","163=164,160;165|166.160,151;165","101=151,140;107",)"
    R"("140=101,118;139|138","119=121,41117;125|126|120.121,233;120"],)"
    R"(rp_id_str:"131,179,164,163,160,151,101,140,118,122,121,119",lock_rp_id_str:""},)"
    R"({point_cd:"40430",distance:550,routes:[)"
    R"({route:"14",from_cd:"41117",end_cd:"231",pointset:"4.05,51.98|4.1,52.6",distance:69},)"
    R"({route:"15",from_cd:"231",end_cd:"232",pointset:"4.1,52.6|4.5,53.4|6.4,53.85",distance:228},)"
    R"({route:"16",from_cd:"232",end_cd:"233",pointset:"6.4,53.85|8.1,54.02|8.7,53.9",distance:154},)"
    R"({route:"17",from_cd:"233",end_cd:"40430",pointset:"8.7,53.9|9.2,53.87|9.7,53.56|9.97,53.54",distance:99}],)"
    R"(rp_groups:[],rp_id_str:"231,232,233",lock_rp_id_str:""}])";
// clang-format on

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
        GeoPoint position;
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

const char* SampleReply() {
    return kSampleReply;
}

}  // namespace Tarvik::Seaplan

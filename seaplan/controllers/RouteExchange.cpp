// SPDX-License-Identifier: MIT
#include "seaplan/controllers/RouteExchange.h"

#include <algorithm>
#include <utility>

#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/Jsona.h>

#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/data/Position.h"
#include "seaplan/protocol/Exchange.h"

namespace Tarvik::Seaplan {

namespace {

using Interface::VoyCommand;

bool IsPosition(const std::string& point) {
    GeoPoint ignored;
    return ReadPosition(point, 1, ignored);
}

}  // namespace

Outcome<RouteStep> AskRoute(const std::string& text, RouteStops& stops) {
    Util::Jsona reply;
    if (SendText(text, VoyCommand::SearchRoute, reply) < 0) {
        return RouteStep::Send;
    }
    RouteStops parsed;
    if (ParseRouteReply(reply, parsed) < 0) {
        return RouteStep::Parse;
    }
    stops = std::move(parsed);
    return {};
}

Outcome<NearestStep> AskNearestRoute(const std::string& position, const std::string& portId,
                                     std::vector<std::string>& points) {
    points.clear();
    if (position.empty() || portId.empty()) {
        return NearestStep::Input;
    }
    Util::Jsona reply;
    if (SendText(NearestRequestText(position, portId), VoyCommand::NearestRoute, reply) < 0) {
        return NearestStep::Send;
    }
    if (reply.size() < 1) {
        return NearestStep::Empty;
    }
    if (reply.getv("eid", 0) != 0) {
        return NearestStep::Refused;
    }
    std::vector<std::string> way;
    SplitPointset(reply.getv("pointset", ""), way);
    if (!std::all_of(way.begin(), way.end(), IsPosition)) {
        return NearestStep::Position;
    }
    points = std::move(way);
    return {};
}

}  // namespace Tarvik::Seaplan

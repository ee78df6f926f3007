// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/server/graph/RouteTypes.h"

/// Request and reply texts of the two route commands.
namespace Tarvik::Server::RouteMessages {

/// The most stops that one request may name.
inline constexpr std::size_t kMaxStops = 200;

struct NearestRequest {
    GeoPoint position;
    std::string destPort;
};

/// The stops of a route request's `pointList`: stops are parted by "#"; a stop is its id, or its id, the ids
/// passed on the way to it parted by ",", and the choices for that way ("new=from,end" parted by "."), these
/// three parted by "|". What else the request holds repeats the choice and is not needed. Nothing and a
/// reason when the text does not parse.
std::optional<std::vector<RouteRequestPoint>> ReadPlan(std::string_view text, std::string& error);

/// {"nr_point":[x,y],"dest_port":id}; the id may stand as a number or as a text.
std::optional<NearestRequest> ReadNearest(std::string_view text, std::string& error);

std::string WritePlan(const RouteResult& result);
std::string WriteNearest(const NearestResult& result);
/// {"eid":N,"emsg":"reason"}
std::string WriteError(int code, std::string_view reason);

}  // namespace Tarvik::Server::RouteMessages

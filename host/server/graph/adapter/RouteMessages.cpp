// SPDX-License-Identifier: MIT
#include "host/server/graph/adapter/RouteMessages.h"

#include <cmath>
#include <limits>

#include <fmt/format.h>

#include <tarvik/util/Jsona.h>
#include <tarvik/util/PointText.h>

#include "host/server/api/JsonWriter.h"

namespace Tarvik::Server::RouteMessages {

namespace {

using Util::Jsona;

/// Some metre; what the network holds is no finer.
constexpr int kPointDecimals = 5;

/// Pieces between separators, empty ones too; an empty text has none.
std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    while (!text.empty()) {
        const std::size_t at = text.find(separator);
        pieces.emplace_back(text.substr(0, at));
        if (at == std::string_view::npos) {
            break;
        }
        text.remove_prefix(at + 1);
        if (text.empty()) {
            pieces.emplace_back();
        }
    }
    return pieces;
}

bool ReadObject(std::string_view text, Jsona& root, std::string& error) {
    if (!root.parse(text)) {
        error =
            fmt::format("the request does not parse: {} at byte {}", root.ErrorText(), root.ErrorOffset());
        return false;
    }
    if (root.kind() != Jsona::Kind::Object) {
        error = "the request is not an object";
        return false;
    }
    return true;
}

bool ReadStop(const std::string& text, RouteRequestPoint& stop, std::string& error) {
    const std::vector<std::string> parts = Split(text, '|');
    if (parts.empty() || parts[0].empty() || parts.size() > 3) {
        error = fmt::format("\"{}\" in pointList is no stop", text);
        return false;
    }
    stop.id = parts[0];
    if (parts.size() > 1) {
        stop.chain = Split(parts[1], ',');
    }
    if (parts.size() < 3) {
        return true;
    }
    for (const std::string& choice : Split(parts[2], '.')) {
        const std::size_t equals = choice.find('=');
        if (equals == std::string::npos) {
            error = fmt::format("\"{}\" in pointList is no choice of a passage", choice);
            return false;
        }
        stop.locks.push_back({choice.substr(0, equals), choice.substr(equals + 1)});
    }
    return true;
}

double NumberOf(const Jsona& value) {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    if (value.kind() == Jsona::Kind::Integer) {
        return value.integer(std::numeric_limits<int>::max());  // too large for a position in any case
    }
    return value.kind() == Jsona::Kind::Real ? value.real(kNone) : kNone;
}

std::string Join(const std::vector<std::string>& texts, char separator) {
    std::string joined;
    for (const std::string& text : texts) {
        if (!joined.empty()) {
            joined += separator;
        }
        joined += text;
    }
    return joined;
}

std::string Pointset(const std::vector<GeoPoint>& points) {
    std::vector<std::string> texts;
    texts.reserve(points.size());
    for (const GeoPoint p : points) {
        texts.push_back(Util::ShortPointText(p, kPointDecimals));
    }
    return Join(texts, '|');
}

/// "118=40389,40208;105|116"
std::string GroupText(const RouteAlternativeGroup& group) {
    return fmt::format("{}={},{};{}", group.rpId, group.rangeFrom, group.rangeEnd,
                       Join(group.alternatives, '|'));
}

void WriteStop(JsonWriter& out, const PlannedStop& stop) {
    out.BeginObject().TextMember("point_cd", stop.pointId);
    out.Key("distance").Fraction(stop.distanceKm).Key("routes").BeginArray();
    int number = 0;
    for (const RouteLeg& leg : stop.legs) {
        out.BeginObject().NumberMember("route", ++number);
        out.TextMember("from_cd", leg.fromId).TextMember("end_cd", leg.endId);
        out.TextMember("pointset", Pointset(leg.points)).Key("distance").Fraction(leg.distanceKm).EndObject();
    }
    out.EndArray().Key("rp_groups").BeginArray();
    for (const RouteAlternativeGroup& group : stop.groups) {
        out.Text(GroupText(group));
    }
    out.EndArray().TextMember("rp_id_str", Join(stop.passedIds, ','));
    out.TextMember("lock_rp_id_str", stop.locks).EndObject();
}

}  // namespace

std::optional<std::vector<RouteRequestPoint>> ReadPlan(std::string_view text, std::string& error) {
    Jsona root;
    if (!ReadObject(text, root, error)) {
        return std::nullopt;
    }
    const Jsona list = root.get("pointList");
    if (list.kind() != Jsona::Kind::Text) {
        error = "the request has no text pointList";
        return std::nullopt;
    }
    const std::vector<std::string> texts = Split(list.text(), '#');
    if (texts.size() > kMaxStops) {
        error = fmt::format("the request names more than {} stops", kMaxStops);
        return std::nullopt;
    }
    std::vector<RouteRequestPoint> stops(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!ReadStop(texts[i], stops[i], error)) {
            return std::nullopt;
        }
    }
    return stops;
}

std::optional<NearestRequest> ReadNearest(std::string_view text, std::string& error) {
    Jsona root;
    if (!ReadObject(text, root, error)) {
        return std::nullopt;
    }
    const Jsona place = root.get("nr_point");
    NearestRequest request;
    request.position = {NumberOf(place.get(0)), NumberOf(place.get(1))};
    const bool isPair = place.kind() == Jsona::Kind::Array && place.size() == 2;
    if (!isPair || std::isnan(request.position.x) || std::isnan(request.position.y)) {
        error = "nr_point is not a pair of numbers";
        return std::nullopt;
    }
    const Jsona port = root.get("dest_port");
    request.destPort = port.kind() == Jsona::Kind::Integer ? std::to_string(port.integer(-1)) : port.text();
    if (!request.destPort.empty()) {
        return request;
    }
    error = "the request has no dest_port";
    return std::nullopt;
}

std::string WritePlan(const RouteResult& result) {
    if (result.error != kRouteOk) {
        return WriteError(result.error, result.message);
    }
    JsonWriter out;
    out.BeginArray();
    for (const PlannedStop& stop : result.stops) {
        WriteStop(out, stop);
    }
    out.EndArray();
    return out.Take();
}

std::string WriteNearest(const NearestResult& result) {
    if (result.error != kRouteOk) {
        return WriteError(result.error, result.message);
    }
    JsonWriter out;
    out.BeginObject().Key("eid").Integer(0).TextMember("pointset", Pointset(result.points)).EndObject();
    return out.Take();
}

std::string WriteError(int code, std::string_view reason) {
    JsonWriter out;
    out.BeginObject().Key("eid").Integer(code).TextMember("emsg", reason).EndObject();
    return out.Take();
}

}  // namespace Tarvik::Server::RouteMessages

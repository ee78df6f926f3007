// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <map>
#include <optional>

#include <tarvik/util/StringUtl.h>
#include <tarvik/util/Units.h>

#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/Position.h"

/// Reads the reply of the route engine into stops. Of a route point's variants the one holds whose range
/// spans the fewest places of the chain of points that its stop passes. Cost: one pass over the reply; a
/// choice costs the length of the chain for each variant.
namespace Tarvik::Seaplan {

namespace {

using Util::Jsona;
using Util::StringUtl;

enum class ReplyStep { Refused, NoStops, Pointset, Group, Variant, Choice };
using ReplyOutcome = Outcome<ReplyStep>;
/// Numbers of ParseRouteReply.
constexpr CodeTable kRouteReplyCodes{Code{ReplyStep::Refused, -1},  Code{ReplyStep::NoStops, -2},
                                     Code{ReplyStep::Pointset, -3}, Code{ReplyStep::Group, -4},
                                     Code{ReplyStep::Variant, -5},  Code{ReplyStep::Choice, -6}};

/// Ids of the points that a stop's legs pass, in order.
std::vector<std::string> ChainOf(const RouteStop& stop) {
    std::vector<std::string> chain{stop.routes.front().from_cd};
    for (const auto& segment : stop.routes) {
        chain.push_back(segment.end_cd);
    }
    return chain;
}

/// Walks the chain for the two ends of a range. `place` is a single end seen before, -1 for none; it goes on
/// from one variant to the next, so that a variant with one end on the chain lends its place to the following
/// one.
std::optional<int> SpanOf(const std::vector<std::string>& chain, const std::string& a, const std::string& b,
                          int& place) {
    for (int i = 0; i < static_cast<int>(chain.size()); ++i) {
        const auto& id = chain[static_cast<std::size_t>(i)];
        if (id != a && id != b) {
            continue;
        }
        if (place >= 0) {
            const int span = std::abs(i - place);
            place = -1;
            return span;
        }
        place = i;
    }
    return std::nullopt;
}

/// The variant whose range spans the fewest places; of equal spans the later. False
/// when there is nothing to choose from, a range has no comma, or none spans the chain.
bool ChooseVariant(const RouteStop& stop, const std::vector<RoutePointGroup>& variants,
                   RoutePointGroup& chosen) {
    if (stop.routes.size() < 2 || variants.size() < 2) {
        return false;
    }
    const auto chain = ChainOf(stop);
    std::map<int, const RoutePointGroup*> bySpan;
    int place = -1;
    for (const auto& variant : variants) {
        const auto comma = variant.range.find(',');
        if (comma == std::string::npos) {
            return false;
        }
        if (const auto span =
                SpanOf(chain, variant.range.substr(0, comma), variant.range.substr(comma + 1), place)) {
            bySpan[*span] = &variant;
        }
    }
    if (bySpan.empty()) {
        return false;
    }
    chosen = *bySpan.begin()->second;
    return true;
}

/// Reads the variants of a text with "."; those behind the first lack the point's id and get it.
ReplyOutcome ParseVariants(const RouteStop& stop, const std::string& text, RoutePointGroup& chosen) {
    std::vector<std::string> pieces;
    if (!StringUtl::split(text, ".", pieces)) {
        return ReplyStep::Variant;
    }
    std::vector<RoutePointGroup> variants;
    for (const auto& piece : pieces) {
        RoutePointGroup variant;
        const std::string prefix = variants.empty() ? "" : variants.front().rp_id + "=";
        if (ParseRoutePointGroup(prefix + piece, variant) != 0) {
            return ReplyStep::Variant;
        }
        variants.push_back(std::move(variant));
    }
    return ChooseVariant(stop, variants, chosen) ? ReplyOutcome() : ReplyStep::Choice;
}

ReplyOutcome ParseGroups(const Jsona& texts, int leg, RouteStop& stop) {
    for (int i = 0; i < texts.size(); ++i) {
        const std::string text = texts.getv(i, "");
        if (text.empty()) {
            continue;
        }
        RoutePointGroup group;
        const bool single = text.find('.') == std::string::npos;
        if (single && ParseRoutePointGroup(text, group) != 0) {
            return ReplyStep::Group;
        }
        if (const auto chosen = single ? ReplyOutcome() : ParseVariants(stop, text, group); chosen.Failed()) {
            return chosen;
        }
        group.leg = leg;
        stop.rp_groups.push_back(std::move(group));
    }
    return {};
}

ReplyOutcome ParseSegments(const Jsona& segments, RouteStop& stop) {
    for (int i = 0; i < segments.size(); ++i) {
        const Jsona item = segments.get(i);
        stop.routes.push_back({item.getv("route", ""), item.getv("from_cd", ""), item.getv("end_cd", ""),
                               item.getv("pointset", ""), 0});
    }
    return MeasureSegments(stop) ? ReplyOutcome() : ReplyStep::Pointset;
}

void ParseLocks(const std::string& text, RouteStop& stop) {
    std::vector<std::string> items;
    if (!StringUtl::split(text, ".", items)) {
        return;
    }
    for (const auto& item : items) {
        const auto equals = item.find('=');
        if (equals != std::string::npos) {
            stop.locks.push_back({item.substr(0, equals), item});
        }
    }
}

ReplyOutcome ParseStop(const Jsona& item, int index, RouteStop& stop) {
    stop.point_cd = item.getv("point_cd", "");
    stop.rp_id_str = item.getv("rp_id_str", "");
    ReplyOutcome read = ParseSegments(item.get("routes"), stop);
    if (!read.Failed()) {
        read = ParseGroups(item.get("rp_groups"), index, stop);
    }
    ParseLocks(item.getv("lock_rp_id_str", ""), stop);
    return read;
}

ReplyOutcome ParseStops(const Jsona& reply, RouteStops& out) {
    out.clear();
    if (reply.getv("eid", -1) != -1) {
        return ReplyStep::Refused;
    }
    const bool isObject = reply.kind() == Jsona::Kind::Object;
    RouteStops stops;
    for (int i = 0; i < reply.size(); ++i) {
        if (isObject && reply.key(i) == "eid") {
            continue;
        }
        RouteStop stop;
        if (const auto read = ParseStop(reply.get(i), static_cast<int>(stops.size()), stop); read.Failed()) {
            return read;
        }
        stops.push_back(std::move(stop));
    }
    if (stops.empty()) {
        return ReplyStep::NoStops;
    }
    out = std::move(stops);
    return {};
}

}  // namespace

int ParseRouteReply(const Jsona& reply, RouteStops& out) {
    return kRouteReplyCodes.Of(ParseStops(reply, out));
}

int ParseRoutePointGroup(const std::string& text, RoutePointGroup& out) {
    const auto equals = text.find('=');
    if (equals == std::string::npos) {
        return -2;
    }
    const auto semicolon = text.find(';', equals + 1);
    if (semicolon == std::string::npos) {
        return -3;
    }
    RoutePointGroup group;
    group.rp_id = text.substr(0, equals);
    group.range = text.substr(equals + 1, semicolon - equals - 1);
    if (!StringUtl::split(text.substr(semicolon + 1), "|", group.alternatives)) {
        return -3;
    }
    out = std::move(group);
    return 0;
}

bool MeasureSegments(RouteStop& stop) {
    stop.distance = 0;
    for (RouteSegment& segment : stop.routes) {
        float km = 0;
        if (PointsetLength(segment.pointset, km) != 0) {
            return false;
        }
        segment.distance = static_cast<LengthNm>(Util::NmFromKm(static_cast<double>(km)));
        stop.distance += segment.distance;
    }
    return true;
}

}  // namespace Tarvik::Seaplan

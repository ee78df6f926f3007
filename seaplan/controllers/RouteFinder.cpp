// SPDX-License-Identifier: MIT
#include "seaplan/controllers/RouteFinder.h"

#include <utility>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/controllers/RouteExchange.h"

namespace Tarvik::Seaplan {

namespace {

VoyPortCall ResultRow(const VoyPortCall& row, const RouteStop& stop) {
    VoyPortCall result;
    result.ppi = stop.point_cd;
    result.ppn = row.ppn;
    result.pp = row.pp;
    result.psp = row.psp;
    result.pw = row.pw;
    result.apt = row.apt;
    result.distance = stop.distance;
    return result;
}

PortCallRows ResultRows(const PortCallRows& rows, const RouteStops& stops) {
    PortCallRows results;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        results.push_back(ResultRow(rows[i], stops[i]));
    }
    return results;
}

}  // namespace

Outcome<FindStep> RouteFinder::Stops(const PortCallRows& rows, bool wholeList, RouteStops& stops) {
    if (!wholeList) {
        const auto found = legs_.StopsOf(rows, stops);
        return found.Failed() ? Outcome<FindStep>(FindStep::Legs, kStopsByCacheCodes.Of(found))
                              : Outcome<FindStep>();
    }
    if (rows.size() < 2) {
        return FindStep::TooFewRows;
    }
    return WholeList(rows, stops);
}

Outcome<FindStep> RouteFinder::WholeList(const PortCallRows& rows, RouteStops& stops) {
    std::vector<std::string> ids;
    for (const VoyPortCall& row : rows) {
        ids.push_back(row.ppi);
    }
    const auto asked = AskRoute(RouteRequestText(ids), stops);
    if (!asked.Failed()) {
        legs_.Keep(rows, stops);
        return {};
    }
    return asked.At() == RouteStep::Send ? FindStep::Send : FindStep::Parse;
}

Outcome<FindStep> RouteFinder::Find(const PortCallRows& rows, PortCallRows& results, bool wholeList) {
    results.clear();
    RouteStops stops;
    if (const auto failed = Stops(rows, wholeList, stops); failed.Failed()) {
        return failed;
    }
    if (stops.size() != rows.size()) {
        return FindStep::Count;
    }
    results = ResultRows(rows, stops);
    pending_.Take(std::move(stops));
    return {};
}

bool RouteFinder::FindKnown(const PortCallRows& rows, PortCallRows& results) {
    results.clear();
    RouteStops stops;
    const auto oldest = legs_.Known(rows, stops);
    if (!oldest) {
        return false;
    }
    results = ResultRows(rows, stops);
    pending_.Take(std::move(stops), oldest);
    return true;
}

Outcome<BookStep> RouteFinder::BookOfRoute(BookPoints& rows) {
    rows.clear();
    // Fewer than two stops need no point, so the table is not asked for.
    const bool needsPoints = pending_.Stops().size() > 1;
    const PointMap* routePoints = needsPoints ? ports_.RoutePoints() : nullptr;
    if (needsPoints && routePoints == nullptr) {
        return BookStep::Points;
    }
    const int made = BookFromStops(pending_.Stops(), needsPoints ? *routePoints : PointMap(), rows);
    return made < 0 ? Outcome<BookStep>(BookStep::Rows, made) : Outcome<BookStep>();
}

Outcome<PlaceStep> RouteFinder::PortPositions(const PortCallRows& rows, std::vector<RoutePointRow>& out) {
    out.clear();
    const PointMap* positions = ports_.PortPositions();
    if (positions == nullptr) {
        return PlaceStep::Points;
    }
    for (const VoyPortCall& row : rows) {
        const std::string id = PortIdOf(row.ppn);
        const auto found = positions->find(id);
        if (found == positions->end()) {
            return PlaceStep::Unknown;
        }
        out.push_back({id, row.ppn, found->second.position});
    }
    return {};
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/tests/DeskRoutes.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/StringUtl.h>

#include "host/server/graph/adapter/RouteMessages.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Seaplan {

namespace {

namespace Messages = Server::RouteMessages;
using Server::PlannedStop;
using Server::RouteRequestPoint;

constexpr double kKmPerMile = 1.852;
/// A degree of the equator on the ellipsoid that distances are measured on.
constexpr double kKmPerDegree = 111.31949079327358;
constexpr const char* kUsualPoint = "118";
constexpr const char* kOtherPoint = "105";

const DeskPort* PortOf(const std::string& id) {
    const std::vector<DeskPort>& ports = DeskPorts();
    const auto found =
        std::find_if(ports.begin(), ports.end(), [&](const DeskPort& p) { return id == p.id; });
    return found == ports.end() ? nullptr : &*found;
}

/// Km from one place of the equator over a turning point to another.
double KmOver(double from, const Server::GeoPoint& turn, double to) {
    return Util::CircleLineUtl::CalculateDistance(from, 0, turn.x, turn.y) +
           Util::CircleLineUtl::CalculateDistance(turn.x, turn.y, to, 0);
}

/// Where a way turns that is hardly longer than this. The server keeps three decimals of a position, so the
/// best of some turning points with three decimals is taken.
Server::GeoPoint SearchTurn(double from, double to, double miles) {
    constexpr double kStep = 0.001;
    constexpr int kTries = 60;
    constexpr int kMostSteps = 4096;
    const double km = miles * kKmPerMile;
    const double furthest = std::ceil((from + to - km / kKmPerDegree) / 2 / kStep);
    Server::GeoPoint best;
    double least = km;
    for (int i = 0; i < kTries; ++i) {
        const double x = (furthest + i) * kStep;
        int low = 0;
        int high = kMostSteps;
        while (low < high) {
            const int middle = (low + high) / 2;
            const bool enough = KmOver(from, {x, middle * kStep}, to) >= km;
            (enough ? high : low) = enough ? middle : middle + 1;
        }
        const double excess = KmOver(from, {x, low * kStep}, to) - km;
        if (excess >= 0 && excess < least) {
            least = excess;
            best = {x, low * kStep};
        }
    }
    return best;
}

/// The same, searched for once in a process: it takes thousands of geodesics.
Server::GeoPoint TurnOf(double from, double to, double miles) {
    static std::map<std::tuple<double, double, double>, Server::GeoPoint> known;
    const auto [entry, added] = known.try_emplace({from, to, miles});
    if (added) {
        entry->second = SearchTurn(from, to, miles);
    }
    return entry->second;
}

Server::RouteLeg LegOf(const std::string& fromId, const std::string& toId,
                       std::vector<Server::GeoPoint> points, double km) {
    return {fromId, toId, std::move(points), km};
}

/// The point chosen for a stretch, empty without a choice: the newest comes first and replaces those behind
/// it.
std::string ChosenPoint(const RouteRequestPoint& stop, const std::string& range) {
    const auto choice = std::find_if(stop.locks.begin(), stop.locks.end(),
                                     [&](const Server::RouteChoice& c) { return c.range == range; });
    return choice == stop.locks.end() ? std::string() : choice->newId;
}

std::string TextOf(double degrees) {
    return Util::StringUtl::Format("%.6f", degrees);
}

}  // namespace

const std::vector<DeskPort>& DeskPorts() {
    static const std::vector<DeskPort> ports = {
        {"40001", "ROTTERDAM", 0.0, "0"},     {"40002", "ROUEN", 0.4, "0"},
        {"40003", "HAMBURG", 0.8, "0"},       {"40004", "GDANSK", 1.2, "0"},
        {"40005", "EUROPOORT", 0.0, "40001"}, {"40006", "ROSTOCK", 1.6, "0"},
        {"40007", "SUEZ CANAL", 2.0, "0"},    {"40008", "COLOMBO", 2.4, "0"},
        {"40009", "SINGAPORE", 2.8, "0"},     {"40010", "SHANGHAI", 3.2, "0"}};
    return ports;
}

std::string DeskPortId(const std::string& name) {
    for (const DeskPort& port : DeskPorts()) {
        if (name == port.name) {
            return port.id;
        }
    }
    return {};
}

std::vector<TestSupport::PointTableRow> DeskPoints() {
    std::vector<TestSupport::PointTableRow> rows;
    for (const DeskPort& port : DeskPorts()) {
        rows.push_back({port.id, port.name, TextOf(port.x), "0.0", true, port.origid});
    }
    rows.push_back({kOtherPoint, "South Cape", "-1.0", "0.0", false});
    rows.push_back({kUsualPoint, "Mid Cape", "-0.5", "0.0", false});
    return rows;
}

void DeskRoutes::SetLeg(const std::string& from, const std::string& to, double miles) {
    miles_[{DeskPortId(from), DeskPortId(to)}] = miles;
    miles_[{DeskPortId(to), DeskPortId(from)}] = miles;
}

void DeskRoutes::SetPassage(const std::string& from, const std::string& to, double milesBy105) {
    passages_[{DeskPortId(from), DeskPortId(to)}] = milesBy105;
}

double DeskRoutes::MilesOf(const Ends& ends) const {
    const auto found = miles_.find(ends);
    return found == miles_.end() ? kUsualMiles : found->second;
}

PlannedStop DeskRoutes::Way(const std::string& from, const RouteRequestPoint& stop) const {
    const double begin = PortOf(from)->x;
    const double end = PortOf(stop.id)->x;
    const Ends ends{from, stop.id};
    const std::string range = from + "," + stop.id;
    PlannedStop way;
    way.pointId = stop.id;
    const auto passage = passages_.find(ends);
    const std::string chosen = ChosenPoint(stop, range);
    const bool other = passage != passages_.end() && chosen == kOtherPoint;
    const double miles = other ? passage->second : MilesOf(ends);
    const Server::GeoPoint turn = TurnOf(begin, end, miles);
    way.distanceKm = miles * kKmPerMile;
    if (passage == passages_.end()) {
        way.legs = {LegOf(from, stop.id, {{begin, 0}, turn, {end, 0}}, way.distanceKm)};
        way.passedIds = {from, stop.id};
        return way;
    }
    const std::string point = other ? kOtherPoint : kUsualPoint;
    way.legs = {LegOf(from, point, {{begin, 0}, turn}, way.distanceKm / 2),
                LegOf(point, stop.id, {turn, {end, 0}}, way.distanceKm / 2)};
    way.groups = {{point, from, stop.id, {other ? kUsualPoint : kOtherPoint}}};
    way.passedIds = {from, point, stop.id};
    way.locks = chosen == point ? point + "=" + range : std::string();
    return way;
}

bool DeskRoutes::KnowsPort(const std::string& id) {
    return PortOf(id) != nullptr;
}

std::string DeskRoutes::Plan(std::string_view requestJson) {
    std::string error;
    const auto request = Messages::ReadPlan(requestJson, error);
    if (!request) {
        return Messages::WriteError(Server::kRouteBadRequest, error);
    }
    if (closed_) {
        return Messages::WriteError(Server::kRouteNoWay, "no way joins these points");
    }
    if (request->size() < 2) {
        return Messages::WriteError(Server::kRouteTooFewPoints, "a route needs two points");
    }
    Server::RouteResult result;
    for (const RouteRequestPoint& stop : *request) {
        if (PortOf(stop.id) == nullptr) {
            return Messages::WriteError(Server::kRouteUnknownPoint, "\"" + stop.id + "\" is no point");
        }
        if (result.stops.empty()) {
            result.stops.push_back({stop.id, 0, {}, {}, {}, {}});
        } else {
            result.stops.push_back(Way(result.stops.back().pointId, stop));
        }
    }
    return Messages::WritePlan(result);
}

std::string DeskRoutes::Nearest(std::string_view requestJson) {
    std::string error;
    const auto request = Messages::ReadNearest(requestJson, error);
    if (!request) {
        return Messages::WriteError(Server::kRouteBadRequest, error);
    }
    const DeskPort* port = PortOf(request->destPort);
    if (port == nullptr || closed_) {
        return Messages::WriteError(Server::kRouteNoWay, "no way joins these points");
    }
    return Messages::WriteNearest({Server::kRouteOk, {}, {request->position, {port->x, 0}}, 0});
}

}  // namespace Tarvik::Seaplan

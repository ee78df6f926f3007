// SPDX-License-Identifier: MIT
#include "seaplan/calculation/book/BookPanel.h"

#include <utility>

#include <tarvik/util/StringUtl.h>
#include <tarvik/util/Units.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/Position.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kEastOfLine = 179.0;
constexpr double kWestOfLine = -179.0;
constexpr int kPortDecimals = 4;
constexpr int kWaypointDecimals = 3;

enum class ToPanelStep { PortCalls, Groups, NoRows, Port, Row };
using ToPanelOutcome = Outcome<ToPanelStep>;
/// Numbers of BookToPanel.
constexpr CodeTable kBookToPanelCodes{Code{ToPanelStep::PortCalls, -1}, Code{ToPanelStep::Groups, -2},
                                      Code{ToPanelStep::NoRows, -3}, Code{ToPanelStep::Port, -4},
                                      Code{ToPanelStep::Row, -5}};

double KmPerHour(float knots) {
    return Util::KmhFromKnots(static_cast<double>(knots));
}

float Knots(double kmPerHour) {
    return static_cast<float>(Util::KnotsFromKmh(kmPerHour));
}

/// Speeds of the AIS track in order; nothing is left behind the last.
class AisSpeeds {
  public:
    explicit AisSpeeds(const std::vector<float>& speeds) : speeds_(speeds) {}
    double Next() { return next_ < speeds_.size() ? KmPerHour(speeds_[next_++]) : 0; }

  private:
    const std::vector<float>& speeds_;
    std::size_t next_ = 0;
};

/// Position, speed and way of sailing of a stored row; false without a comma in the position.
bool TakeRow(const PosBookPoint& from, PosBookPlace& to) {
    GeoPoint position;
    if (!ReadPosition(from.position, 0, position)) {
        return false;
    }
    to.x = position.x;
    to.y = position.y;
    to.speed = KmPerHour(from.psp);
    to.interval = from.pli;
    to.track = from.psr;
    return true;
}

void TakeCall(const VoyPortCall& call, PosBookPortRow& port) {
    port.id = PortIdOf(call.ppn);
    port.name = call.ppn;
    port.purpose = call.pp;
    port.weather = static_cast<double>(call.pw);
    port.portTime = static_cast<double>(call.apt);
    port.eta = UtcOfPlanTime(call.eta);
    port.etd = UtcOfPlanTime(call.etd);
}

/// A port with its rows, the last of which is the port itself.
ToPanelOutcome TakePort(const VoyPortCall& call, const BookPoints& group, AisSpeeds& aisSpeeds,
                        PosBookPortRow& port) {
    if (group.empty()) {
        return ToPanelStep::NoRows;
    }
    TakeCall(call, port);
    if (!TakeRow(group.back(), port)) {
        return ToPanelStep::Port;
    }
    for (std::size_t i = 0; i + 1 < group.size(); ++i) {
        PosBookRow row;
        if (!TakeRow(group[i], row)) {
            return ToPanelStep::Row;
        }
        row.kind = group[i].pst;
        row.id = group[i].pointId;
        row.name = group[i].psn;
        row.aisSpeed = row.kind == AisTrackPoint ? aisSpeeds.Next() : 0;
        port.rows.push_back(std::move(row));
    }
    return {};
}

PosBookPoint StoredPoint(const PosBookPlace& place, int kind, int decimals) {
    PosBookPoint point;
    point.pointId = place.id;
    point.psn = place.name;
    point.position = PositionText({place.x, place.y}, decimals);
    point.psr = place.track;
    point.pli = place.interval;
    point.psp = Knots(place.speed);
    point.course = static_cast<float>(place.course);
    point.pst = kind;
    return point;
}

VoyPortCall StoredCall(const PosBookPortRow& port) {
    VoyPortCall call;
    call.ppi = port.id;
    call.ppn = port.name;
    call.pp = port.purpose;
    call.psp = Knots(port.speed);
    call.pw = static_cast<float>(port.weather);
    call.apt = static_cast<float>(port.portTime);
    call.eta = PlanTimeOfUtc(port.eta);
    call.etd = PlanTimeOfUtc(port.etd);
    return call;
}

}  // namespace

int BookToPanel(const VoyInfo& voyage, PosBookData& out, const std::vector<float>& aisSpeeds) {
    if (voyage.portCalls.size() < 2) {
        return kBookToPanelCodes.Of(ToPanelStep::PortCalls);
    }
    std::map<int, BookPoints> groups;
    if (GroupBookByPort(voyage.positionBook.points, groups) != 0 ||
        groups.size() != voyage.portCalls.size()) {
        return kBookToPanelCodes.Of(ToPanelStep::Groups);
    }
    PosBookData book;
    AisSpeeds speeds(aisSpeeds);
    for (std::size_t i = 0; i < voyage.portCalls.size(); ++i) {
        PosBookPortRow port;
        const auto taken = TakePort(voyage.portCalls[i], groups[static_cast<int>(i)], speeds, port);
        if (taken.Failed()) {
            return kBookToPanelCodes.Of(taken);
        }
        book.ports.push_back(std::move(port));
    }
    book.crossesDateLine = CrossesDateLine(book);
    out = std::move(book);
    return 0;
}

int PanelToBook(const PosBookData& in, VoyInfo& out) {
    if (in.ports.size() < 2) {
        return -1;
    }
    PortCallRows calls;
    BookPoints points;
    for (const auto& port : in.ports) {
        for (const auto& row : port.rows) {
            points.push_back(StoredPoint(row, row.kind, kWaypointDecimals));
        }
        points.push_back(StoredPoint(port, PortPoint, kPortDecimals));
        calls.push_back(StoredCall(port));
    }
    out.portCalls = std::move(calls);
    out.positionBook.points = std::move(points);
    return 0;
}

bool CrossesDateLine(const PosBookData& book) {
    bool east = false;
    bool west = false;
    const auto look = [&](const PosBookPlace& place) {
        east = east || place.x > kEastOfLine;
        west = west || place.x < kWestOfLine;
    };
    for (const auto& port : book.ports) {
        look(port);
        for (const auto& row : port.rows) {
            look(row);
        }
    }
    return east && west;
}

}  // namespace Tarvik::Seaplan

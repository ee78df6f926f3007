// SPDX-License-Identifier: MIT
#include <cstdint>
#include <optional>
#include <utility>

#include <tarvik/interface/BusContract.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/calculation/NumberForms.h"
#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/ais/AisCorrection.h"
#include "seaplan/calculation/ais/AisReplan.h"
#include "seaplan/calculation/ais/AisRows.h"
#include "seaplan/controllers/VoyController.h"

/// Correcting a voyage's plan from the last real position of its vessel.
namespace Tarvik::Seaplan {

namespace {

using Positions = std::vector<std::string>;

/// Time of the last position in the plan's reading: the user's zone, whole seconds. Nothing without a zone.
std::optional<Util::_datetime_t> FixTimeOf(const VoyInfo& voyage) {
    const std::string* zone = Interface::Call(Interface::Bus::CurrentTimeZone, nullptr);
    if (zone == nullptr) {
        return std::nullopt;
    }
    const auto utc = Util::_datetime_t::from_gmt_timer(static_cast<std::uint32_t>(voyage.lastPosTime));
    return Util::DateTimeUtl::Parse(Util::DateTimeUtl::ConvertFromUTC(utc, *zone).fmt(kTimeFormat));
}

}  // namespace

int VoyController::ApplyAisPosition(const std::string& vi, int& applied) {
    applied = 0;
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    if (voyage->vsi.empty()) {
        return -3;
    }
    if (voyage->lastPosText.empty() || voyage->lastPosTime == 0) {
        return -4;
    }
    return CorrectAt(*voyage, applied);
}

int VoyController::CorrectAt(VoyInfo& voyage, int& applied) {
    const auto fix = FixTimeOf(voyage);
    if (!fix) {
        return -5;
    }
    Positions nextPorts;
    if (NextPortsAfter(*fix, voyage.portCalls, nextPorts) < 0) {
        return -6;
    }
    if (nextPorts.empty()) {
        return 0;
    }
    Positions way;
    if (module_->RequestNearestRoute(voyage.lastPosText, nextPorts.front(), way) < 0) {
        return -7;
    }
    Positions rest;  // nothing reads it, but a book without it is not corrected
    if (RestOfBookPositions(voyage.portCalls, voyage.positionBook.points, nextPorts.size(), rest) < 0) {
        return -8;
    }
    int inserted = 0;
    if (InsertAisPosition(*fix, voyage.portCalls, way, voyage.positionBook, inserted) < 0) {
        return -9;
    }
    applied = inserted;
    voyage.modais = 1;
    return 0;
}

int VoyController::SplitAisRows(const std::string& vi, PortCallRows& before, PortCallRows& after) const {
    if (vi.empty()) {
        return -1;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    return voyage == nullptr ? -2
                             : SplitCorrectedVoyage(voyage->positionBook, voyage->portCalls, before, after);
}

/// Book rows of the route between the planned ports; with one port there is none. -7 route, -8 book.
int VoyController::RouteAhead(const PortCallRows& plan, BookPoints& rows) {
    if (plan.size() > 1) {
        PortCallRows ignored;  // the plan keeps what the person entered
        if (CalculatePortCalls(plan, ignored) < 0) {
            return -7;
        }
        if (module_->BookFromCurrentStops(rows) < 0) {
            return -8;
        }
    }
    module_->Pending().Drop();
    return 0;
}

/// The new book and the new ports of `voyage`, which stays as it is.
int VoyController::Replan(const VoyInfo& voyage, const PortCallRows& history, PortCallRows plan,
                          VoyPositionBook& book, PortCallRows& ports) {
    if (ResolvePortIds(plan) < 0) {
        return -2;
    }
    std::string ship;
    if (const int failed = ShipPositionOf(history, ship); failed < 0) {
        return failed;
    }
    Positions way;
    if (module_->RequestNearestRoute(ship, plan.front().ppi, way) < 0) {
        return -6;
    }
    BookPoints ahead;
    if (const int failed = RouteAhead(plan, ahead); failed < 0) {
        return failed;
    }
    book = voyage.positionBook;
    if (const int failed = ReplanBook(voyage.positionBook.points, ship, way, plan, ahead, book.points);
        failed < 0) {
        return failed;
    }
    ports = JoinHistoryAndPlan(history, plan);
    return LegTotalsFromBook(book, ports) < 0 ? -9 : 0;
}

int VoyController::ReplanFromAis(const std::string& vi, const PortCallRows& history, const PortCallRows& plan,
                                 PortCallRows& rows) {
    rows.clear();
    VoyInfo* voyage = vi.empty() ? nullptr : store_->FindVoyage(vi);
    if (voyage == nullptr || history.empty() || plan.empty()) {
        return -1;
    }
    RouteStops pending = module_->Pending().Stops();
    VoyPositionBook book;
    PortCallRows ports;
    if (const int failed = Replan(*voyage, history, plan, book, ports); failed < 0) {
        module_->Pending().Take(std::move(pending));
        return failed;
    }
    voyage->positionBook = std::move(book);
    voyage->portCalls = ports;
    rows = std::move(ports);
    return 0;
}

}  // namespace Tarvik::Seaplan

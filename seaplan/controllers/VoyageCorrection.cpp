// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyageCorrection.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/ais/AisCorrection.h"
#include "seaplan/calculation/ais/AisRows.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/RouteExchange.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/Position.h"
#include "seaplan/data/TimeText.h"
#include "seaplan/data/VoyInfo.h"
#include "seaplan/data/VoyageStore.h"

/// The plan is the measure: a position is put into it on request and never projected onto the route. The leg
/// on which the ship was at that time is cut; the server gives the way from there to the next port, and with
/// a new plan also the route between the ports ahead. All is worked out on copies and taken over at the end.
namespace Tarvik::Seaplan {

namespace {

using Positions = std::vector<std::string>;

/// Time of the last position in the plan's reading: the user's zone, whole seconds. Nothing without a zone.
std::optional<Util::_datetime_t> FixTimeOf(const VoyInfo& voyage) {
    const std::string* zone = Interface::Call(Interface::Bus::CurrentTimeZone);
    if (zone == nullptr) {
        return std::nullopt;
    }
    const auto utc = Util::_datetime_t::from_gmt_timer(static_cast<std::uint32_t>(voyage.lastPosTime));
    return Util::DateTimeUtl::Parse(Util::DateTimeUtl::ConvertFromUTC(utc, *zone).fmt(kTimeFormat));
}

}  // namespace

Outcome<ApplyStep> VoyageCorrection::Apply(const std::string& vi, int& applied) {
    applied = 0;
    if (vi.empty()) {
        return ApplyStep::Id;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ApplyStep::Voyage;
    }
    if (voyage->vsi.empty()) {
        return ApplyStep::Vessel;
    }
    if (voyage->lastPosText.empty() || voyage->lastPosTime == 0) {
        return ApplyStep::Position;
    }
    return CorrectAt(*voyage, applied);
}

Outcome<ApplyStep> VoyageCorrection::CorrectAt(VoyInfo& voyage, int& applied) {
    const auto fix = FixTimeOf(voyage);
    if (!fix) {
        return ApplyStep::Zone;
    }
    Positions nextPorts;
    if (NextPortsAfter(*fix, voyage.portCalls, nextPorts) < 0) {
        return ApplyStep::PortsAhead;
    }
    if (nextPorts.empty()) {
        return {};
    }
    Positions way;
    if (module_->RequestNearestRoute(voyage.lastPosText, nextPorts.front(), way) < 0) {
        return ApplyStep::Way;
    }
    Positions rest;  // nothing reads it, but a book without it is not corrected
    if (RestOfBookPositions(voyage.portCalls, voyage.positionBook.points, nextPorts.size(), rest) < 0) {
        return ApplyStep::RestOfBook;
    }
    int inserted = 0;
    if (InsertAisPosition(*fix, voyage.portCalls, way, voyage.positionBook, inserted) < 0) {
        return ApplyStep::Insertion;
    }
    applied = inserted;
    voyage.modais = 1;
    return {};
}

Outcome<SplitStep> VoyageCorrection::Split(const std::string& vi, PortCallRows& before,
                                           PortCallRows& after) const {
    if (vi.empty()) {
        return SplitStep::Id;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return SplitStep::Voyage;
    }
    const int code = SplitCorrectedVoyage(voyage->positionBook, voyage->portCalls, before, after);
    return code < 0 ? Outcome<SplitStep>(SplitStep::Rows, code) : Outcome<SplitStep>();
}

/// Book rows of the route between the planned ports; with one port there is none.
Outcome<ReplanStep> VoyageCorrection::RouteAhead(const PortCallRows& plan, BookPoints& rows) {
    if (plan.size() > 1) {
        PortCallRows ignored;  // the plan keeps what the person entered
        if (calculator_.Calculate(plan, ignored).Failed()) {
            return ReplanStep::Route;
        }
        if (module_->BookFromCurrentStops(rows) < 0) {
            return ReplanStep::Book;
        }
    }
    module_->Pending().Drop();
    return {};
}

/// The new book and the new ports of `voyage`, which stays as it is.
Outcome<ReplanStep> VoyageCorrection::PlanAnew(const VoyInfo& voyage, const PortCallRows& history,
                                               PortCallRows plan, Plan& out) {
    ResolvePortIds(plan);
    std::string ship;
    if (const int code = ShipPositionOf(history, ship); code < 0) {
        return {ReplanStep::Ship, code};
    }
    Positions way;
    if (const int code = module_->RequestNearestRoute(ship, plan.front().ppi, way); code < 0) {
        return {ReplanStep::Way, code};
    }
    BookPoints ahead;
    if (const auto failed = RouteAhead(plan, ahead); failed.Failed()) {
        return failed;
    }
    out.book = voyage.positionBook;
    const int code =
        ReplanBook(voyage.positionBook.points, ship, {way, plan, std::move(ahead)}, out.book.points);
    if (code < 0) {
        return {ReplanStep::Rebuild, code};
    }
    const PortCallRows joined = JoinHistoryAndPlan(history, plan);
    out.ports = joined;
    if (LegTotalsFromBook(out.book, out.ports) < 0) {
        return ReplanStep::Totals;
    }
    KeepPortIds(joined, out.ports);
    return {};
}

ScheduleFault VoyageCorrection::FaultOf(const Outcome<ReplanStep>& failed, PortCallRows plan) const {
    using Cause = ScheduleFault::Cause;
    ResolvePortIds(plan);
    if (const auto unknown = FirstUnknownPort(plan)) {
        return {Cause::UnknownPort, *unknown, plan[*unknown].ppn};
    }
    switch (failed.At()) {
        case ReplanStep::Way:
            return {failed.Detail() == kNearestRouteCodes.Of(NearestStep::Send) ? Cause::Connection
                                                                                : Cause::NoRoute};
        case ReplanStep::Route:
            return calculator_.Fault();
        default:
            return {Cause::Figures};
    }
}

Outcome<ReplanStep> VoyageCorrection::Replan(const std::string& vi, const PortCallRows& history,
                                             const PortCallRows& plan, PortCallRows& rows) {
    rows.clear();
    VoyInfo* voyage = vi.empty() ? nullptr : store_->FindVoyage(vi);
    if (voyage == nullptr || history.empty() || plan.empty()) {
        return ReplanStep::Input;
    }
    // The route of another voyage is only put aside for the calculation here.
    const bool others = module_->Pending().IsThere() && !module_->Pending().IsFor(vi);
    PendingRoute::Rollback before(module_->Pending());
    Plan anew;
    if (const auto failed = PlanAnew(*voyage, history, plan, anew); failed.Failed()) {
        return failed;
    }
    if (!others) {
        before.Keep();
    }
    voyage->positionBook = std::move(anew.book);
    voyage->portCalls = anew.ports;
    rows = std::move(anew.ports);
    return {};
}

}  // namespace Tarvik::Seaplan

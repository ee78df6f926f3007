// SPDX-License-Identifier: MIT
#include "seaplan/controllers/ScheduleCalculation.h"

#include <cstddef>
#include <utility>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/RouteFinder.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyInfo.h"
#include "seaplan/data/VoyageStore.h"

/// The order of steps is the same in all three calculations: the server's route gives each row its stop and
/// distance, the rows are timed, the route is turned into a position book, and what the book makes of speeds
/// and distances goes back into the rows. The calculation of a saved voyage puts the legs of its old book in
/// the place of those between the same ports first. One request, and linear in rows and book points.
namespace Tarvik::Seaplan {

namespace {

/// Gives scheduled rows the distances and times of their book.
Outcome<CalculationStep> ScheduleBook(PortCallRows& scheduled, BookPoints points) {
    const PortCallRows before = scheduled;
    VoyPositionBook book;
    book.points = std::move(points);
    book.eta = scheduled.front().eta;
    RescaleBookSpeeds(scheduled, book.points);
    if (LegTotalsFromBook(book, scheduled) < 0) {
        return CalculationStep::Distances;
    }
    KeepPortIds(before, scheduled);
    return {};
}

/// The cause of a route that was not found: an unknown port comes first, as no server could route it.
ScheduleFault FaultOf(FindStep step, const PortCallRows& rows) {
    if (const auto unknown = FirstUnknownPort(rows)) {
        return {ScheduleFault::Cause::UnknownPort, *unknown, rows[*unknown].ppn};
    }
    return {step == FindStep::Send ? ScheduleFault::Cause::Connection : ScheduleFault::Cause::NoRoute};
}

}  // namespace

Outcome<CalculationStep> ScheduleCalculator::FindRoute(const PortCallRows& rows, PortCallRows& scheduled,
                                                       BookPoints& book) {
    PortCallRows routed;
    RouteFinder& routes = module_->Routes();
    if (const auto found = routes.Find(rows, routed, true); found.Failed()) {
        fault_ = FaultOf(found.At(), rows);
        // A voyage over known legs can be planned without the server.
        if (found.At() != FindStep::Send || !routes.FindKnown(rows, routed)) {
            return CalculationStep::Route;
        }
    }
    fault_ = {ScheduleFault::Cause::Figures};
    if (BuildSchedule(rows.front().eta, routed, scheduled) < 0) {
        return CalculationStep::Times;
    }
    return module_->BookFromCurrentStops(book) < 0 ? CalculationStep::Book : Outcome<CalculationStep>();
}

Outcome<CalculationStep> ScheduleCalculator::RunNew(const PortCallRows& rows, PortCallRows& out) {
    BookPoints points;
    if (const auto failed = FindRoute(rows, out, points); failed.Failed()) {
        return failed;
    }
    if (const auto failed = ScheduleBook(out, std::move(points)); failed.Failed()) {
        return failed;
    }
    return module_->DrawCurrentRoute() < 0 ? CalculationStep::Drawing : Outcome<CalculationStep>();
}

Outcome<CalculationStep> ScheduleCalculator::Calculate(const PortCallRows& rows, PortCallRows& out) {
    // The table stays as it was after a failure, and with it the route that belongs to it.
    PendingRoute::Rollback before(module_->Pending());
    PortCallRows scheduled;
    const auto result = RunNew(rows, scheduled);
    out.clear();
    if (!result.Failed()) {
        before.Keep();
        out = std::move(scheduled);
        fault_ = {};
    }
    return result;
}

Outcome<CalculationStep> ScheduleCalculator::RunOverRoute(const PortCallRows& rows, PortCallRows& scheduled) {
    const RouteStops& stops = module_->Pending().Stops();
    if (rows.empty() || !RouteFits(stops, rows)) {
        fault_ = {ScheduleFault::Cause::NotCalculated};
        return CalculationStep::Input;
    }
    PortCallRows routed = rows;
    for (std::size_t i = 0; i < routed.size(); ++i) {
        routed[i].distance = stops[i].distance;
    }
    fault_ = {ScheduleFault::Cause::Figures};
    if (BuildSchedule(rows.front().eta, routed, scheduled) < 0) {
        return CalculationStep::Times;
    }
    BookPoints points;
    if (module_->BookFromCurrentStops(points) < 0) {
        return CalculationStep::Book;
    }
    return ScheduleBook(scheduled, std::move(points));
}

Outcome<CalculationStep> ScheduleCalculator::FollowRoute(const PortCallRows& rows, PortCallRows& out) {
    PortCallRows scheduled;
    const auto result = RunOverRoute(rows, scheduled);
    out.clear();
    if (!result.Failed()) {
        out = std::move(scheduled);
        fault_ = {};
    }
    return result;
}

Outcome<ForVoyageStep> ScheduleCalculator::CalculateFor(const std::string& vi, const PortCallRows& rows,
                                                        PortCallRows& out, int& hadPortCalls) {
    fault_ = {ScheduleFault::Cause::Figures};
    if (vi.empty()) {
        return ForVoyageStep::Id;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ForVoyageStep::Voyage;
    }
    const bool saved = !voyage->portCalls.empty();
    const auto calculated = saved ? CalculateKeepingLegs(vi, rows, out) : Calculate(rows, out);
    if (calculated.Failed()) {
        return ForVoyageStep::Calculation;
    }
    module_->Pending().Assign(vi);
    hadPortCalls = saved ? 1 : 0;
    return {};
}

/// The new rows go into the voyage with the legs of its book that it keeps.
Outcome<CalculationStep> ScheduleCalculator::RunKept(VoyInfo& voyage, const PortCallRows& rows,
                                                     PortCallRows& scheduled) {
    BookPoints fresh;
    if (const auto failed = FindRoute(rows, scheduled, fresh); failed.Failed()) {
        return failed;
    }
    BookPoints joined;
    if (JoinKeepingLegs(voyage.portCalls, voyage.positionBook.points, scheduled, fresh, joined) < 0) {
        return CalculationStep::Legs;
    }
    voyage.portCalls = scheduled;
    voyage.positionBook.points = std::move(joined);
    voyage.positionBook.eta = scheduled.front().eta;
    RescaleBookSpeeds(scheduled, voyage.positionBook.points);
    return {};
}

Outcome<CalculationStep> ScheduleCalculator::CalculateKeepingLegs(const std::string& vi,
                                                                  const PortCallRows& rows,
                                                                  PortCallRows& out) {
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr || rows.size() < 2 || voyage->portCalls.size() < 2) {
        out.clear();
        fault_ = {ScheduleFault::Cause::Figures};
        return CalculationStep::Input;
    }
    PendingRoute::Rollback before(module_->Pending());
    PortCallRows scheduled;
    const auto result = RunKept(*voyage, rows, scheduled);
    out.clear();
    if (!result.Failed()) {
        before.Keep();
        module_->Pending().Assign(vi);
        out = std::move(scheduled);
        fault_ = {};
    }
    return result;
}

}  // namespace Tarvik::Seaplan

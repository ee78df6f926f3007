// SPDX-License-Identifier: MIT
#include <utility>

#include <tarvik/interface/ValueDictionary.h>

#include "seaplan/calculation/NumberForms.h"
#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/VoyController.h"

/// Calculating and saving a schedule.
namespace Tarvik::Seaplan {

int VoyController::ResolvePortIds(PortCallRows& rows) const {
    for (VoyPortCall& row : rows) {
        row.ppi = Interface::GetNameByValue("/points", row.ppn, 1033);
    }
    return 0;
}

/// The route of `rows` as scheduled rows and as a book. -1 route, -2 schedule, -3 book.
int VoyController::RouteSchedule(const PortCallRows& rows, PortCallRows& scheduled, BookPoints& book) {
    PortCallRows routed;
    if (rows.empty() || module_->GetRoute(rows, routed, true) < 0) {
        return -1;
    }
    if (BuildSchedule(rows.front().eta, routed, scheduled) < 0) {
        return -2;
    }
    return module_->BookFromCurrentStops(book) < 0 ? -3 : 0;
}

/// Gives scheduled rows the distances and times of their book. 0 or -1.
int VoyController::ScheduleBook(PortCallRows& scheduled, BookPoints points) {
    VoyPositionBook book;
    book.points = std::move(points);
    book.eta = scheduled.front().eta;
    RescaleBookSpeeds(scheduled, book.points);
    return LegTotalsFromBook(book, scheduled) < 0 ? -1 : 0;
}

int VoyController::CalculateNew(const PortCallRows& rows, PortCallRows& out) {
    BookPoints points;
    if (const int failed = RouteSchedule(rows, out, points); failed < 0) {
        return failed;
    }
    if (ScheduleBook(out, std::move(points)) < 0) {
        return -4;
    }
    return module_->DrawCurrentRoute() < 0 ? -5 : 0;
}

int VoyController::ScheduleCurrentRoute(const PortCallRows& rows, PortCallRows& out) {
    out.clear();
    const RouteStops& stops = module_->Pending().Stops();
    if (rows.empty() || stops.size() != rows.size()) {
        return -1;
    }
    PortCallRows routed = rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (stops[i].point_cd != rows[i].ppi) {
            return -1;
        }
        routed[i].distance = stops[i].distance;
    }
    PortCallRows scheduled;
    if (BuildSchedule(rows.front().eta, routed, scheduled) < 0) {
        return -2;
    }
    BookPoints points;
    if (module_->BookFromCurrentStops(points) < 0) {
        return -3;
    }
    if (ScheduleBook(scheduled, std::move(points)) < 0) {
        return -4;
    }
    out = std::move(scheduled);
    return 0;
}

int VoyController::CalculatePortCalls(const PortCallRows& rows, PortCallRows& out) {
    // The table stays as it was after a failure, and with it the route that belongs to it.
    RouteStops pending = module_->Pending().Stops();
    PortCallRows scheduled;
    const int result = CalculateNew(rows, scheduled);
    out.clear();
    if (result < 0) {
        module_->Pending().Take(std::move(pending));
        return result;
    }
    out = std::move(scheduled);
    return 0;
}

int VoyController::CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                                      int& hadPortCalls) {
    if (vi.empty()) {
        return -1;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    const bool saved = !voyage->portCalls.empty();
    if ((saved ? CalculateKeepingLegs(vi, rows, out) : CalculatePortCalls(rows, out)) < 0) {
        return -3;
    }
    hadPortCalls = saved ? 1 : 0;
    return 0;
}

/// The new rows go into the voyage with the legs of its book that it keeps.
int VoyController::CalculateKept(VoyInfo& voyage, const PortCallRows& rows, PortCallRows& scheduled) {
    BookPoints fresh;
    if (const int failed = RouteSchedule(rows, scheduled, fresh); failed < 0) {
        return failed - 1;
    }
    BookPoints joined;
    if (JoinKeepingLegs(voyage.portCalls, voyage.positionBook.points, scheduled, fresh, joined) < 0) {
        return -5;
    }
    voyage.portCalls = scheduled;
    voyage.positionBook.points = std::move(joined);
    voyage.positionBook.eta = scheduled.front().eta;
    RescaleBookSpeeds(scheduled, voyage.positionBook.points);
    return 0;
}

int VoyController::CalculateKeepingLegs(const std::string& vi, const PortCallRows& rows, PortCallRows& out) {
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr || rows.size() < 2 || voyage->portCalls.size() < 2) {
        out.clear();
        return -1;
    }
    RouteStops pending = module_->Pending().Stops();
    PortCallRows scheduled;
    const int result = CalculateKept(*voyage, rows, scheduled);
    out.clear();
    if (result < 0) {
        module_->Pending().Take(std::move(pending));
        return result;
    }
    out = std::move(scheduled);
    return 0;
}

/// The book's date follows the first row; a voyage without book gets one. -1 the server.
int VoyController::SaveBookDate(VoyInfo& voyage) {
    const Util::_datetime_t start = voyage.portCalls.front().eta;
    const std::string date = start.fmt(kTimeFormat);
    VoyPositionBook& book = voyage.positionBook;
    if (!book.pbi.empty()) {
        if (module_->SetPositionBookDate(book.pbi, date) < 0) {
            return -1;
        }
    } else {
        std::string id;
        if (module_->EnsurePositionBook(voyage.vi, date, id) < 0) {
            return -1;
        }
        book.pbi = id;
    }
    book.eta = start;
    return 0;
}

/// Rows of the pending route, or of the book itself. -1 the route makes no book, -2 nothing to save, -3 the
/// server.
int VoyController::SaveBook(VoyInfo& voyage) {
    BookPoints points = voyage.positionBook.points;
    if (HasPendingRoute() && module_->BookFromCurrentStops(points) < 0) {
        return -1;
    }
    if (points.empty()) {
        return -2;
    }
    RescaleBookSpeeds(voyage.portCalls, points);
    if (module_->SavePositionBookRows(voyage.positionBook.pbi, points) < 0) {
        return -3;
    }
    voyage.positionBook.points = std::move(points);
    module_->Pending().Drop();
    return 0;
}

int VoyController::SaveSchedule(const std::string& vi, const PortCallRows& rows, int drawMode) {
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr || rows.size() < 2) {
        return -1;
    }
    PortCallRows saved = rows;
    if (module_->SavePortCalls(vi, saved) < 0) {
        return -2;
    }
    voyage->portCalls = std::move(saved);
    if (SaveBookDate(*voyage) < 0) {
        return -3;
    }
    if (const int failed = SaveBook(*voyage); failed < 0) {
        return failed - 3;
    }
    PortCallRows recomputed;
    if (RecomputeSchedule(voyage->portCalls, recomputed) < 0) {
        return -7;
    }
    voyage->portCalls = std::move(recomputed);
    if (drawMode == 0 || drawMode == 1) {
        if (RemoveVoyageObjects(vi) < 0) {
            return -8;
        }
        if (const int failed = Draw(vi, drawMode, -9, -10); failed < 0) {
            return failed;
        }
    }
    routeIsCurrent_ = 1;
    return 0;
}

}  // namespace Tarvik::Seaplan

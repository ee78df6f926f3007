// SPDX-License-Identifier: MIT
#include "seaplan/controllers/ScheduleSaving.h"

#include <algorithm>
#include <utility>

#include <tarvik/interface/PlanTerms.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/SaveAnswers.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/TimeText.h"

/// A save is worked out whole before its first request, since the server takes its three parts apart from one
/// another: port calls, the book's date, the book's rows. Cost: a few passes over rows and book.
namespace Tarvik::Seaplan {

bool IsScheduleSaved(int code) {
    return code == 0 || code == kSaveScheduleCodes.Of(SaveStep::Remove) ||
           code == kSaveScheduleCodes.Of(SaveStep::Progress) ||
           code == kSaveScheduleCodes.Of(SaveStep::BookLine);
}

ScheduleFault FaultOf(const Outcome<SaveStep>& failed, const PortCallRows& rows) {
    using Cause = ScheduleFault::Cause;
    switch (failed.At()) {
        case SaveStep::UnknownPort:
            if (const auto unknown = FirstUnknownPort(rows)) {
                return {Cause::UnknownPort, *unknown, rows[*unknown].ppn};
            }
            return {Cause::UnknownPort};
        case SaveStep::NoRows:
        case SaveStep::OtherPorts:
            return {Cause::NotCalculated};
        case SaveStep::PortCalls:
        case SaveStep::Date:
        case SaveStep::BookRows:
            return {SaveAnswers::CauseOf(failed.Detail())};
        default:
            return {Cause::Figures};
    }
}

/// The book's date follows the first row; a voyage without book gets one.
Outcome<SaveStep> ScheduleSaver::SaveDate(VoyInfo& voyage) {
    const Util::_datetime_t start = voyage.portCalls.front().eta;
    const std::string date = start.fmt(kTimeFormat);
    VoyPositionBook& book = voyage.positionBook;
    if (!book.pbi.empty()) {
        if (const int code = module_->SetPositionBookDate(book.pbi, date); code < 0) {
            return {SaveStep::Date, SaveAnswers::OfBookDate(code)};
        }
    } else {
        std::string id;
        if (const int code = module_->EnsurePositionBook(voyage.vi, date, id); code < 0) {
            return {SaveStep::Date, SaveAnswers::OfNewBook(code)};
        }
        book.pbi = id;
    }
    book.eta = start;
    return {};
}

bool ScheduleSaver::HasRouteFor(const std::string& vi, PortCallRows rows) {
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr || rows.empty()) {
        return false;
    }
    ResolvePortIds(rows);
    return module_->Pending().IsFor(vi) ? RouteFits(module_->Pending().Stops(), rows)
                                        : BookFits(voyage->positionBook.points, rows);
}

/// A schedule that makes no sense as a whole would be stored and never be opened again.
Outcome<SaveStep> ScheduleSaver::Prepare(const VoyInfo& voyage, Parts& parts) {
    ResolvePortIds(parts.rows);
    if (FirstUnknownPort(parts.rows)) {
        return SaveStep::UnknownPort;
    }
    const auto stops = [](const VoyPortCall& row) {
        return static_cast<double>(row.pw) >= Interface::kLeastFullWeather;
    };
    if (std::any_of(parts.rows.begin(), parts.rows.end(), stops)) {
        return SaveStep::Times;
    }
    FillMissingPurposes(parts.rows);
    parts.calculated = module_->Pending().IsFor(voyage.vi);
    parts.points = voyage.positionBook.points;
    if (!parts.calculated && parts.points.empty()) {
        return SaveStep::NoRows;
    }
    if (!HasRouteFor(voyage.vi, parts.rows)) {
        return SaveStep::OtherPorts;
    }
    if (parts.calculated && module_->BookFromCurrentStops(parts.points) < 0) {
        return SaveStep::Book;
    }
    RescaleBookSpeeds(parts.rows, parts.points);
    PortCallRows opened = parts.rows;
    VoyPositionBook book;
    book.eta = parts.rows.front().eta;
    book.points = parts.points;
    if (LegTotalsFromBook(book, opened) < 0 || RecomputeSchedule(parts.rows, parts.timed) < 0) {
        return SaveStep::Times;
    }
    KeepPortIds(parts.rows, parts.timed);
    return {};
}

Outcome<SaveStep> ScheduleSaver::Send(VoyInfo& voyage, Parts& parts) {
    if (const int code = module_->SavePortCalls(voyage.vi, parts.rows); code < 0) {
        return {SaveStep::PortCalls, SaveAnswers::OfPortCalls(code)};
    }
    voyage.portCalls = std::move(parts.rows);
    if (const auto failed = SaveDate(voyage); failed.Failed()) {
        return failed;
    }
    const int code = module_->SavePositionBookRows(voyage.positionBook.pbi, parts.points);
    if (code < 0) {
        return {SaveStep::BookRows, SaveAnswers::OfBookRows(code)};
    }
    voyage.positionBook.points = std::move(parts.points);
    voyage.portCalls = std::move(parts.timed);
    if (parts.calculated) {
        module_->Pending().Drop();
    }
    return {};
}

Outcome<SaveStep> ScheduleSaver::Redraw(const VoyInfo& voyage, DrawMode mode) {
    if (mode == DrawMode::Nothing) {
        return {};
    }
    if (chart_.Remove(voyage.vi) < 0) {
        return SaveStep::Remove;
    }
    const auto drawn = chart_.Draw(voyage, mode);
    if (drawn.Failed()) {
        return drawn.At() == DrawStep::Progress ? SaveStep::Progress : SaveStep::BookLine;
    }
    return {};
}

Outcome<SaveStep> ScheduleSaver::Save(const std::string& vi, const PortCallRows& rows, DrawMode mode) {
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr || rows.size() < 2) {
        return SaveStep::Input;
    }
    Parts parts;
    parts.rows = rows;
    if (const auto failed = Prepare(*voyage, parts); failed.Failed()) {
        return failed;
    }
    if (const auto failed = Send(*voyage, parts); failed.Failed()) {
        return failed;
    }
    module_->Pending().NoteSaved();
    return Redraw(*voyage, mode);
}

}  // namespace Tarvik::Seaplan

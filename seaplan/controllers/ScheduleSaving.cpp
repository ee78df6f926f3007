// SPDX-License-Identifier: MIT
#include "seaplan/controllers/ScheduleSaving.h"

#include <utility>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

/// The book's date follows the first row; a voyage without book gets one.
Outcome<SaveStep> ScheduleSaver::SaveDate(VoyInfo& voyage) {
    const Util::_datetime_t start = voyage.portCalls.front().eta;
    const std::string date = start.fmt(kTimeFormat);
    VoyPositionBook& book = voyage.positionBook;
    if (!book.pbi.empty()) {
        if (module_->SetPositionBookDate(book.pbi, date) < 0) {
            return SaveStep::Date;
        }
    } else {
        std::string id;
        if (module_->EnsurePositionBook(voyage.vi, date, id) < 0) {
            return SaveStep::Date;
        }
        book.pbi = id;
    }
    book.eta = start;
    return {};
}

/// Rows of the voyage's pending route, or of the book itself.
Outcome<SaveStep> ScheduleSaver::SaveBook(VoyInfo& voyage) {
    BookPoints points = voyage.positionBook.points;
    const bool calculated = module_->Pending().IsFor(voyage.vi);
    if (calculated && module_->BookFromCurrentStops(points) < 0) {
        return SaveStep::Book;
    }
    if (points.empty()) {
        return SaveStep::NoRows;
    }
    RescaleBookSpeeds(voyage.portCalls, points);
    if (module_->SavePositionBookRows(voyage.positionBook.pbi, points) < 0) {
        return SaveStep::BookRows;
    }
    voyage.positionBook.points = std::move(points);
    if (calculated) {
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
    PortCallRows saved = rows;
    if (module_->SavePortCalls(vi, saved) < 0) {
        return SaveStep::PortCalls;
    }
    voyage->portCalls = std::move(saved);
    if (const auto failed = SaveDate(*voyage); failed.Failed()) {
        return failed;
    }
    if (const auto failed = SaveBook(*voyage); failed.Failed()) {
        return failed;
    }
    PortCallRows recomputed;
    if (RecomputeSchedule(voyage->portCalls, recomputed) < 0) {
        return SaveStep::Times;
    }
    KeepPortIds(voyage->portCalls, recomputed);
    voyage->portCalls = std::move(recomputed);
    if (const auto failed = Redraw(*voyage, mode); failed.Failed()) {
        return failed;
    }
    module_->Pending().NoteSaved();
    return {};
}

}  // namespace Tarvik::Seaplan

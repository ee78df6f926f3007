// SPDX-License-Identifier: MIT
#include "seaplan/controllers/PositionBooks.h"

#include <utility>
#include <vector>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/book/BookPanel.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/SaveAnswers.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

/// The speeds that the ship had at the points of its AIS track, knots.
std::vector<float> AisSpeedsOf(const BookPoints& points) {
    std::vector<float> speeds;
    for (const PosBookPoint& point : points) {
        if (point.pst == AisTrackPoint) {
            speeds.push_back(point.psp);
        }
    }
    return speeds;
}

}  // namespace

ScheduleFault FaultOf(const Outcome<SaveBookStep>& failed) {
    switch (failed.At()) {
        case SaveBookStep::PortCalls:
        case SaveBookStep::Date:
        case SaveBookStep::Rows:
            return {SaveAnswers::CauseOf(failed.Detail())};
        default:
            return {ScheduleFault::Cause::Figures};
    }
}

Outcome<GetBookStep> PositionBooks::Get(const std::string& vi, PosBookData& out) {
    if (vi.empty()) {
        return GetBookStep::Id;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return GetBookStep::Voyage;
    }
    PortCallRows rows;
    // A load would drop a route of this voyage that waits to be saved.
    if ((voyage->portCalls.empty() || voyage->positionBook.points.empty()) &&
        loader_.Load(vi, rows, DrawMode::Nothing).Failed()) {
        return GetBookStep::Load;
    }
    if (BookToPanel(*voyage, out, AisSpeedsOf(voyage->positionBook.points)) != 0) {
        return GetBookStep::Panel;
    }
    return {};
}

Outcome<SaveBookStep> PositionBooks::Send(VoyInfo& changed, const Util::_datetime_t& startBefore) {
    VoyPositionBook& book = changed.positionBook;
    if (const int code = module_->SavePortCalls(changed.vi, changed.portCalls); code < 0) {
        return {SaveBookStep::PortCalls, SaveAnswers::OfPortCalls(code)};
    }
    const std::string date = book.eta.fmt(kTimeFormat);
    if (book.pbi.empty()) {
        if (const int code = module_->EnsurePositionBook(changed.vi, date, book.pbi); code < 0) {
            return {SaveBookStep::Date, SaveAnswers::OfNewBook(code)};
        }
    } else if (book.eta != startBefore) {
        if (const int code = module_->SetPositionBookDate(book.pbi, date); code < 0) {
            return {SaveBookStep::Date, SaveAnswers::OfBookDate(code)};
        }
    }
    if (const int code = module_->SavePositionBookRows(book.pbi, book.points); code < 0) {
        return {SaveBookStep::Rows, SaveAnswers::OfBookRows(code)};
    }
    return {};
}

Outcome<SaveBookStep> PositionBooks::Save(const std::string& vi, const PosBookData& book) {
    if (vi.empty()) {
        return SaveBookStep::Id;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return SaveBookStep::Voyage;
    }
    VoyInfo changed = *voyage;
    if (PanelToBook(book, changed) != 0) {
        return SaveBookStep::Panel;
    }
    changed.positionBook.eta = changed.portCalls.front().eta;
    PortCallRows named = changed.portCalls;
    KeepPortIds(voyage->portCalls, named);
    if (LegTotalsFromBook(changed.positionBook, changed.portCalls) != 0) {
        return SaveBookStep::Totals;
    }
    KeepPortIds(named, changed.portCalls);
    if (const auto failed = Send(changed, voyage->positionBook.eta); failed.Failed()) {
        return failed;
    }
    voyage->portCalls = std::move(changed.portCalls);
    voyage->positionBook = std::move(changed.positionBook);
    module_->Pending().NoteSaved();
    return {};
}

}  // namespace Tarvik::Seaplan

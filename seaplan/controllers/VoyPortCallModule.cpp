// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyPortCallModule.h"

#include <tuple>
#include <utility>

#include <tarvik/interface/BusContract.h>
#include <tarvik/interface/ValueDictionary.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/calculation/PlannedProgress.h"
#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/VesselCards.h"
#include "seaplan/protocol/BookCommands.h"
#include "seaplan/protocol/PortCallCommands.h"

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

/// Answers of click handlers are texts of small numbers; null is success.
void* AnswerOf(int result) {
    static const char* const texts[] = {"0", "-1", "-2", "-3", "-4", "-5"};
    return result == 0 ? nullptr : const_cast<char*>(texts[-result]);
}

}  // namespace

VoyPortCallModule::VoyPortCallModule(VoyageStore* store) : store_(store) {
    routePointClick_.Set<&VoyPortCallModule::OnRoutePointClicked>(this);
    alternativeClick_.Set<&VoyPortCallModule::OnAlternativeClicked>(this);
    shipClick_.Set<&VoyPortCallModule::OnShipClicked>(this);
    BindClick(Bus::ClickVoyageType.name, routePointClick_);
    BindClick(Bus::ClickRoutePointType.name, alternativeClick_);
    BindClick(Bus::ClickAisShipType.name, shipClick_);
}

VoyPortCallModule::~VoyPortCallModule() {
    UnbindClick(Bus::ClickAisShipType.name, shipClick_);
    UnbindClick(Bus::ClickRoutePointType.name, alternativeClick_);
    UnbindClick(Bus::ClickVoyageType.name, routePointClick_);
}

void VoyPortCallModule::BindClick(const char* name, Core::TEvent& delegate) {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    kernel->CreateTrvEvent(name, this, "", "", nullptr);
    kernel->BindTrvEvent(name, &delegate);
}

// The click channels are made as events and taken down as services; the bus keeps both in one table of names.
void VoyPortCallModule::UnbindClick(const char* name, Core::TEvent& delegate) {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    kernel->UnBindTrvService(name, &delegate);
    kernel->DeleteTrvService(name, this);
}

int VoyPortCallModule::LoadPortCalls(const std::string& vi, PortCallRows& rows) {
    return Seaplan::LoadPortCalls(vi, rows);
}

int VoyPortCallModule::LoadPositionBook(const std::string& vi, VoyPositionBook& book) {
    return Seaplan::LoadPositionBook(vi, book);
}

int VoyPortCallModule::EnsurePositionBook(const std::string& vi, const std::string& date, std::string& id) {
    return Seaplan::EnsurePositionBook(vi, date, id);
}

int VoyPortCallModule::SetPositionBookDate(const std::string& id, const std::string& date) {
    return Seaplan::SetPositionBookDate(id, date);
}

int VoyPortCallModule::SavePositionBookRows(const std::string& id, const BookPoints& rows) {
    return Seaplan::SavePositionBookRows(id, rows);
}

int VoyPortCallModule::SavePortCalls(const std::string& vi, PortCallRows& rows) {
    return Seaplan::SavePortCalls(vi, rows);
}

int VoyPortCallModule::SaveFigures(const std::string& vi, const BunkerFigures& figures) {
    return Seaplan::SaveFigures(vi, figures);
}

int VoyPortCallModule::BookFromCurrentStops(BookPoints& rows) {
    rows.clear();
    if (LoadRoutePoints(PointDatabasePath(), routePoints_) < 0) {
        return -2;
    }
    return BookFromStops(stops_, routePoints_, rows);
}

int VoyPortCallModule::PortPositions(const PortCallRows& rows, std::vector<RoutePointRow>& out) {
    out.clear();
    if (LoadPortPositions(PointDatabasePath(), portPositions_) < 0) {
        return -1;
    }
    for (const VoyPortCall& row : rows) {
        const std::string id = Interface::GetNameByValue("/points", row.ppn, 1033);
        const auto found = portPositions_.find(id);
        if (found == portPositions_.end()) {
            return -2;
        }
        out.push_back({id, row.ppn, found->second.position});
    }
    return 0;
}

int VoyPortCallModule::DrawCurrentRoute() {
    return layer_.DrawRoute(stops_, PointDatabasePath(), routePoints_);
}

int VoyPortCallModule::DrawBook(const VoyInfo& voyage) {
    PointTexts positions;
    for (const PosBookPoint& point : voyage.positionBook.points) {
        positions.push_back(point.position);
    }
    return layer_.DrawBook(voyage.vi, positions);
}

int VoyPortCallModule::DrawPlannedProgress(const VoyInfo& voyage) {
    if (voyage.portCalls.size() < 2 || voyage.positionBook.points.size() < 2) {
        return -1;
    }
    if (layer_.SetupLayer() < 0) {
        return -2;
    }
    if (layer_.ClearRouteObjects() < 0) {
        return -3;
    }
    std::map<int, BookPoints> groups;
    if (GroupBookByPort(voyage.positionBook.points, groups) < 0) {
        return -4;
    }
    if (groups.size() != voyage.portCalls.size()) {
        return -5;
    }
    PlannedProgress progress;
    const int failed = PlanProgress(voyage.portCalls, groups, Util::_datetime_t::now(), progress);
    if (failed < 0) {
        return failed;
    }
    return ShowProgress(voyage.vi, progress.current, progress.sailed, progress.remaining, -14);
}

int VoyPortCallModule::DrawAisProgress(const VoyInfo& voyage) {
    if (voyage.portCalls.size() < 2 || voyage.positionBook.points.size() < 2) {
        return -1;
    }
    if (layer_.SetupLayer() < 0) {
        return -2;
    }
    BookPoints rows = voyage.positionBook.points;
    if (ComputeBookTimes(voyage.positionBook.eta, voyage.portCalls, rows) < 0) {
        return -3;
    }
    std::map<int, BookPoints> groups;
    if (GroupBookByPort(rows, groups) < 0) {
        return -4;
    }
    if (groups.size() != voyage.portCalls.size()) {
        return -5;
    }
    const std::string last = voyage.aisModTimes.empty() ? "" : voyage.aisModTimes.back();
    const auto correction = Util::DateTimeUtl::Parse(last);
    if (!correction) {
        return -6;
    }
    PlannedProgress progress;
    const int failed =
        CorrectedProgress(voyage.portCalls, groups, *correction, Util::_datetime_t::now(), progress);
    if (failed < 0) {
        return failed;
    }
    return ShowProgress(voyage.vi, progress.current, progress.sailed, progress.remaining, -15);
}

int VoyPortCallModule::ShowProgress(const std::string& vi, const std::string& current,
                                    const PointTexts& sailed, const PointTexts& remaining, int idCode) {
    if (vi.empty()) {
        return idCode;
    }
    layer_.remainingLine.ref.id = vi;
    layer_.sailedLine.ref.id = vi;
    layer_.shipIcon.ref.id = vi;
    if (remaining.size() > 1 && layer_.DrawLine(layer_.remainingLine, remaining, 1) < 0) {
        return idCode - 1;
    }
    if (sailed.size() > 1 && layer_.DrawLine(layer_.sailedLine, sailed, 0) < 0) {
        return idCode - 2;
    }
    if (layer_.PlaceShip(layer_.shipIcon, current) < 0) {
        return idCode - 3;
    }
    shipPositions_[vi] = current;
    PointTexts all = remaining;
    all.insert(all.end(), sailed.begin(), sailed.end());
    return layer_.SetExtent(all) < 0 ? idCode - 4 : 0;
}

void* VoyPortCallModule::OnRoutePointClicked(void* id) {
    return id == nullptr ? AnswerOf(-1) : AnswerOf(ShowAlternatives(*static_cast<const std::string*>(id)));
}

void* VoyPortCallModule::OnAlternativeClicked(void* id) {
    return id == nullptr ? AnswerOf(-1) : AnswerOf(ChooseAlternative(*static_cast<const std::string*>(id)));
}

void* VoyPortCallModule::OnShipClicked(void* vi) {
    return vi == nullptr ? AnswerOf(-1) : AnswerOf(ShowVesselCard(*static_cast<const std::string*>(vi)));
}

int VoyPortCallModule::ShowVesselCard(const std::string& vi) {
    if (vi.empty()) {
        return -1;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    const auto icon = shipPositions_.find(vi);
    const std::string position = icon == shipPositions_.end() ? "" : icon->second;
    Interface::VesselCard card = VesselCardOf(*voyage, position, Util::_datetime_t::now());
    if (cursor_) {
        std::tie(card.cursorX, card.cursorY) = cursor_();
    }
    Interface::Call(Bus::ShowVesselCard, &std::as_const(card));
    return 0;
}

}  // namespace Tarvik::Seaplan

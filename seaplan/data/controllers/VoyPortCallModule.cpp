// SPDX-License-Identifier: MIT
#include "seaplan/data/controllers/VoyPortCallModule.h"

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/data/controllers/PlannedProgress.h"
#include "seaplan/protocol/BookCommands.h"
#include "seaplan/protocol/PortCallCommands.h"

#include <tarvik/interface/BusContract.h>

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

/// Answers of click handlers are texts of small numbers; null is success.
void* answerOf(int result) {
    static const char* const texts[] = {"0", "-1", "-2", "-3", "-4", "-5"};
    return result == 0 ? nullptr : const_cast<char*>(texts[-result]);
}

}  // namespace

VoyPortCallModule::VoyPortCallModule(VoyageStore* store) : store_(store) {
    bindClicks();
}

void VoyPortCallModule::bindClicks() {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    kernel->CreateTrvEvent(Bus::ClickVoyageType.name, this, "", "", nullptr);
    routePointClick_.Set<&VoyPortCallModule::onRoutePointClicked>(this);
    kernel->BindTrvEvent(Bus::ClickVoyageType.name, &routePointClick_);
    kernel->CreateTrvEvent(Bus::ClickRoutePointType.name, this, "", "", nullptr);
    alternativeClick_.Set<&VoyPortCallModule::onAlternativeClicked>(this);
    kernel->BindTrvEvent(Bus::ClickRoutePointType.name, &alternativeClick_);
}

VoyPortCallModule::~VoyPortCallModule() {
    // The click channels are made as events and taken down as services; the bus keeps both in one table of
    // names.
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    kernel->UnBindTrvService(Bus::ClickRoutePointType.name, &alternativeClick_);
    kernel->DeleteTrvService(Bus::ClickRoutePointType.name, this);
    kernel->UnBindTrvService(Bus::ClickVoyageType.name, &routePointClick_);
    kernel->DeleteTrvService(Bus::ClickVoyageType.name, this);
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
    return showProgress(voyage.vi, progress.current, progress.sailed, progress.remaining, -14);
}

int VoyPortCallModule::showProgress(const std::string& vi, const std::string& current,
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

void* VoyPortCallModule::onRoutePointClicked(void* id) {
    return id == nullptr ? answerOf(-1) : answerOf(showAlternatives(*static_cast<const std::string*>(id)));
}

void* VoyPortCallModule::onAlternativeClicked(void* id) {
    return id == nullptr ? answerOf(-1) : answerOf(chooseAlternative(*static_cast<const std::string*>(id)));
}

}  // namespace Tarvik::Seaplan

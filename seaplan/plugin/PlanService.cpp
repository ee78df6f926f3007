// SPDX-License-Identifier: MIT
#include "seaplan/plugin/PlanService.h"

#include "seaplan/calculation/PointTables.h"
#include "seaplan/calculation/PositionBook.h"
#include "seaplan/data/controllers/PortPreparation.h"
#include "seaplan/data/controllers/VoyCatalogController.h"
#include "seaplan/data/controllers/VoyController.h"

#include <utility>

namespace Tarvik::Seaplan {

namespace {

PortCallRows rowsOf(const PlanRequest& request) {
    PortCallRows rows;
    for (const PlanPort& port : request.ports) {
        VoyPortCall row;
        row.ppn = port.name;
        row.pp = port.purpose;
        row.psp = port.speed;
        row.pw = port.weather;
        row.apt = port.portTime;
        row.eta = request.start;
        rows.push_back(row);
    }
    return rows;
}

PointTexts positionsOf(const BookPoints& book) {
    PointTexts positions;
    for (const PosBookPoint& point : book) {
        positions.push_back(point.position);
    }
    return positions;
}

}  // namespace

void* PlanService::OnPlan(void* request) {
    if (request == nullptr) {
        return nullptr;
    }
    return const_cast<PlanResult*>(&Plan(*static_cast<const PlanRequest*>(request)));
}

const PlanResult& PlanService::Plan(const PlanRequest& request) {
    result_ = {};
    if (run(request) < 0) {
        PlanResult failure;
        failure.code = result_.code;
        failure.step = result_.step;
        result_ = failure;
    }
    // A panel that saves later must not take this route for its own.
    voyages_->ForgetPortList();
    return result_;
}

int PlanService::fail(int code, const std::string& step) {
    result_.code = code;
    result_.step = step;
    return code;
}

int PlanService::run(const PlanRequest& request) {
    PortCallRows rows;
    PortCallRows scheduled;
    if (connect() < 0 || prepare(request, rows) < 0 || checkNames(request) < 0) {
        return result_.code;
    }
    if (voyages_->CalculatePortCalls(rows, scheduled) < 0) {
        return fail(PlanNotCalculated, "no route or schedule for these ports");
    }
    if (fillResult(scheduled) < 0) {
        return result_.code;
    }
    return request.save ? save(request) : 0;
}

int PlanService::connect() {
    std::string user;
    if (catalog_->Connect(user) < 0) {
        return fail(PlanNotConnected, "not connected to the voyage server");
    }
    return catalog_->Load(user) < 0 ? fail(PlanNotLoaded, "the user's voyages could not be loaded") : 0;
}

int PlanService::prepare(const PlanRequest& request, PortCallRows& rows) {
    PortCallRows typed = rowsOf(request);
    PrepareFirstPurpose(typed);
    voyages_->ResolvePortIds(typed);
    for (const VoyPortCall& row : typed) {
        if (row.ppi.empty()) {
            return fail(PlanUnknownPort, "unknown port: " + row.ppn);
        }
    }
    SamePortLinks links;
    LoadSamePortLinks(PointDatabasePath(), links);
    return DropSamePortRows(typed, links, rows) < 0 ? fail(PlanTooFewPorts, "fewer than two different ports")
                                                    : 0;
}

int PlanService::checkNames(const PlanRequest& request) {
    if (!request.save) {
        return 0;
    }
    if (request.category.empty() || request.voyage.empty()) {
        return fail(PlanNameMissing, "a saved voyage needs a name and a category");
    }
    std::map<std::string, int> categories;
    std::map<std::string, int> voyages;
    catalog_->GetNameMaps(categories, voyages);
    return voyages.count(request.voyage) > 0 ? fail(PlanNameTaken, "a voyage of this name exists") : 0;
}

int PlanService::fillResult(const PortCallRows& rows) {
    BookPoints book;
    if (voyages_->Module().BookFromCurrentStops(book) < 0) {
        return fail(PlanNotCalculated, "the route makes no position book");
    }
    RescaleBookSpeeds(rows, book);
    if (ComputeBookTimes(rows.front().eta, rows, book) < 0) {
        return fail(PlanNotCalculated, "the position book has no times");
    }
    if (SplitAtDateLine(positionsOf(book), result_.linePieces) < 0) {
        return fail(PlanNotCalculated, "the route has no line");
    }
    TotalsOf(rows, result_.totals);
    SummaryOf(rows, result_.summary);
    result_.rows = rows;
    result_.book = std::move(book);
    return 0;
}

int PlanService::findCategory(const std::string& name) {
    for (const auto& [ci, category] : store_->categories) {
        const auto state = store_->categoryStates.find(ci);
        if (category.cn == name && state != store_->categoryStates.end() && state->second == InUse) {
            result_.ci = ci;
            return 0;
        }
    }
    return catalog_->AddCategory(name, result_.ci);
}

int PlanService::save(const PlanRequest& request) {
    if (findCategory(request.category) < 0) {
        return fail(PlanNoCategory, "the category could not be made");
    }
    if (catalog_->AddVoyage(request.voyage, result_.ci, result_.vi) < 0) {
        return fail(PlanNoVoyage, "the voyage could not be made");
    }
    if (voyages_->SaveSchedule(result_.vi, result_.rows, -1) < 0) {
        return fail(PlanNotSaved, "the schedule could not be saved");
    }
    return 0;
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/plugin/PlanService.h"

#include <algorithm>
#include <functional>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/ScheduleCalculation.h"
#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/portcall/PortCallState.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/tree/TreeRules.h"
#include "seaplan/plugin/PlanAnswer.h"

namespace Tarvik::Seaplan {

namespace {

// What the steps of a calculation are called to a person; a number is one of kCalculatePortCallsCodes.
std::string WordsOfCalculation(int code) {
    using Step = CalculationStep;
    switch (code) {
        case kCalculatePortCallsCodes.Of(Step::Route):
            return "the server has no route for these ports";
        case kCalculatePortCallsCodes.Of(Step::Times):
            return "speed, weather and stays lead to times that do not exist";
        case kCalculatePortCallsCodes.Of(Step::Book):
            return "the table of ports and route points is missing or does not know the route's points";
        case kCalculatePortCallsCodes.Of(Step::Distances):
            return "the route has a leg without length";
        default:
            return "the route could not be put on the chart";
    }
}

}  // namespace

const PlanResult& PlanService::Plan(const PlanRequest& request) {
    const bool loadedBefore = !store_->categories.empty();
    // A panel that saves later must neither take this route for its own nor miss the one it has calculated.
    const PendingRoute::Rollback panelsRoute(voyages_->Module().Pending());
    result_ = {};
    if (Run(request) != Interface::PlanDone) {
        PlanResult failure;
        failure.code = result_.code;
        failure.step = result_.step;
        result_ = failure;
    }
    // The voyage panel builds its tree when it finds nothing loaded, so what was loaded here goes again.
    if (!loadedBefore) {
        store_->Clear();
    }
    return result_;
}

PlanCode PlanService::Fail(PlanCode code, const std::string& step) {
    result_.code = code;
    result_.step = step;
    return code;
}

PlanCode PlanService::Run(const PlanRequest& request) {
    PortCallRows rows;
    const std::function<PlanCode()> steps[] = {
        [this] { return Connect(); },
        [&] { return Prepare(request, rows); },
        [&] { return CheckNames(request); },
        [&] { return Calculate(rows); },
        [&] {
            return FillResult({request.units.speed, request.units.distance, request.units.time});
        },
        [&] { return request.save ? Save(request) : Interface::PlanDone; },
    };
    for (const auto& step : steps) {
        if (const PlanCode code = step(); code != Interface::PlanDone) {
            return code;
        }
    }
    return Interface::PlanDone;
}

PlanCode PlanService::Connect() {
    std::string user;
    if (catalog_->Connect(user) < 0) {
        return Fail(Interface::PlanNotConnected, "not connected to the voyage server");
    }
    return catalog_->Load(user) < 0 ? Fail(Interface::PlanNotLoaded, "the user's voyages could not be loaded")
                                    : Interface::PlanDone;
}

PlanCode PlanService::Prepare(const PlanRequest& request, PortCallRows& rows) {
    for (const PlanPort& port : request.ports) {
        if (const std::string complaint = ComplaintOf(port); !complaint.empty()) {
            return Fail(Interface::PlanNotCalculated, complaint);
        }
    }
    PortCallRows typed = RowsOf(request);
    PrepareFirstPurpose(typed);
    voyages_->ResolvePortIds(typed);
    for (const VoyPortCall& row : typed) {
        if (row.ppi.empty()) {
            return Fail(Interface::PlanUnknownPort, "unknown port: " + row.ppn);
        }
    }
    return DropSamePortRows(typed, ports_->SamePorts(), rows) < 0
               ? Fail(Interface::PlanTooFewPorts, "fewer than two different ports")
               : Interface::PlanDone;
}

PlanCode PlanService::CheckNames(const PlanRequest& request) {
    if (!request.save) {
        return Interface::PlanDone;
    }
    const std::string voyage = NormalizeName(request.voyage);
    const std::string category = NormalizeName(request.category);
    if (category.empty() || voyage.empty()) {
        return Fail(Interface::PlanNameMissing, "a saved voyage needs a name and a category");
    }
    if (const std::string complaint = ComplaintOfNames(category, voyage); !complaint.empty()) {
        return Fail(Interface::PlanNameMissing, complaint);
    }
    return IsTaken(voyage) ? Fail(Interface::PlanNameTaken, "a voyage of this name exists")
                           : Interface::PlanDone;
}

/// A destroyed voyage has given its name back, and one of the same name may stand beside it.
bool PlanService::IsTaken(const std::string& name) const {
    return std::any_of(store_->voyages.begin(), store_->voyages.end(), [&](const auto& entry) {
        int state = Destroyed;
        catalog_->GetVoyageState(entry.first, state);
        return entry.second.vn == name && state != Destroyed;
    });
}

PlanCode PlanService::Calculate(const PortCallRows& rows) {
    PortCallRows& scheduled = rows_;
    if (const int code = voyages_->CalculatePortCalls(rows, scheduled); code < 0) {
        return Fail(Interface::PlanNotCalculated, WordsOfCalculation(code));
    }
    const std::string* zone = Interface::Call(Interface::Bus::CurrentTimeZone);
    const auto known =
        NoteOfKnownLegs(voyages_->Module().Pending().KnownSince(), zone == nullptr ? std::string() : *zone);
    if (const std::string note = NoteText(known); !note.empty()) {
        result_.notes.push_back(note);
    }
    // A schedule pass makes the first port one of loading; a person may change the purpose afterwards.
    scheduled.front().pp = rows.front().pp;
    return Interface::PlanDone;
}

PlanCode PlanService::FillResult(const UnitSet& units) {
    BookPoints book;
    if (voyages_->Module().BookFromCurrentStops(book) < 0) {
        return Fail(Interface::PlanNotCalculated, "the route makes no position book");
    }
    RescaleBookSpeeds(rows_, book);
    if (ComputeBookTimes(rows_.front().eta, rows_, book) < 0) {
        return Fail(Interface::PlanNotCalculated, "the position book has no times");
    }
    if (!TellRoute(book, result_)) {
        return Fail(Interface::PlanNotCalculated, "the route has no line");
    }
    TellSchedule(rows_, result_);
    TellTable(rows_, units, result_);
    return Interface::PlanDone;
}

/// `made` tells whether the category is a new one.
int PlanService::FindCategory(const std::string& name, bool& made) {
    made = false;
    for (const auto& [ci, category] : store_->categories) {
        const auto state = store_->categoryStates.find(ci);
        if (category.cn == name && state != store_->categoryStates.end() && state->second == InUse) {
            result_.categoryId = ci;
            return 0;
        }
    }
    made = true;
    return catalog_->AddCategory(name, result_.categoryId);
}

PlanCode PlanService::Save(const PlanRequest& request) {
    bool newCategory = false;
    if (FindCategory(NormalizeName(request.category), newCategory) < 0) {
        return Fail(Interface::PlanNoCategory, "the category could not be made");
    }
    if (catalog_->AddVoyage(NormalizeName(request.voyage), result_.categoryId, result_.voyageId) < 0) {
        return Fail(Interface::PlanNoVoyage, "the voyage could not be made" + TakeBack(newCategory));
    }
    voyages_->Module().Pending().Assign(result_.voyageId);
    if (voyages_->SaveSchedule(result_.voyageId, rows_, -1) < 0) {
        return Fail(Interface::PlanNotSaved, "the schedule could not be saved" + TakeBack(newCategory));
    }
    return Interface::PlanDone;
}

/// Leaves nothing half saved behind: what is in use goes into the recycle bin first, as nothing else is
/// destroyed. Empty, or words for what stays, since a server that is gone cannot be told.
std::string PlanService::TakeBack(bool newCategory) {
    const std::string& ci = result_.categoryId;
    const std::string& vi = result_.voyageId;
    // A step whose answer was lost may have been done all the same: only the last one tells.
    bool voyageGone = vi.empty();
    if (!voyageGone) {
        catalog_->DeleteVoyage(ci, vi);
        voyageGone = catalog_->DestroyVoyage(ci, vi) == 0;
    }
    bool categoryGone = false;
    if (newCategory) {
        catalog_->DeleteCategory(ci);
        categoryGone = catalog_->DestroyCategory(ci) == 0;
    }
    // A category takes its voyages with it.
    if (!voyageGone && !categoryGone) {
        return ", and its new voyage may be left without one: delete it in the voyage panel";
    }
    return newCategory && !categoryGone ? ", and its new category may be left empty" : "";
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyController.h"

#include <tarvik/util/Clock.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/VoyCatalogController.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kTimerPeriodMs = 100000;
/// Stands in the place of a voyage id while the panel works as the port distance table.
constexpr const char* kDistanceTable = "DISTANCE TABLE USE";
enum DrawMode : int { DrawNothing = -1, DrawBookLine = 0, DrawProgress = 1 };

}  // namespace

VoyController::VoyController(VoyPortCallModule* module, VoyCatalogController* catalog, VoyageStore* store)
    : module_(module), catalog_(catalog), store_(store) {}

VoyController::~VoyController() {
    StopTimer();
}

int VoyController::FetchSchedule(VoyInfo& voyage, PortCallRows& rows) {
    if (!voyage.portCalls.empty() && !voyage.positionBook.points.empty()) {
        rows = voyage.portCalls;
        return 0;
    }
    VoyPositionBook book;
    if (module_->LoadPortCalls(voyage.vi, rows) < 0) {
        return -3;
    }
    if (module_->LoadPositionBook(voyage.vi, book) < 0) {
        return -4;
    }
    voyage.positionBook = book;
    return 0;
}

int VoyController::Draw(const std::string& vi, int drawMode, int progressCode, int bookCode) {
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (drawMode == DrawProgress) {
        if (module_->DrawPlannedProgress(*voyage) < 0) {
            return progressCode;
        }
        currentVoyage_ = vi;
    } else if (drawMode == DrawBookLine && module_->DrawBook(*voyage) < 0) {
        return bookCode;
    }
    return 0;
}

int VoyController::LoadSchedule(const std::string& vi, PortCallRows& rows, int drawMode) {
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    if (const int failed = FetchSchedule(*voyage, rows); failed < 0) {
        return failed;
    }
    if (LegTotalsFromBook(voyage->positionBook, rows) < 0) {
        return -5;
    }
    voyage->portCalls = rows;
    if (drawMode < DrawNothing || drawMode > DrawProgress) {
        return -8;
    }
    if (const int failed = Draw(vi, drawMode, -6, -7); failed < 0) {
        return failed;
    }
    ForgetPortList();
    for (const VoyPortCall& row : rows) {
        portNames_.push_back(row.ppn);
    }
    routeIsCurrent_ = 1;
    return 0;
}

int VoyController::GetFigures(const std::string& vi, BunkerFigures& figures) const {
    if (vi.empty()) {
        return -1;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    figures = voyage->figures;
    return 0;
}

int VoyController::SaveFigures(const std::string& vi, const BunkerFigures& figures) {
    if (vi.empty()) {
        return -1;
    }
    if (module_->SaveFigures(vi, figures) < 0) {
        return -2;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -3;
    }
    voyage->figures = figures;
    return 0;
}

int VoyController::ClearAisMod(const std::string& vi) {
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    voyage->modais = 0;
    voyage->aisModTimes.clear();
    return 0;
}

int VoyController::GetModAis(const std::string& vi, int& count) const {
    if (vi == kDistanceTable) {
        return 0;
    }
    if (vi.empty()) {
        return -1;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    count = voyage->modais;
    return 0;
}

int VoyController::DiscardPortCalls(const std::string& vi) {
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    voyage->portCalls.clear();
    voyage->positionBook.points.clear();
    if (voyage->aisModTimes.empty()) {
        voyage->modais = 0;
    }
    PortCallRows rows;
    return LoadSchedule(vi, rows, DrawNothing) < 0 ? -3 : 0;
}

void VoyController::StartTimer() {
    Util::TimerService* timers = Util::TimerService::Current();
    if (timerId_ == 0 && timers != nullptr) {
        timerId_ = timers->Start(kTimerPeriodMs, [this] { OnTimer(); });
    }
}

void VoyController::StopTimer() {
    Util::TimerService* timers = Util::TimerService::Current();
    if (timerId_ != 0 && timers != nullptr) {
        timers->Stop(timerId_);
    }
    timerId_ = 0;
}

void VoyController::OnTimer() {
    RefreshVesselPositions();
    if (treeVisible_ && !treeVisible_()) {
        return;
    }
    for (const auto& [vi, voyage] : store_->voyages) {
        if (voyage.vr == 1) {
            // The person's view of the chart stays where it is.
            module_->Layer().autoExtent = false;
            ShowVoyage(vi);
            module_->Layer().autoExtent = true;
        }
    }
}

int VoyController::ClearChart() {
    return module_->Layer().ClearAllObjects() < 0 ? -1 : 0;
}

int VoyController::RemoveVoyageObjects(const std::string& vi) {
    return vi.empty() ? -1 : module_->Layer().ClearVoyageObjects(vi);
}

int VoyController::ShowVoyage(const std::string& vi) {
    int state = 0;
    if (vi.empty()) {
        return -1;
    }
    if (catalog_->GetVoyageState(vi, state) < 0) {
        return -2;
    }
    if (state != InUse) {
        return -3;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return -4;
    }
    if (RemoveVoyageObjects(vi) < 0) {
        return -5;
    }
    PortCallRows rows;
    if (voyage->modais == 0) {
        return LoadSchedule(vi, rows, DrawProgress) < 0 ? -6 : 0;
    }
    if (LoadSchedule(vi, rows, DrawNothing) < 0) {
        return -7;
    }
    std::vector<std::string> times;
    if (catalog_->GetAisModTimes(vi, times) < 0) {
        return -8;
    }
    return module_->DrawAisProgress(*voyage) < 0 ? -9 : 0;
}

int VoyController::MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = Seaplan::MoveRowUp(rows, index, out);
    routeIsCurrent_ = result == 0 ? -1 : routeIsCurrent_;
    return result;
}

int VoyController::MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = Seaplan::MoveRowDown(rows, index, out);
    routeIsCurrent_ = result == 0 ? -1 : routeIsCurrent_;
    return result;
}

int VoyController::DeleteRow(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = RemoveRowAt(rows, index, out);
    routeIsCurrent_ = result == 0 ? -1 : routeIsCurrent_;
    return result;
}

void VoyController::ForgetPortList() {
    module_->Pending().Drop();
    portNames_.clear();
}

bool VoyController::HasPendingRoute() const {
    return !module_->Pending().Stops().empty();
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyController.h"

#include <utility>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/PositionBooks.h"
#include "seaplan/controllers/ScheduleCalculation.h"
#include "seaplan/controllers/ScheduleLoading.h"
#include "seaplan/controllers/ScheduleSaving.h"
#include "seaplan/controllers/VesselWatch.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/controllers/VoyageCorrection.h"
#include "seaplan/data/PortDirectory.h"

namespace Tarvik::Seaplan {

/// The classes that do the work, a field for each task. They stand here and not in the header, as their own
/// headers would otherwise reach everything that asks this class.
struct VoyController::Parts {
    Parts(VoyPortCallModule* module, VoyCatalogController* catalog, VoyageStore* store,
          std::function<void()> tick)
        : loader(module, catalog, store),
          calculator(module, store),
          saver(module, store, loader.Chart()),
          books(module, store, loader),
          correction(module, store, calculator),
          timer(std::move(tick)) {}

    ScheduleLoader loader;
    ScheduleCalculator calculator;
    ScheduleSaver saver;
    PositionBooks books;
    VoyageCorrection correction;
    ScheduleFault fault;
    std::function<bool()> treeVisible;
    RefreshTimer timer;
};

VoyController::VoyController(VoyPortCallModule* module, VoyCatalogController* catalog, VoyageStore* store)
    : VoyageRecordFacade(module, store),
      VesselFacade(catalog, store),
      RouteRowsFacade(module),
      module_(module),
      parts_(std::make_unique<Parts>(module, catalog, store, [this] { OnTimer(); })) {}

VoyController::~VoyController() = default;

void VoyController::OnTimer() {
    RefreshVesselPositions();
    if (!parts_->treeVisible || parts_->treeVisible()) {
        parts_->loader.ShowSwitchedOn();
    }
}

int VoyController::LoadSchedule(const std::string& vi, PortCallRows& rows, int drawMode) {
    return kLoadScheduleCodes.Of(parts_->loader.Load(vi, rows, DrawModeOf(drawMode)));
}

int VoyController::DiscardPortCalls(const std::string& vi) {
    return kDiscardCodes.Of(parts_->loader.Discard(vi));
}

int VoyController::ResolvePortIds(PortCallRows& rows) const {
    Seaplan::ResolvePortIds(rows);
    return 0;
}

int VoyController::CalculatePortCalls(const PortCallRows& rows, PortCallRows& out) {
    const auto calculated = parts_->calculator.Calculate(rows, out);
    parts_->fault = parts_->calculator.Fault();
    return kCalculatePortCallsCodes.Of(calculated);
}

int VoyController::ScheduleCurrentRoute(const PortCallRows& rows, PortCallRows& out) {
    const auto calculated = parts_->calculator.FollowRoute(rows, out);
    parts_->fault = parts_->calculator.Fault();
    return kScheduleCurrentRouteCodes.Of(calculated);
}

int VoyController::CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                                      int& hadPortCalls) {
    const auto calculated = parts_->calculator.CalculateFor(vi, rows, out, hadPortCalls);
    parts_->fault = parts_->calculator.Fault();
    return kCalculateForVoyageCodes.Of(calculated);
}

int VoyController::CalculateKeepingLegs(const std::string& vi, const PortCallRows& rows, PortCallRows& out) {
    const auto calculated = parts_->calculator.CalculateKeepingLegs(vi, rows, out);
    parts_->fault = parts_->calculator.Fault();
    return kCalculateKeepingLegsCodes.Of(calculated);
}

int VoyController::SaveSchedule(const std::string& vi, const PortCallRows& rows, int drawMode) {
    const auto saved = parts_->saver.Save(vi, rows, DrawModeOf(drawMode).value_or(DrawMode::Nothing));
    parts_->fault = saved.Failed() ? FaultOf(saved, rows) : ScheduleFault();
    return kSaveScheduleCodes.Of(saved);
}

bool VoyController::HasRouteFor(const std::string& vi, const PortCallRows& rows) {
    return parts_->saver.HasRouteFor(vi, rows);
}

const ScheduleFault& VoyController::LastFault() const {
    return parts_->fault;
}

int VoyController::GetPosBookData(const std::string& vi, PosBookData& out) {
    return kGetPosBookCodes.Of(parts_->books.Get(vi, out));
}

int VoyController::SavePositionBook(const std::string& vi, const PosBookData& book) {
    const auto saved = parts_->books.Save(vi, book);
    parts_->fault = saved.Failed() ? FaultOf(saved) : ScheduleFault();
    return kSavePosBookCodes.Of(saved);
}

int VoyController::ClearChart() {
    return parts_->loader.Chart().Clear();
}

int VoyController::RemoveVoyageObjects(const std::string& vi) {
    return parts_->loader.Chart().Remove(vi);
}

void VoyController::StartTimer() {
    parts_->timer.Start();
}

void VoyController::StopTimer() {
    parts_->timer.Stop();
}

void VoyController::SetTreeVisible(std::function<bool()> visible) {
    parts_->treeVisible = std::move(visible);
}

int VoyController::ShowVoyage(const std::string& vi) {
    return kShowVoyageCodes.Of(parts_->loader.Show(vi));
}

int VoyController::ApplyAisPosition(const std::string& vi, int& applied) {
    return kApplyAisCodes.Of(parts_->correction.Apply(vi, applied));
}

int VoyController::SplitAisRows(const std::string& vi, PortCallRows& before, PortCallRows& after) const {
    return kSplitAisCodes.Of(parts_->correction.Split(vi, before, after));
}

int VoyController::ReplanFromAis(const std::string& vi, const PortCallRows& history, const PortCallRows& plan,
                                 PortCallRows& rows) {
    const auto planned = parts_->correction.Replan(vi, history, plan, rows);
    parts_->fault = planned.Failed() ? parts_->correction.FaultOf(planned, plan) : ScheduleFault();
    return kReplanCodes.Of(planned);
}

}  // namespace Tarvik::Seaplan

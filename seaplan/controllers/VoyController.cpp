// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyController.h"

#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/PortDirectory.h"

namespace Tarvik::Seaplan {

VoyController::VoyController(VoyPortCallModule* module, VoyCatalogController* catalog, VoyageStore* store)
    : module_(module),
      records_(module, store),
      loader_(module, catalog, store),
      calculator_(module, store),
      saver_(module, store, loader_.Chart()),
      books_(module, store, loader_),
      correction_(module, store, calculator_),
      watch_(catalog, store),
      timer_([this] { OnTimer(); }) {}

void VoyController::OnTimer() {
    RefreshVesselPositions();
    if (!treeVisible_ || treeVisible_()) {
        loader_.ShowSwitchedOn();
    }
}

int VoyController::LoadSchedule(const std::string& vi, PortCallRows& rows, int drawMode) {
    return kLoadScheduleCodes.Of(loader_.Load(vi, rows, DrawModeOf(drawMode)));
}

int VoyController::DiscardPortCalls(const std::string& vi) {
    return kDiscardCodes.Of(loader_.Discard(vi));
}

int VoyController::GetFigures(const std::string& vi, BunkerFigures& figures) const {
    return kReadRecordCodes.Of(records_.GetFigures(vi, figures));
}

int VoyController::SaveFigures(const std::string& vi, const BunkerFigures& figures) {
    return kSaveFiguresCodes.Of(records_.SaveFigures(vi, figures));
}

int VoyController::ClearAisMod(const std::string& vi) {
    return kReadRecordCodes.Of(records_.ClearCorrections(vi));
}

int VoyController::GetModAis(const std::string& vi, int& count) const {
    return kReadRecordCodes.Of(records_.CountCorrections(vi, count));
}

int VoyController::ResolvePortIds(PortCallRows& rows) const {
    Seaplan::ResolvePortIds(rows);
    return 0;
}

int VoyController::CalculatePortCalls(const PortCallRows& rows, PortCallRows& out) {
    const auto calculated = calculator_.Calculate(rows, out);
    fault_ = calculator_.Fault();
    return kCalculatePortCallsCodes.Of(calculated);
}

int VoyController::ScheduleCurrentRoute(const PortCallRows& rows, PortCallRows& out) {
    const auto calculated = calculator_.FollowRoute(rows, out);
    fault_ = calculator_.Fault();
    return kScheduleCurrentRouteCodes.Of(calculated);
}

int VoyController::CalculateForVoyage(const std::string& vi, const PortCallRows& rows, PortCallRows& out,
                                      int& hadPortCalls) {
    const auto calculated = calculator_.CalculateFor(vi, rows, out, hadPortCalls);
    fault_ = calculator_.Fault();
    return kCalculateForVoyageCodes.Of(calculated);
}

int VoyController::CalculateKeepingLegs(const std::string& vi, const PortCallRows& rows, PortCallRows& out) {
    const auto calculated = calculator_.CalculateKeepingLegs(vi, rows, out);
    fault_ = calculator_.Fault();
    return kCalculateKeepingLegsCodes.Of(calculated);
}

int VoyController::SaveSchedule(const std::string& vi, const PortCallRows& rows, int drawMode) {
    const auto saved = saver_.Save(vi, rows, DrawModeOf(drawMode).value_or(DrawMode::Nothing));
    fault_ = saved.Failed() ? FaultOf(saved, rows) : ScheduleFault();
    return kSaveScheduleCodes.Of(saved);
}

int VoyController::GetPosBookData(const std::string& vi, PosBookData& out) {
    return kGetPosBookCodes.Of(books_.Get(vi, out));
}

int VoyController::SavePositionBook(const std::string& vi, const PosBookData& book) {
    const auto saved = books_.Save(vi, book);
    fault_ = saved.Failed() ? FaultOf(saved) : ScheduleFault();
    return kSavePosBookCodes.Of(saved);
}

int VoyController::MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = Seaplan::MoveRowUp(rows, index, out);
    if (result == 0) {
        module_->Pending().NoteRowsChanged();
    }
    return result;
}

int VoyController::MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = Seaplan::MoveRowDown(rows, index, out);
    if (result == 0) {
        module_->Pending().NoteRowsChanged();
    }
    return result;
}

int VoyController::DeleteRow(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = RemoveRowAt(rows, index, out);
    if (result == 0) {
        module_->Pending().NoteRowsChanged();
    }
    return result;
}

int VoyController::ShowVoyage(const std::string& vi) {
    return kShowVoyageCodes.Of(loader_.Show(vi));
}

int VoyController::RefreshVesselPositions() {
    return kRefreshPositionsCodes.Of(watch_.RefreshPositions());
}

int VoyController::RefreshTrace(const std::string& vi) {
    return kRefreshTraceCodes.Of(watch_.RefreshTrace(vi));
}

int VoyController::HideAisTrack(const std::string& vi) {
    return kRefreshTraceCodes.Of(watch_.HideTrack(vi));
}

int VoyController::ApplyAisPosition(const std::string& vi, int& applied) {
    return kApplyAisCodes.Of(correction_.Apply(vi, applied));
}

int VoyController::SplitAisRows(const std::string& vi, PortCallRows& before, PortCallRows& after) const {
    return kSplitAisCodes.Of(correction_.Split(vi, before, after));
}

int VoyController::ReplanFromAis(const std::string& vi, const PortCallRows& history, const PortCallRows& plan,
                                 PortCallRows& rows) {
    const auto planned = correction_.Replan(vi, history, plan, rows);
    fault_ = planned.Failed() ? correction_.FaultOf(planned, plan) : ScheduleFault();
    return kReplanCodes.Of(planned);
}

}  // namespace Tarvik::Seaplan

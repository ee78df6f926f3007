// SPDX-License-Identifier: MIT
/// The panel's form for a voyage that was corrected from its vessel's positions.
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/BusyMark.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"

namespace Tarvik::Seaplan {

bool CPortCallPanelDlg::IsCorrected() const {
    int count = 0;
    return schedule_.GetModAis(voyageId_, count) == 0 && count > 0;
}

int CPortCallPanelDlg::FillCorrected() {
    HideEditors();
    if (ShowHistoryAndPlan() != 0) {
        return -5;
    }
    state_.canClear = false;
    SetCorrectionPending(false);
    state_.changed = false;
    state_.canSave = false;
    state_.canOpenBook = true;
    state_.canCalculate = true;
    ShowAll();
    return 0;
}

int CPortCallPanelDlg::ShowHistoryAndPlan() {
    PortCallRows history;
    PortCallRows plan;
    if (ais_->SplitAisRows(voyageId_, history, plan) != 0) {
        return -1;
    }
    units_ = UnitSet();
    const PortCallState fresh;
    state_.speedUnit = fresh.speedUnit;
    state_.distanceUnit = fresh.distanceUnit;
    state_.timeUnit = fresh.timeUnit;
    PortCallRows all = history;
    all.insert(all.end(), plan.begin(), plan.end());
    PortCallRows shown;
    if (FromStandardUnits(all, units_, shown) != 0) {
        return -2;
    }
    table_.ShowHistoryAndPlan(shown, history.size());
    table_.WriteTotals(shown);
    ShowSummary(all);
    return 0;
}

void CPortCallPanelDlg::SetCorrectionPending(bool pending) {
    aisCorrectionPending_ = pending;
    state_.calculateText =
        Text(pending ? TextId::IDS_PORTCALL_RECOMPUT_FORAIS : TextId::IDS_PORTCALL_COMPUTE);
}

int CPortCallPanelDlg::ShowAisCorrection() {
    if (const int filled = FillForVoyage(-1); filled != 0) {
        return filled;
    }
    // A correction that cannot be split has been given up, and the plain voyage is shown.
    int corrected = 0;
    if (schedule_.GetModAis(voyageId_, corrected) != 0 || corrected <= 0) {
        return -4;
    }
    SetCorrectionPending(true);
    state_.changed = true;
    editedVoyageId_ = voyageId_;
    state_.canSave = true;
    state_.canOpenBook = false;
    view_.ShowState(state_);
    return 0;
}

int CPortCallPanelDlg::ReplanAndSave() {
    PortCallRows before;
    PortCallRows after;
    PortCallRows history;
    PortCallRows plan;
    if (ais_ == nullptr || !table_.ReadRowsSplit(before, after)) {
        return -1;
    }
    if (ToStandardUnits(before, units_, history) != 0 || ToStandardUnits(after, units_, plan) != 0) {
        return -2;
    }
    if (ais_->ReplanFromAis(voyageId_, history, plan) != 0) {
        return -3;
    }
    if (ShowHistoryAndPlan() != 0) {
        return -4;
    }
    const VoyInfo* voyage = store_.FindVoyage(voyageId_);
    if (voyage == nullptr) {
        return -5;
    }
    const PortCallRows rows = voyage->portCalls;
    return schedule_.SaveSchedule(voyageId_, rows, -1) == 0 ? 0 : -6;
}

int CPortCallPanelDlg::CalculateCorrected() {
    const int replanned = [this] {
        const BusyMark busy(view_);
        return ReplanAndSave();
    }();
    if (replanned != 0) {
        return replanned;
    }
    if (!correctionTime_.empty() && correctedVoyageId_ == voyageId_) {
        ais_->AddAisModTime(voyageId_, correctionTime_);
        correctionTime_.clear();
    }
    schedule_.RemoveVoyageObjects(voyageId_);
    schedule_.ShowVoyage(voyageId_);
    SetCorrectionPending(false);
    state_.changed = false;
    state_.canSave = false;
    state_.canOpenBook = true;
    ShowAll();
    if (saved_) {
        saved_(voyageId_);
    }
    return 0;
}

}  // namespace Tarvik::Seaplan

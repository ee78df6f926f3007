// SPDX-License-Identifier: MIT
#include "seaplan/panels/language/Messages.h"
#include "seaplan/panels/portcall/BusyMark.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kNoDistance = 0.0001;

}  // namespace

int CPortCallPanelDlg::Prepare(PortCallRows& rows) const {
    const PortCallRows read = [this] {
        PortCallRows list = table_.ReadRows();
        if (!list.empty() && IsPurposeMissing(list.front().pp)) {
            list.front().pp = kLoad;
        }
        schedule_.ResolvePortIds(list);
        return list;
    }();
    if (read.size() < 2) {
        return -1;
    }
    PortCallRows kept = {read.front()};
    for (std::size_t i = 1; i < read.size(); ++i) {
        const VoyPortCall& before = read[i - 1];
        if (read[i].ppn == before.ppn || ports_.IsSamePlace(before.ppi, read[i].ppi)) {
            continue;
        }
        kept.push_back(read[i]);
        if (IsPurposeMissing(kept.back().pp)) {
            kept.back().pp = kDischarge;
        }
    }
    if (kept.size() < 2) {
        return -2;
    }
    return ToStandardUnits(kept, units_, rows) == 0 ? 0 : -3;
}

int CPortCallPanelDlg::Calculate() {
    PortCallRows rows;
    if (Prepare(rows) != 0) {
        return -1;
    }
    PortCallRows result;
    int hadPortCalls = 0;
    const bool failed = [&] {
        const BusyMark busy(view_);
        return schedule_.CalculateForVoyage(voyageId_, rows, result, hadPortCalls) != 0;
    }();
    if (failed) {
        return -2;
    }
    if (hadPortCalls == 0) {
        if (ShowRows(result) != 0) {
            return -3;
        }
        MarkChanged(true);
        return 0;
    }
    // The result stands in the voyage already, with all that was changed here: nothing is left to ask about.
    MarkChanged(false);
    schedule_.RemoveVoyageObjects(voyageId_);
    view_.Hide();
    const int filled = Fill(1);
    view_.Show();
    if (filled != 0) {
        return -4;
    }
    if (SaveTable(voyageId_, -1) == 0) {
        return 0;
    }
    MarkChanged(true);
    return -5;
}

void CPortCallPanelDlg::OnCalculate() {
    CommitEditors();
    int corrected = 0;
    if (schedule_.GetModAis(voyageId_, corrected) != 0) {
        return;
    }
    if (corrected <= 0) {
        Calculate();
    } else if (CalculateCorrected() != 0) {
        Notice(TextId::IDS_PORTCALL_AISCOMPUTWARN, view_.Handle());
    }
}

int CPortCallPanelDlg::OnRouteChosen() {
    // A closed panel has no table of its own to follow with.
    if (!view_.IsVisible()) {
        return -4;
    }
    CommitEditors();
    PortCallRows rows;
    if (StandardRows(rows) != 0) {
        return -1;
    }
    schedule_.ResolvePortIds(rows);
    PortCallRows result;
    if (schedule_.ScheduleCurrentRoute(rows, result) != 0) {
        return -2;
    }
    if (ShowRows(result) != 0) {
        return -3;
    }
    MarkChanged(true);
    return 0;
}

void CPortCallPanelDlg::OnSave() {
    CommitEditors();
    if (!state_.changed) {
        return;
    }
    int corrected = 0;
    if (schedule_.GetModAis(voyageId_, corrected) != 0) {
        return;
    }
    if (corrected > 0) {
        CalculateCorrected();
    } else {
        SavePlain();
    }
}

int CPortCallPanelDlg::SavePlain() {
    const PortCallRows rows = table_.ReadRows();
    if (rows.size() < 2) {
        return -1;
    }
    bool missing = false;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        missing = missing || rows[i].distance < kNoDistance;
    }
    const VoyInfo* voyage = store_.FindVoyage(voyageId_);
    const bool hasBook = voyage != nullptr && !voyage->positionBook.points.empty();
    if (missing || (!hasBook && !schedule_.HasPendingRoute())) {
        Calculate();
    }
    if (SaveTable(voyageId_, 1) != 0) {
        Notice(TextId::IDS_PORTCALL_SAVEEXCEPTION, view_.Handle());
        return -2;
    }
    state_.changed = false;
    state_.canSave = false;
    state_.canOpenBook = true;
    view_.ShowState(state_);
    return 0;
}

int CPortCallPanelDlg::SaveTable(const std::string& vi, int drawMode) {
    if (vi.empty()) {
        return -1;
    }
    PortCallRows rows;
    if (StandardRows(rows) != 0) {
        return -2;
    }
    schedule_.ResolvePortIds(rows);
    const bool failed = [&] {
        const BusyMark busy(view_);
        return schedule_.SaveSchedule(vi, rows, drawMode) != 0;
    }();
    if (failed) {
        return -3;
    }
    if (saved_) {
        saved_(vi);
    }
    return 0;
}

void CPortCallPanelDlg::OnClear() {
    CommitEditors();
    view_.Hide();
    view_.SetEnabled(false);
    const bool empty = OkOrCancel(TextId::IDS_PORTCALL_CLEARFORBLANK, view_.Handle());
    view_.SetEnabled(true);
    if (empty) {
        state_.averageSpeed.clear();
        state_.totalDistance.clear();
        state_.totalTime.clear();
        table_.ClearCells();
        schedule_.RouteChanged();
        units_ = UnitSet();
        const PortCallState fresh;
        state_.speedUnit = fresh.speedUnit;
        state_.distanceUnit = fresh.distanceUnit;
        state_.timeUnit = fresh.timeUnit;
        state_.changed = false;
        state_.canSave = false;
        state_.canOpenBook = false;
        state_.canCalculate = false;
        schedule_.ClearChart();
        ShowAll();
        view_.BringRowIntoView(0);
    }
    view_.Show();
}

void CPortCallPanelDlg::OnClose() {
    view_.SetEnabled(false);
    CommitEditors();
    if (state_.changed) {
        if (!Question(TextId::IDS_PORTCALL_CLOSESAVE, view_.Handle())) {
            view_.SetEnabled(true);
            return;
        }
        schedule_.DiscardPortCalls(voyageId_);
    }
    MarkChanged(false);
    view_.Hide();
    CommitEditors();
    schedule_.ClearChart();
    view_.SetEnabled(true);
}

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/language/Messages.h"
#include "seaplan/panels/portcall/BusyMark.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kNoVoyageText = "数据状态异常，请确认是否已登陆或者掉线？";
constexpr const char* kHelpTopic = "func034";

}  // namespace

CPortCallPanelDlg::CPortCallPanelDlg(VoyageStore& store, ScheduleCommands& schedule, PortDirectory& ports,
                                     PortCallView& view)
    : store_(store), schedule_(schedule), ports_(ports), view_(view) {
    ResetState();
}

void CPortCallPanelDlg::RegisterHost() {
    switchLanguage_ =
        Interface::Subscribe(Interface::Bus::SwitchLanguage, this, &CPortCallPanelDlg::ApplyLanguage);
}

void CPortCallPanelDlg::ApplyLanguage() {
    state_.caption = Text(TextId::IDS_PORTCALL_TITLE);
    SetCorrectionPending(aisCorrectionPending_);
    view_.ApplyTexts();
    ShowAll();
}

void CPortCallPanelDlg::ShowTable() {
    table_.MarkUnknownPorts([this](const std::string& name) { return ports_.Knows(name); });
    view_.ShowTable(table_);
}

void CPortCallPanelDlg::ShowAll() {
    ShowTable();
    view_.ShowState(state_);
}

void CPortCallPanelDlg::ResetState() {
    table_.Reset();
    units_ = UnitSet();
    state_ = PortCallState();
    state_.caption = Text(TextId::IDS_PORTCALL_TITLE);
    SetCorrectionPending(false);
    const std::string* zone = Interface::Call(Interface::Bus::CurrentTimeZone);
    if (zone != nullptr) {
        state_.zone = *zone;
    }
}

void CPortCallPanelDlg::Reset() {
    AskUnsaved();
    voyageId_ = nextVoyageId_;
    ClearState();
}

void CPortCallPanelDlg::ClearState() {
    HideEditors();
    ResetState();
    schedule_.ForgetPortList();
    ShowAll();
    view_.BringRowIntoView(0);
    schedule_.ClearChart();
}

void CPortCallPanelDlg::AskUnsaved() {
    if (!state_.changed) {
        return;
    }
    view_.SetEnabled(false);
    const bool save = Question(TextId::IDS_PORTCALL_SAVENEXT, view_.Handle());
    view_.SetEnabled(true);
    // The rows in the table are what is saved, so no cell may have changed since.
    if (save) {
        SaveTable(editedVoyageId_, -1);
    }
    state_.changed = false;
}

int CPortCallPanelDlg::FillForVoyage(int mode) {
    int corrected = 0;
    if (!nextVoyageId_.empty() && schedule_.GetModAis(nextVoyageId_, corrected) != 0) {
        return -1;
    }
    if (corrected > 0 && ais_ == nullptr) {
        return -2;
    }
    if (corrected <= 0) {
        view_.Hide();
    }
    AskUnsaved();
    voyageId_ = nextVoyageId_;
    if (corrected > 0) {
        if (FillCorrected() == 0) {
            return 0;
        }
        // Without a position row the voyage is a plain one again.
        ais_->ClearAisMod(voyageId_);
    }
    return Fill(mode);
}

int CPortCallPanelDlg::Fill(int mode) {
    ClearState();
    if (voyageId_.empty()) {
        NoticeText(kNoVoyageText, view_.Handle());
        return -3;
    }
    return Load(mode);
}

int CPortCallPanelDlg::Load(int mode) {
    PortCallRows loaded;
    const bool failed = [&] {
        const BusyMark busy(view_);
        return schedule_.LoadSchedule(voyageId_, loaded, mode) != 0;
    }();
    if (failed) {
        ClearState();
        return 0;
    }
    PortCallRows rows;
    if (RecomputeSchedule(loaded, rows) != 0 || ShowRows(rows) != 0) {
        return -4;
    }
    state_.changed = false;
    state_.canClear = true;
    state_.canOpenBook = true;
    state_.canCalculate = true;
    ShowAll();
    return 0;
}

void CPortCallPanelDlg::ShowBesideTree() {
    view_.PlaceBesideTree();
    view_.Show();
}

void CPortCallPanelDlg::HideAfterLogout() {
    HideEditors();
    view_.Hide();
}

int CPortCallPanelDlg::ShowRows(const PortCallRows& standard) {
    PortCallRows shown;
    if (standard.size() < 2 || FromStandardUnits(standard, units_, shown) != 0) {
        return -1;
    }
    table_.WriteRows(shown, IsCorrected());
    table_.WriteTotals(shown);
    ShowSummary(standard);
    ShowAll();
    return 0;
}

void CPortCallPanelDlg::ShowSummary(const PortCallRows& standard) {
    ScheduleSummary summary;
    if (!SummaryOf(standard, summary)) {
        return;
    }
    SummaryTexts texts;
    if (!SummaryToTexts(summary, units_, texts)) {
        return;
    }
    state_.averageSpeed = texts.averageSpeed;
    state_.totalTime = texts.totalTime;
    state_.totalDistance = texts.totalDistance;
}

int CPortCallPanelDlg::StandardRows(PortCallRows& out) const {
    return ToStandardUnits(table_.ReadRows(), units_, out) == 0 ? 0 : -1;
}

int CPortCallPanelDlg::Recompute(const PortCallRows& standard) {
    PortCallRows rows;
    if (RecomputeSchedule(standard, rows) != 0 || ShowRows(rows) != 0) {
        return -1;
    }
    MarkChanged(true);
    return 0;
}

int CPortCallPanelDlg::PlaceCount() const {
    PortCallRows rows = table_.ReadAllRows();
    if (rows.empty()) {
        return 0;
    }
    schedule_.ResolvePortIds(rows);
    int count = 1;
    const VoyPortCall* last = &rows.front();
    for (const VoyPortCall& row : rows) {
        if (row.ppn == last->ppn || ports_.IsSamePlace(last->ppi, row.ppi)) {
            continue;
        }
        ++count;
        last = &row;
    }
    return count;
}

void CPortCallPanelDlg::UpdateCalculateButton() {
    state_.canCalculate = PlaceCount() >= 2;
    view_.ShowState(state_);
}

void CPortCallPanelDlg::MarkChanged(bool on) {
    if (on) {
        UpdateCalculateButton();
        // A table of one place cannot be saved.
        if (!state_.canCalculate) {
            return;
        }
        editedVoyageId_ = voyageId_;
    }
    state_.changed = on;
    state_.canSave = on;
    view_.ShowState(state_);
}

int CPortCallPanelDlg::ChangeUnit(UnitKind kind, const std::string& unit) {
    std::string& name = UnitOf(units_, kind);
    std::string& label = kind == UnitKind::Speed      ? state_.speedUnit
                         : kind == UnitKind::Distance ? state_.distanceUnit
                                                      : state_.timeUnit;
    const std::string from = name;
    const PortCallRows rows = table_.ReadAllRows();
    name = unit;
    label = UnitLabel(units_, kind);
    view_.ShowState(state_);
    if (state_.averageSpeed.empty() || state_.totalDistance.empty() || state_.totalTime.empty()) {
        return -1;
    }
    PortCallRows converted;
    if (ConvertUnitValue(rows, from, unit, converted) != 0) {
        return -2;
    }
    table_.WriteRows(converted, IsCorrected());
    table_.WriteTotals(converted);
    PortCallRows standard;
    if (ToStandardUnits(converted, units_, standard) == 0) {
        ShowSummary(standard);
    }
    ShowAll();
    return 0;
}

void CPortCallPanelDlg::OnHelp() {
    view_.RequestHelp(kHelpTopic);
}

}  // namespace Tarvik::Seaplan

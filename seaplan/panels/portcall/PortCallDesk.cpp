// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PortCallDesk.h"

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/editors/ChosenRows.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/texts/PortCallTexts.h"

namespace Tarvik::Seaplan {

PortCallDesk::Report::~Report() {
    if (--desk_.reports_ == 0) {
        desk_.history_.Take();
        desk_.Show();
    }
}

PortCallDesk::Busy::Busy(PortCallDesk& desk) : view_(desk.View()) {
    desk.Show();
    view_.SetBusy(true);
}

void PortCallDesk::Show() {
    sheet_.table.MarkPorts([this](const std::string& name) { return p_.ports.Knows(name); },
                           sheet_.stored.RoutedPorts(sheet_.table));
    sheet_.state.staleSummary =
        !sheet_.state.summary.averageSpeed.empty() && !sheet_.stored.IsRouteOf(sheet_.table);
    sheet_.state.voyage = p_.voyages.NameOf(sheet_.voyageId);
    const bool otherTable = !shown_ || sheet_.table != shown_->table;
    const bool otherState = !shown_ || sheet_.state != shown_->state;
    if (otherTable) {
        p_.view.ShowTable(sheet_.table);
    }
    if (otherState) {
        p_.view.SetCaption(sheet_.state.caption, sheet_.state.changed);
        p_.view.ShowState(sheet_.state);
    }
    const UndoTexts edits = history_.Texts();
    if (!shown_ || edits != shown_->edits) {
        p_.view.ShowEdits(edits);
    }
    shown_ = Shown{sheet_.table, sheet_.state, edits};
    if (bookOpen_) {
        // A box that was up meanwhile has given the window back.
        p_.view.SetEnabled(false);
    }
    if (follower_ && (otherTable || otherState)) {
        follower_();
    }
}

void PortCallDesk::SetBookOpen(bool open) {
    bookOpen_ = open;
    p_.view.SetEnabled(!open);
}

void PortCallDesk::TellSaved(const std::string& vi) const {
    if (saved_) {
        saved_(vi);
    }
}

void PortCallDesk::ResetSheet() {
    sheet_.Reset();
    ShowTexts();
    const std::string* asked = Interface::Call(Interface::Bus::CurrentTimeZone);
    if (!zone_.empty() || asked != nullptr) {
        sheet_.state.zone = zone_.empty() ? *asked : zone_;
    }
}

void PortCallDesk::ShowTexts() {
    sheet_.state.caption =
        Text(sheet_.state.distanceTable ? TextIds::IDS_PORTCALL_DISTTABTITLE : TextIds::IDS_PORTCALL_TITLE);
    sheet_.state.note = NoteText(sheet_.note);
    SetCorrectionPending(sheet_.aisCorrectionPending);
}

void PortCallDesk::SetCorrectionPending(bool pending) {
    sheet_.aisCorrectionPending = pending;
    sheet_.state.calculateText =
        Text(pending ? TextIds::IDS_PORTCALL_RECOMPUT_FORAIS : TextIds::IDS_PORTCALL_COMPUTE);
}

bool PortCallDesk::IsCorrected() const {
    int count = 0;
    return p_.voyages.GetModAis(sheet_.voyageId, count) == 0 && count > 0;
}

int PortCallDesk::ShowChangedRows(const PortCallRows& standard) {
    if (sheet_.ShowRows(standard, IsCorrected()) != 0) {
        return -1;
    }
    sheet_.MarkChanged(p_.ports);
    return 0;
}

int PortCallDesk::Recompute(const PortCallRows& standard) {
    PortCallRows rows;
    if (RecomputeSchedule(standard, rows) != 0) {
        return -1;
    }
    KeepPortIds(standard, rows);
    return ShowChangedRows(rows);
}

void PortCallDesk::SetCauseOfFault() {
    sheet_.cause = CauseText(p_.voyages.LastFault(), sheet_.table);
}

std::string PortCallDesk::LossWords() const {
    return LossText(sheet_, p_.voyages.NameOf(sheet_.voyageId));
}

std::vector<int> PortCallDesk::ChosenRows(int front) const {
    return RowsInOrder(p_.view.ChosenRows(), front, [this](int row) { return sheet_.table.IsNumbered(row); });
}

void PortCallDesk::SetNote(PortCallNote note) {
    sheet_.note = std::move(note);
    sheet_.state.note = NoteText(sheet_.note);
}

Boxes& PortCallDesk::ToPerson() {
    Show();
    return boxes_;
}

void ShowBesideTree(const PortCallDesk& desk) {
    desk.View().MoveTo(BesideTree(desk.Given().treePlace()));
    desk.View().Show();
    desk.View().SelectCell(0, ColPort);
}

}  // namespace Tarvik::Seaplan

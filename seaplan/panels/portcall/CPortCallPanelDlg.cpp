// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"

#include <utility>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/CorrectedSchedule.h"
#include "seaplan/panels/portcall/DistanceTable.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/portcall/VoyageFilling.h"

namespace Tarvik::Seaplan {

/// The panel's parts by task, over the desk that they share.
struct CPortCallPanelDlg::Inner {
    explicit Inner(const PortCallParts& parts)
        : desk(parts),
          editing(desk),
          corrected(desk),
          filling(desk, editing, corrected, [this] { return commands.SaveBeforeLeaving(); }),
          commands(desk, editing, corrected, filling),
          rows(desk, editing),
          distances(desk, editing, filling, commands) {}

    PortCallDesk desk;
    CellEditing editing;
    CorrectedSchedule corrected;
    VoyageFilling filling;
    PanelCommands commands;
    RowCommands rows;
    DistanceTable distances;
    std::function<void()> voyageSet;
};

CPortCallPanelDlg::CPortCallPanelDlg(const PortCallParts& parts) : in_(std::make_unique<Inner>(parts)) {
    in_->desk.ResetSheet();
}

CPortCallPanelDlg::~CPortCallPanelDlg() = default;

void CPortCallPanelDlg::SetVoyage(const std::string& vi) {
    in_->filling.SetVoyage(vi);
    if (in_->voyageSet) {
        in_->voyageSet();
    }
}

void CPortCallPanelDlg::ApplyLanguage() {
    in_->desk.ShowTexts();
    const PortCallState& state = in_->desk.Sheet().state;
    in_->desk.View().SetCaption(state.caption, state.changed);
    in_->desk.View().ApplyTexts();
    in_->desk.Show();
}

void CPortCallPanelDlg::ShowBesideTree() {
    Seaplan::ShowBesideTree(in_->desk);
}

void CPortCallPanelDlg::PutBack(const PortCallSheet& sheet) {
    const PortCallDesk::Report report(in_->desk);
    in_->editing.HideEditors();
    in_->desk.Sheet() = sheet;
}

void CPortCallPanelDlg::HideAfterLogout() {
    in_->filling.Forget();
    in_->desk.View().Hide();
}

void CPortCallPanelDlg::SetSavedListener(std::function<void(const std::string&)> listener) {
    in_->desk.SetSavedListener(std::move(listener));
}

void CPortCallPanelDlg::SetVoyageListener(std::function<void()> listener) {
    in_->voyageSet = std::move(listener);
}

const std::string& CPortCallPanelDlg::NextVoyage() const {
    return in_->filling.NextVoyage();
}

int CPortCallPanelDlg::SaveFigures(const BunkerFigures& figures) {
    return in_->desk.Voyages().SaveFigures(NextVoyage(), figures);
}

int CPortCallPanelDlg::FillForVoyage(int mode) {
    return in_->filling.Open(DrawModeOf(mode).value_or(DrawMode::Nothing));
}

void CPortCallPanelDlg::Reset() {
    in_->filling.Reset();
}

bool CPortCallPanelDlg::AskToLeave() {
    return in_->filling.AskToLeave();
}

int CPortCallPanelDlg::ShowAisCorrection() {
    return in_->filling.ShowCorrection();
}

void CPortCallPanelDlg::SetCorrectionTime(const std::string& time) {
    in_->filling.SetCorrectionTime(time);
}

int CPortCallPanelDlg::SavePositionBook(const PosBookData& book) {
    return in_->commands.SavePositionBook(book);
}

void CPortCallPanelDlg::SetBookOpen(bool open) {
    in_->desk.SetBookOpen(open);
}

BookOrigin CPortCallPanelDlg::Origin() const {
    return {in_->commands.BookVoyage(), in_->desk.Sheet().state.zone};
}

void CPortCallPanelDlg::OnTimeZone(const std::string& zone) {
    in_->filling.OnTimeZone(zone);
}

int CPortCallPanelDlg::OpenDistanceTable() {
    return in_->distances.Open();
}

int CPortCallPanelDlg::AddPortByName(const std::string& name) {
    return in_->distances.AddPort(name);
}

DistanceTable& CPortCallPanelDlg::Distances() {
    return in_->distances;
}

CellEditing& CPortCallPanelDlg::Cells() {
    return in_->editing;
}

PanelCommands& CPortCallPanelDlg::Commands() {
    return in_->commands;
}

RowCommands& CPortCallPanelDlg::Rows() {
    return in_->rows;
}

const PortCallSheet& CPortCallPanelDlg::Sheet() const {
    return in_->desk.Sheet();
}

}  // namespace Tarvik::Seaplan

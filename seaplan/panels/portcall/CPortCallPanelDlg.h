// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>

#include "seaplan/panels/portcall/DistanceTable.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

namespace Tarvik::Seaplan {

/// The table in which a voyage is planned: cells are edited in place, and each edit that has figures
/// recomputes the schedule. This class ties the panel's parts together; what a person does in the window goes
/// to the part that it concerns. Results are 0 or the negative number of the failed step; only the messages
/// told at a command are ever shown.
class CPortCallPanelDlg final : public Core::TObject, public PortCallOpener, public BookOwner {
  public:
    explicit CPortCallPanelDlg(PortCallDesk::Parts parts);

    /// Called with the id of a voyage after its schedule was saved.
    void SetSavedListener(std::function<void(const std::string&)> listener) {
        desk_.SetSavedListener(std::move(listener));
    }

    /// The voyage of the next FillForVoyage or Reset; the one on show stays until then.
    void SetVoyage(const std::string& vi) override;
    /// Called when SetVoyage has set another voyage or the same one again.
    void SetVoyageListener(std::function<void()> listener) { voyageSet_ = std::move(listener); }
    /// The voyage of the last SetVoyage.
    const std::string& NextVoyage() const { return filling_.NextVoyage(); }
    /// Saves consumption figures for that voyage. 0 or negative.
    int SaveFigures(const BunkerFigures& figures) {
        return desk_.Voyages().SaveFigures(NextVoyage(), figures);
    }
    int FillForVoyage(int mode) override { return filling_.Open(mode); }
    void Reset() override { filling_.Reset(); }
    void ShowBesideTree() override;
    bool AskToLeave() override { return filling_.AskToLeave(); }
    int ShowAisCorrection() override { return filling_.ShowCorrection(); }
    void SetCorrectionTime(const std::string& time) override { filling_.SetCorrectionTime(time); }
    int SavePositionBook(const PosBookData& book) override { return commands_.SavePositionBook(book); }
    void SetBookOpen(bool open) override { desk_.SetBookOpen(open); }
    BookOrigin Origin() const override { return {commands_.BookVoyage(), desk_.Sheet().state.zone}; }
    void HideAfterLogout();
    /// The user's zone is another one now: the table is loaded anew, after the question about its changes.
    void OnTimeZone(const std::string& zone) { filling_.OnTimeZone(zone); }
    void ApplyLanguage();

    /// Begins a port distance table in place of what is on show, and shows the panel: DistanceTable::Open.
    int OpenDistanceTable() { return distances_.Open(); }
    /// Puts a port into the distance table: DistanceTable::AddPort.
    int AddPortByName(const std::string& name) { return distances_.AddPort(name); }
    /// The panel as the port distance table.
    DistanceTable& Distances() { return distances_; }

    /// What opens over the cells.
    CellEditing& Cells() { return editing_; }
    /// The buttons around the table.
    PanelCommands& Commands() { return commands_; }
    /// The images of a row and the keys of the table.
    RowCommands& Rows() { return rows_; }
    /// All that the window shows, and that the panel would lose.
    const PortCallSheet& Sheet() const { return desk_.Sheet(); }
    /// Shows an earlier copy of that again; what is being typed is dropped.
    void PutBack(const PortCallSheet& sheet);

  private:
    PortCallDesk desk_;
    CellEditing editing_;
    CorrectedSchedule corrected_;
    VoyageFilling filling_;
    PanelCommands commands_;
    RowCommands rows_;
    DistanceTable distances_;
    std::function<void()> voyageSet_;
};

}  // namespace Tarvik::Seaplan

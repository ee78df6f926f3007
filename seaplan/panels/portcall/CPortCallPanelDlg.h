// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include <tarvik/core/TObject.h>

#include "seaplan/data/VoyInfo.h"
#include "seaplan/panels/book/BookOwner.h"
#include "seaplan/panels/tree/PortCallOpener.h"

namespace Tarvik::Seaplan {

class CellEditing;
class DistanceTable;
class PanelCommands;
struct PortCallParts;
class PortCallSheet;
class RowCommands;

/// The table in which a voyage is planned: cells are edited in place, and each edit that has figures
/// recomputes the schedule. This class ties the panel's parts together; what a person does in the window goes
/// to the part that it concerns. Results are 0 or the negative number of the failed step; only the messages
/// told at a command are ever shown.
class CPortCallPanelDlg final : public Core::TObject, public PortCallOpener, public BookOwner {
  public:
    explicit CPortCallPanelDlg(const PortCallParts& parts);
    ~CPortCallPanelDlg() override;

    /// Called with the id of a voyage after its schedule was saved.
    void SetSavedListener(std::function<void(const std::string&)> listener);

    /// The voyage of the next FillForVoyage or Reset; the one on show stays until then.
    void SetVoyage(const std::string& vi) override;
    /// Called when SetVoyage has set another voyage or the same one again.
    void SetVoyageListener(std::function<void()> listener);
    /// The voyage of the last SetVoyage.
    const std::string& NextVoyage() const;
    /// Saves consumption figures for that voyage. 0 or negative.
    int SaveFigures(const BunkerFigures& figures);
    /// Shows it; `mode` as VoyController::LoadSchedule draws, a number that is none draws nothing:
    /// VoyageFilling::Open.
    int FillForVoyage(int mode) override;
    void Reset() override;
    void ShowBesideTree() override;
    bool AskToLeave() override;
    int ShowAisCorrection() override;
    void SetCorrectionTime(const std::string& time) override;
    int SavePositionBook(const PosBookData& book) override;
    void SetBookOpen(bool open) override;
    BookOrigin Origin() const override;
    void HideAfterLogout();
    /// The user's zone is another one now: the table is loaded anew, after the question about its changes.
    void OnTimeZone(const std::string& zone);
    void ApplyLanguage();

    /// Begins a port distance table in place of what is on show, and shows the panel: DistanceTable::Open.
    int OpenDistanceTable();
    /// Puts a port into the distance table: DistanceTable::AddPort.
    int AddPortByName(const std::string& name);
    /// The panel as the port distance table.
    DistanceTable& Distances();

    /// What opens over the cells.
    CellEditing& Cells();
    /// The buttons around the table.
    PanelCommands& Commands();
    /// The images of a row and the keys of the table.
    RowCommands& Rows();
    /// All that the window shows, and that the panel would lose.
    const PortCallSheet& Sheet() const;
    /// Shows an earlier copy of that again; what is being typed is dropped.
    void PutBack(const PortCallSheet& sheet);

  private:
    struct Inner;

    std::unique_ptr<Inner> in_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <tarvik/bus/Binding.h>
#include <tarvik/core/TObject.h>

#include "seaplan/calculation/Units.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/panels/TextKeys.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/panels/services/AisCommands.h"
#include "seaplan/panels/services/ScheduleCommands.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

namespace Tarvik::Seaplan {

/// The table in which a voyage is planned. Cells are edited in place; each edit that has figures recomputes
/// the schedule. Results are 0 or the negative number of the failed step; only the messages told at a command
/// are ever shown.
class CPortCallPanelDlg final : public Core::TObject, public PortCallOpener {
  public:
    CPortCallPanelDlg(VoyageStore& store, ScheduleCommands& schedule, PortDirectory& ports,
                      PortCallView& view);

    /// Follows the host's change of language.
    void RegisterHost();
    /// Called with the id of a voyage after its schedule was saved.
    void SetSavedListener(std::function<void(const std::string&)> listener) { saved_ = std::move(listener); }

    /// The voyage of the next FillForVoyage or Reset; the one on show stays until then.
    void SetVoyage(const std::string& vi) override { nextVoyageId_ = vi; }
    int FillForVoyage(int mode) override;
    void Reset() override;
    void ShowBesideTree() override;
    int ShowAisCorrection() override;
    void SetCorrectionTime(const std::string& time) override {
        correctionTime_ = time;
        correctedVoyageId_ = nextVoyageId_;
    }
    /// Without these a corrected voyage cannot be opened.
    void SetAisCommands(AisCommands* commands) { ais_ = commands; }
    void HideAfterLogout();

    // Cells
    void OnCellClicked(int row, int column);
    void OnEditorKey(CellEditor editor, EditorKey key);
    void OnEditorFocusLost(CellEditor editor);
    void OnPortTyped(const std::string& text);
    /// Backspace in the port editor, before the text changes.
    void OnPortBackspace();
    /// A list of matches moved to a name; told while the field itself has the keyboard it changes nothing.
    void OnMatchMoved(const std::string& name, bool fieldHasFocus);
    /// The name last moved to was chosen.
    void OnMatchChosen();
    void OnPurposeChosen(int index);
    /// The picker's time, "%Y-%m-%d %H:%M:%S".
    void OnTimeChosen(const std::string& text);
    /// A click on "itemMoveUp", "itemMovedown", "itemdel" or "itemRemark" of a row.
    int OnItemImage(int row, const std::string& name);
    /// The table was scrolled or a press fell outside it.
    void OnTableLeft();
    void CommitEditors();

    // Commands
    void OnCalculate();
    /// The pending route was changed on the chart: its distances and times go into the table that is
    /// open. -1 no rows, -2 a route of other ports, -3 the rows do not fit, -4 no table is open.
    int OnRouteChosen();
    void OnSave();
    void OnClear();
    void OnClose();
    void OnHelp();
    int ChangeUnit(UnitKind kind, const std::string& unit);
    void ApplyLanguage();

    const PortCallTable& Table() const { return table_; }
    const PortCallState& State() const { return state_; }

  private:
    void AskUnsaved();
    void ResetState();
    void ClearState();
    int Fill(int mode);
    int Load(int mode);
    int Calculate();
    int Prepare(PortCallRows& rows) const;
    int SavePlain();
    int SaveTable(const std::string& vi, int drawMode);
    int ShowRows(const PortCallRows& standard);
    void ShowSummary(const PortCallRows& standard);
    int Recompute(const PortCallRows& standard);
    int StandardRows(PortCallRows& out) const;
    int PlaceCount() const;
    void UpdateCalculateButton();
    void MarkChanged(bool on);
    void Commit(CellEditor editor);
    bool Untouched(CellEditor editor, const std::string& text) const;
    void CommitPort(const std::string& typed);
    void CommitSpeed(const std::string& typed);
    void CommitWeather(const std::string& typed);
    void EditFigure(int row, int column, const std::string& text);
    void OpenEditor(CellEditor editor, int row);
    void OpenNextPort(int row);
    void OpenPicker(int row, int column);
    void MoveOn(CellEditor editor, int row);
    void ClosePopups();
    void HideEditors();
    void HideMatches();
    void Escape(CellEditor editor);
    void ShowTable();
    void EditEta(int row, const std::string& text);
    void EditFirstEta(const std::string& text);
    void EditEtd(int row, const std::string& text);
    bool IsCorrected() const;
    int FillCorrected();
    int ShowHistoryAndPlan();
    void SetCorrectionPending(bool pending);
    int ReplanAndSave();
    int CalculateCorrected();
    int ApplyRowOperation(int result, const PortCallRows& rows);
    void ShowAll();

    VoyageStore& store_;
    ScheduleCommands& schedule_;
    AisCommands* ais_ = nullptr;
    PortDirectory& ports_;
    PortCallView& view_;
    std::function<void(const std::string&)> saved_;

    PortCallTable table_;
    PortCallState state_;
    UnitSet units_;
    std::string voyageId_;
    std::string nextVoyageId_;
    std::string editedVoyageId_;
    int editorRow_[3] = {-1, -1, -1};
    std::string openedText_[3];  ///< what each editor showed when it opened
    int purposeRow_ = -1;
    int dateRow_ = -1;
    int dateColumn_ = 0;                 ///< 0 ETA, 1 ETD
    bool aisCorrectionPending_ = false;  ///< a fresh correction is shown and not saved
    std::string correctionTime_;         ///< time of that correction, in the user's zone
    std::string correctedVoyageId_;      ///< voyage that it belongs to
    bool notifyTyping_ = true;
    bool textRemains_ = false;     ///< Backspace was pressed with text in the port editor
    bool matchesShown_ = false;    ///< the panel's own list of matches
    void* matchWindow_ = nullptr;  ///< a service's window of matches
    std::string lastMatch_;        ///< name that a list of matches moved to
    Interface::Binding switchLanguage_;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/calculation/Units.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/panels/TextKeys.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/panels/portcall/PortDictionary.h"
#include "seaplan/panels/services/ScheduleCommands.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>

#include <functional>
#include <string>

namespace Tarvik::Seaplan {

/// The table in which a voyage is planned. Cells are edited in place; each edit that has figures recomputes
/// the schedule. Results are 0 or the negative number of the failed step; only the messages told at a command
/// are ever shown.
class CPortCallPanelDlg final : public Core::TObject, public PortCallOpener {
  public:
    CPortCallPanelDlg(VoyageStore& store, ScheduleCommands& schedule, PortDictionary ports,
                      PortCallView& view);
    ~CPortCallPanelDlg() override;

    /// Follows the host's change of language.
    void RegisterHost();
    /// Called with the id of a voyage after its schedule was saved.
    void SetSavedListener(std::function<void(const std::string&)> listener) { saved_ = std::move(listener); }

    void SetVoyage(const std::string& vi) override { voyageId_ = vi; }
    int FillForVoyage(int mode) override;
    void Reset() override;
    void ShowBesideTree() override;
    void HideAfterLogout();

    // Cells
    void OnCellClicked(int row, int column);
    void OnEditorKey(CellEditor editor, EditorKey key);
    void OnEditorFocusLost(CellEditor editor);
    void OnPortTyped(const std::string& text);
    void OnMatchChosen(const std::string& name);
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
    void OnSave();
    void OnClear();
    void OnClose();
    void OnHelp();
    int ChangeUnit(UnitKind kind, const std::string& unit);
    void ApplyLanguage();

    const PortCallTable& Table() const { return table_; }
    const PortCallState& State() const { return state_; }

  private:
    void* onSwitchLanguage(void* input);
    void askUnsaved();
    void resetState();
    int calculate();
    int prepare(PortCallRows& rows) const;
    int savePlain();
    int saveTable(const std::string& vi, int drawMode);
    int showRows(const PortCallRows& standard);
    void showSummary(const PortCallRows& standard);
    int recompute(const PortCallRows& standard);
    int standardRows(PortCallRows& out) const;
    int placeCount() const;
    void updateCalculateButton();
    void markChanged(bool on);
    void commit(CellEditor editor);
    void commitPort(const std::string& typed);
    void commitSpeed(const std::string& typed);
    void commitWeather(const std::string& typed);
    void editFigure(int row, int column, const std::string& text);
    void openEditor(CellEditor editor, int row);
    void openNextPort(int row);
    void openPicker(int row, int column);
    void moveOn(CellEditor editor, int row);
    void closePopups();
    void editEta(int row, const std::string& text);
    void editFirstEta(const std::string& text);
    void editEtd(int row, const std::string& text);
    int applyRowOperation(int result, const PortCallRows& rows);
    void showAll();

    VoyageStore& store_;
    ScheduleCommands& schedule_;
    PortDictionary ports_;
    PortCallView& view_;
    std::function<void(const std::string&)> saved_;

    PortCallTable table_;
    PortCallState state_;
    UnitSet units_;
    std::string voyageId_;
    std::string editedVoyageId_;
    int editorRow_[3] = {-1, -1, -1};
    int purposeRow_ = -1;
    int dateRow_ = -1;
    int dateColumn_ = 0;  ///< 0 ETA, 1 ETD
    bool notifyTyping_ = true;
    bool registered_ = false;
    Core::TEvent switchLanguage_;
};

}  // namespace Tarvik::Seaplan

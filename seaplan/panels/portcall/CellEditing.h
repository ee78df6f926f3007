// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/datetime/CTrvCalDlg.h"
#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/editors/ListBox.h"
#include "seaplan/panels/editors/TextField.h"
#include "seaplan/panels/portcall/CellEdits.h"
#include "seaplan/panels/portcall/PortMatching.h"

namespace Tarvik::Seaplan {

class PortCallDesk;

/// The editors, lists and the calendar over the cells: what opens where, which key leads where, and what is
/// taken when one closes. At most one editor of a kind is open.
class CellEditing {
  public:
    explicit CellEditing(PortCallDesk& desk);

    /// A press on a cell: what is open is taken, and what the column has opens. A text `typed` on it takes
    /// the place of the cell's in the editor, goes to the purpose that begins so, or begins a date in the
    /// calendar; an empty one is still being composed, a blank opens nothing. False where nothing opens.
    bool OnCellClicked(int row, int column, const std::string* typed = nullptr);
    /// The text in an editor changed by the person's hand.
    void OnTyped(CellEditor editor, const std::string& text);
    /// A key in an editor; false when it means nothing there and the field takes it.
    bool OnEditorKey(CellEditor editor, KeyPress press);
    /// A key that begins a command is about to be looked up: the text just typed may make it possible.
    void OnCommandKey(KeyPress press);
    void OnEditorFocusLost(CellEditor editor);
    /// A window of matches moved to a name, or the name last moved to was chosen there.
    void OnMatchMoved(const std::string& name, bool fieldHasFocus);
    void OnMatchChosen();
    /// A press on a match of the panel's own list.
    void OnMatchPressed(int index);
    /// A key in the list of purposes; false when it means nothing there.
    bool OnPurposeKey(KeyPress press, int current);
    /// A purpose for its row, or for all that are chosen.
    void OnPurposeChosen(int index, bool inChosen = false);
    /// The picker's time, `kTimeFormat`.
    void OnTimeChosen(const std::string& text);

    /// Takes what is typed and closes all: the table was scrolled, a press fell outside it, a command begins.
    void CommitEditors();
    /// A press fell outside the table and what is open over it.
    void OnPressedOutside();
    /// Closes all and drops what is typed.
    void HideEditors();
    /// The date over a cell of the times.
    CTrvDateTimeCtrl& Picker() { return picker_; }

  private:
    TextField& Box(CellEditor editor);
    void Open(CellEditor editor, int row);
    void OpenNextPort(int row);
    void OpenPurposes(int row, int current);
    void OpenPicker(int row, int column);
    void Commit(CellEditor editor);
    void Hide(CellEditor editor);
    void Finish(CellEditor editor, KeyPress press);
    void Escape(CellEditor editor);
    void ClosePopups();

    PortCallDesk& desk_;
    CellEdits edits_;
    TextField port_;
    TextField speed_;
    TextField weather_;
    PortMatching matching_;
    ListBox purposes_;
    CTrvDateTimeCtrl picker_;
    int dateRow_ = -1;
    int dateColumn_ = ColEta;
};

}  // namespace Tarvik::Seaplan

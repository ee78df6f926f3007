// SPDX-License-Identifier: MIT
/// What the window reports of the editors, and where each key leads.
#include <tarvik/interface/PlanTerms.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/CellsView.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

namespace {

/// F9 calculates, Ctrl+S saves.
bool StartsCommand(KeyPress press) {
    return press.key == Key::F9 || (press.key == Key::S && press.ctrl);
}

/// Takes what is typed and puts the keyboard on another cell, whose editor opens when something is typed
/// there. False without such a row.
bool LeaveFor(CellEditing& editing, PortCallDesk& desk, int row, int column) {
    PortCallTable& table = desk.Sheet().table;
    if (!table.IsNumbered(row)) {
        return false;
    }
    editing.CommitEditors();
    table.GrowIfLast(row);
    desk.Show();
    desk.View().SelectCell(row, column);
    return true;
}

}  // namespace

void CellEditing::OnTyped(CellEditor editor, const std::string& text) {
    Box(editor).SetText(text);
    if (editor == CellEditor::Port) {
        matching_.Ask();
    }
}

bool CellEditing::OnEditorKey(CellEditor editor, KeyPress press) {
    const PortCallDesk::Report report(desk_);
    switch (press.key) {
        case Key::Escape:
            Escape(editor);
            return true;
        case Key::Up:
        case Key::Down: {
            // Through the matches that are shown; a match window has keys of its own.
            const int step = press.key == Key::Down ? 1 : -1;
            return editor == CellEditor::Port && matching_.IsShown()
                       ? matching_.Move(step)
                       : LeaveFor(*this, desk_, Box(editor).Row() + step, ColumnOf(editor));
        }
        case Key::Backspace:
            if (editor == CellEditor::Port) {
                matching_.OnBackspace();
            }
            return false;
        case Key::Tab:
        case Key::Enter:
            Finish(editor, press);
            return true;
        default:
            return false;
    }
}

/// Tab and Enter take the text and lead on: from the first port and from any weather factor to the next port,
/// else to the next editor of the row; Enter in the speed only closes, in a port it leads to the next one.
/// Ctrl+Enter takes it for each chosen row and closes.
void CellEditing::Finish(CellEditor editor, KeyPress press) {
    const int row = Box(editor).Row();
    const std::string text = Box(editor).Text();
    const bool empty = text.empty();
    const bool inChosen = press.ctrl && press.key == Key::Enter && !empty;
    if (inChosen) {
        edits_.SetInRows(desk_.ChosenRows(row), ColumnOf(editor), text, TextIds::IDS_VIEW_EDITALL);
    } else {
        Commit(editor);
    }
    if (editor == CellEditor::Port) {
        matching_.Hide();
        if (empty) {
            return;
        }
    }
    Hide(editor);
    if (inChosen) {
        return;
    }
    const bool toSpeed = editor == CellEditor::Port && press.key == Key::Tab && row > 0;
    if (toSpeed) {
        Open(CellEditor::Speed, row);
    } else if (editor != CellEditor::Speed) {
        OpenNextPort(row);
    } else if (press.key == Key::Tab) {
        Open(CellEditor::Weather, row);
    }
}

void CellEditing::Escape(CellEditor editor) {
    if (matching_.IsShown()) {
        return matching_.Hide();
    }
    const TextField& box = Box(editor);
    const PortCallTable& table = desk_.Sheet().table;
    if (!table.IsNumbered(box.Row())) {
        return;
    }
    // What was typed stays; only an editor without a change closes.
    const std::string& cell = table.Cell(box.Row(), ColumnOf(editor));
    if (box.Text() == cell || (box.Text().empty() && IsBlankCell(cell))) {
        Hide(editor);
    }
}

void CellEditing::OnCommandKey(KeyPress press) {
    if (StartsCommand(press)) {
        CommitEditors();
    }
}

void CellEditing::OnEditorFocusLost(CellEditor editor) {
    // The focus may have gone from the port editor to its match list.
    if (editor != CellEditor::Port && Box(editor).IsOpen()) {
        CommitEditors();
    }
}

void CellEditing::OnPressedOutside() {
    if (port_.IsOpen() || speed_.IsOpen() || weather_.IsOpen() || purposes_.IsOpen()) {
        CommitEditors();
    }
}

void CellEditing::OnMatchMoved(const std::string& name, bool fieldHasFocus) {
    matching_.OnMoved(name, fieldHasFocus);
}

void CellEditing::OnMatchChosen() {
    const PortCallDesk::Report report(desk_);
    const std::string name = matching_.Take();
    if (!name.empty()) {
        const int row = port_.Row();
        edits_.SetPort(row, name);
        Hide(CellEditor::Port);
        // What is typed behind it is the next port, as behind a name typed whole.
        LeaveFor(*this, desk_, row + 1, ColPort);
    }
}

void CellEditing::OnMatchPressed(int index) {
    matching_.OnPressed(index);
    OnMatchChosen();
}

bool CellEditing::OnPurposeKey(KeyPress press, int current) {
    if (press.key == Key::Enter) {
        OnPurposeChosen(current, press.ctrl);
    } else if (press.key == Key::Escape) {
        purposes_.Close();
        desk_.View().Cells().HidePurposes();
    } else {
        return false;
    }
    return true;
}

void CellEditing::OnPurposeChosen(int index, bool inChosen) {
    const PortCallDesk::Report report(desk_);
    if (index < 0 || index >= static_cast<int>(Interface::kPurposes.size())) {
        return;
    }
    purposes_.Close();
    desk_.View().Cells().HidePurposes();
    const char* code = Interface::kPurposes[static_cast<std::size_t>(index)].code;
    if (inChosen) {
        edits_.SetInRows(desk_.ChosenRows(purposes_.Row()), ColPurpose, code, TextIds::IDS_VIEW_EDITALL);
    } else {
        edits_.SetPurpose(purposes_.Row(), code);
    }
}

void CellEditing::OnTimeChosen(const std::string& text) {
    const PortCallDesk::Report report(desk_);
    edits_.SetTime(dateRow_, dateColumn_, text);
    picker_.Hide();
}

}  // namespace Tarvik::Seaplan

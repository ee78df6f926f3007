// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/CellEditing.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include <tarvik/bus/BusName.h>
#include <tarvik/interface/PlanTerms.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellsView.h"
#include "seaplan/panels/portcall/PortCallDesk.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kMostCharacters = 30;
constexpr CellEditor kTextEditors[] = {CellEditor::Port, CellEditor::Speed, CellEditor::Weather};

/// The purpose whose code begins a text, in either case of letters; the first for any other text.
int PurposeOf(const std::string& text) {
    const auto found = std::find_if(
        Interface::kPurposes.begin(), Interface::kPurposes.end(), [&text](const Interface::Purpose& purpose) {
            return !text.empty() && std::toupper(static_cast<unsigned char>(text.front())) == *purpose.code;
        });
    return found == Interface::kPurposes.end() ? 0 : static_cast<int>(found - Interface::kPurposes.begin());
}

}  // namespace

CellEditing::CellEditing(PortCallDesk& desk)
    : desk_(desk),
      edits_(desk),
      port_(kMostCharacters),
      speed_(kMostCharacters),
      weather_(kMostCharacters),
      matching_(desk, port_),
      picker_(desk.View().Cells().Picker(),
              [this](const Util::_datetime_t&) { OnTimeChosen(picker_.Text()); }) {}

TextField& CellEditing::Box(CellEditor editor) {
    return editor == CellEditor::Port ? port_ : editor == CellEditor::Speed ? speed_ : weather_;
}

bool CellEditing::OnCellClicked(int row, int column, const std::string* typed) {
    const PortCallDesk::Report report(desk_);
    if (typed != nullptr && *typed == kBlankCell) {
        return false;
    }
    CommitEditors();
    PortCallTable& table = desk_.Sheet().table;
    if (!table.IsNumbered(row) || column < 0 || column >= kPortCallColumnCount) {
        return false;
    }
    table.GrowIfLast(row);
    if (!edits_.Opens(row, column)) {
        return false;
    }
    switch (const CellEditor editor = kPortCallColumns[column].editor; editor) {
        case CellEditor::None:
            return false;
        case CellEditor::Purpose:
            OpenPurposes(row, PurposeOf(typed != nullptr ? *typed : table.Cell(row, ColPurpose)));
            break;
        case CellEditor::Time:
            OpenPicker(row, column);
            if (typed != nullptr && picker_.Calendar().IsVisible()) {
                picker_.Calendar().OnTextTyped(*typed);
            }
            break;
        default:
            Open(editor, row);
            if (typed != nullptr) {
                Box(editor).SetText(*typed);
                desk_.View().Cells().SetEditorText(editor, *typed);
            }
            if (editor == CellEditor::Port) {
                matching_.Ask();
            }
            break;
    }
    return true;
}

void CellEditing::Open(CellEditor editor, int row) {
    // A row that has just grown must be there before an editor stands on it, and a table that scrolls takes
    // what is open.
    desk_.Show();
    desk_.View().BringRowIntoView(row);
    const std::string& text = desk_.Sheet().table.Cell(row, ColumnOf(editor));
    TextField& box = Box(editor);
    box.Open(row, IsBlankCell(text) ? std::string() : text);
    desk_.View().Cells().OpenEditor(
        {editor, row, ColumnOf(editor), box.Text(), box.Limit(), editor != CellEditor::Port});
}

void CellEditing::OpenNextPort(int row) {
    const int next = row + 1;
    PortCallTable& table = desk_.Sheet().table;
    if (!table.IsNumbered(next)) {
        return;
    }
    table.GrowIfLast(next);
    // Text that the panel sets asks for no matches.
    Open(CellEditor::Port, next);
}

void CellEditing::OpenPurposes(int row, int current) {
    std::vector<std::string> texts;
    texts.reserve(Interface::kPurposes.size());
    for (const Interface::Purpose& purpose : Interface::kPurposes) {
        texts.emplace_back(purpose.text);
    }
    purposes_.Open(row, std::move(texts), current);
    desk_.Show();
    desk_.View().Cells().OpenPurposes(row, purposes_.Texts(), purposes_.Current());
}

void CellEditing::OpenPicker(int row, int column) {
    const PortCallTable& table = desk_.Sheet().table;
    const auto time = Util::DateTimeUtl::Parse(table.Cell(row, column));
    if (!time) {
        return;
    }
    dateRow_ = row;
    dateColumn_ = column;
    desk_.Show();
    desk_.View().Cells().PutPicker(row, column);
    picker_.SetValue(*time);
    picker_.OnPressed();
}

void CellEditing::Commit(CellEditor editor) {
    const TextField& box = Box(editor);
    // An editor that was only looked into changes nothing; a blank cell takes its default all the same.
    if (box.Untouched()) {
        return;
    }
    if (editor == CellEditor::Port) {
        edits_.SetPort(box.Row(), box.Text());
    } else if (editor == CellEditor::Speed) {
        edits_.SetSpeed(box.Row(), box.Text());
    } else {
        edits_.SetWeather(box.Row(), box.Text());
    }
}

void CellEditing::Hide(CellEditor editor) {
    // A field that is hidden loses the focus, and that must not count as leaving an open one.
    Box(editor).Close();
    desk_.View().Cells().HideEditor(editor);
}

void CellEditing::ClosePopups() {
    matching_.Hide();
    purposes_.Close();
    desk_.View().Cells().HidePurposes();
    picker_.Hide();
}

void CellEditing::HideEditors() {
    ClosePopups();
    for (const CellEditor editor : kTextEditors) {
        Hide(editor);
    }
}

void CellEditing::CommitEditors() {
    const PortCallDesk::Report report(desk_);
    for (const CellEditor editor : kTextEditors) {
        if (Box(editor).IsOpen()) {
            Commit(editor);
            Hide(editor);
        }
    }
    ClosePopups();
    desk_.Sheet().state.canCalculate = desk_.Sheet().PlaceCount(desk_.Ports()) >= 2;
}

}  // namespace Tarvik::Seaplan

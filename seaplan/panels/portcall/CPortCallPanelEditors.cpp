// SPDX-License-Identifier: MIT
/// Editors, lists and the calendar over the cells.
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/panels/portcall/CPortCallPanelDlg.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kMostMatches = 50;

int ColumnOf(CellEditor editor) {
    return editor == CellEditor::Port ? ColPort : editor == CellEditor::Speed ? ColSpeed : ColWeather;
}

}  // namespace

void CPortCallPanelDlg::OnCellClicked(int row, int column) {
    CommitEditors();
    if (!table_.IsNumbered(row)) {
        return;
    }
    table_.GrowIfLast(row);
    ShowTable();
    // The history of a corrected voyage stays as it is.
    if (IsCorrected() && (table_.FindLastAisRow() < 0 || row <= table_.FindLastAisRow())) {
        return;
    }
    switch (column) {
        case ColPort:
            OpenEditor(CellEditor::Port, row);
            break;
        case ColPurpose:
            purposeRow_ = row;
            view_.OpenPurposes(row);
            break;
        case ColSpeed:
            OpenEditor(CellEditor::Speed, row);
            break;
        case ColWeather:
            OpenEditor(CellEditor::Weather, row);
            break;
        case ColEta:
        case ColEtd:
            OpenPicker(row, column);
            break;
        default:
            break;
    }
}

void CPortCallPanelDlg::OpenEditor(CellEditor editor, int row) {
    const std::string& text = table_.Cell(row, ColumnOf(editor));
    const std::string shown = IsBlankCell(text) ? std::string() : text;
    editorRow_[IndexOf(editor)] = row;
    openedText_[IndexOf(editor)] = shown;
    view_.OpenEditor(editor, row, shown, editor != CellEditor::Port);
    if (editor == CellEditor::Port) {
        OnPortTyped(shown);
    }
}

void CPortCallPanelDlg::OpenPicker(int row, int column) {
    if (table_.IsBlank(row) || IsBlankCell(table_.Cell(row, ColEta)) ||
        IsBlankCell(table_.Cell(row, ColEtd))) {
        return;
    }
    const auto time = Util::DateTimeUtl::Parse(table_.Cell(row, column));
    if (!time) {
        return;
    }
    dateRow_ = row;
    dateColumn_ = column == ColEta ? 0 : 1;
    view_.OpenPicker(row, column, *time);
}

void CPortCallPanelDlg::HideMatches() {
    view_.HideMatches();
    matchesShown_ = false;
    if (matchWindow_ != nullptr) {
        view_.HideMatchWindow(matchWindow_);
    }
    matchWindow_ = nullptr;
    lastMatch_.clear();
}

void CPortCallPanelDlg::ClosePopups() {
    HideMatches();
    view_.HidePurposes();
    view_.HidePicker();
}

void CPortCallPanelDlg::HideEditors() {
    ClosePopups();
    for (const CellEditor editor : {CellEditor::Port, CellEditor::Speed, CellEditor::Weather}) {
        view_.HideEditor(editor);
    }
}

void CPortCallPanelDlg::CommitEditors() {
    for (const CellEditor editor : {CellEditor::Port, CellEditor::Speed, CellEditor::Weather}) {
        if (!view_.EditorVisible(editor)) {
            continue;
        }
        Commit(editor);
        view_.HideEditor(editor);
    }
    ClosePopups();
    UpdateCalculateButton();
}

void CPortCallPanelDlg::OnPortTyped(const std::string& text) {
    if (!notifyTyping_) {
        return;
    }
    const Interface::MatchPortQuery query{view_.EditorHandle(CellEditor::Port), view_.Handle(), text,
                                          std::exchange(textRemains_, false)};
    void* window = Interface::Call(Interface::Bus::MatchPorts, &query);
    if (window != nullptr) {
        matchWindow_ = window;
        lastMatch_.clear();
        return text.empty() ? HideMatches() : view_.ShowMatchWindow(window);
    }
    HideMatches();
    if (text.empty()) {
        return;
    }
    // Without the search plug-in the panel offers the ports that it knows itself.
    const std::vector<std::string> names = ports_.Match(text, kMostMatches);
    matchesShown_ = !names.empty() && names != std::vector<std::string>{text};
    if (matchesShown_) {
        view_.ShowMatches(names);
    }
}

void CPortCallPanelDlg::OnPortBackspace() {
    textRemains_ = !view_.EditorText(CellEditor::Port).empty();
}

void CPortCallPanelDlg::OnMatchMoved(const std::string& name, bool fieldHasFocus) {
    if (!view_.EditorVisible(CellEditor::Port) || fieldHasFocus) {
        return;
    }
    notifyTyping_ = false;
    view_.SetEditorText(CellEditor::Port, name);
    lastMatch_ = name;
    notifyTyping_ = true;
}

void CPortCallPanelDlg::OnMatchChosen() {
    if (!view_.EditorVisible(CellEditor::Port) || lastMatch_.empty()) {
        return;
    }
    const std::string name = lastMatch_;
    HideMatches();
    CommitPort(name);
    view_.HideEditor(CellEditor::Port);
}

void CPortCallPanelDlg::Escape(CellEditor editor) {
    if (matchesShown_ || matchWindow_ != nullptr) {
        return HideMatches();
    }
    const int row = editorRow_[IndexOf(editor)];
    if (!table_.IsNumbered(row)) {
        return;
    }
    // What was typed stays; only an editor without a change closes.
    const std::string& cell = table_.Cell(row, ColumnOf(editor));
    const std::string text = view_.EditorText(editor);
    if (text == cell || (text.empty() && IsBlankCell(cell))) {
        view_.HideEditor(editor);
    }
}

void CPortCallPanelDlg::OnEditorKey(CellEditor editor, EditorKey key) {
    if (key == EditorKey::Escape) {
        return Escape(editor);
    }
    const int row = editorRow_[IndexOf(editor)];
    const bool empty = view_.EditorText(editor).empty();
    Commit(editor);
    if (editor == CellEditor::Port) {
        HideMatches();
        if (empty) {
            return;
        }
    }
    view_.HideEditor(editor);
    if (key == EditorKey::Enter && editor == CellEditor::Speed) {
        return;
    }
    if (key == EditorKey::Enter && editor == CellEditor::Port) {
        return OpenNextPort(row);
    }
    MoveOn(editor, row);
}

void CPortCallPanelDlg::MoveOn(CellEditor editor, int row) {
    switch (editor) {
        case CellEditor::Port:
            return row == 0 ? OpenNextPort(row) : OpenEditor(CellEditor::Speed, row);
        case CellEditor::Speed:
            return OpenEditor(CellEditor::Weather, row);
        case CellEditor::Weather:
            return OpenNextPort(row);
        default:
            return;
    }
}

void CPortCallPanelDlg::OpenNextPort(int row) {
    const int next = row + 1;
    if (!table_.IsNumbered(next)) {
        return;
    }
    table_.GrowIfLast(next);
    ShowTable();
    view_.BringRowIntoView(next);
    // Text that the panel sets asks for no matches.
    notifyTyping_ = false;
    OpenEditor(CellEditor::Port, next);
    notifyTyping_ = true;
}

void CPortCallPanelDlg::OnEditorFocusLost(CellEditor editor) {
    // The focus may have gone from the port editor to its match list.
    if (editor != CellEditor::Port) {
        CommitEditors();
    }
}

void CPortCallPanelDlg::OnTableLeft() {
    CommitEditors();
}

}  // namespace Tarvik::Seaplan

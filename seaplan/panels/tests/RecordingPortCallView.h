// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "seaplan/panels/datetime/CalendarView.h"
#include "seaplan/panels/editors/EditWords.h"
#include "seaplan/panels/portcall/CellsView.h"
#include "seaplan/panels/portcall/PortCallState.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/panels/portcall/WhatIfView.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"

namespace Tarvik::Seaplan {

/// A port call window that only remembers what it was told.
class RecordingPortCallView final : public RecordingPanelWindow<PortCallView>,
                                    public CellsView,
                                    public WhatIfView,
                                    public DateTimeView,
                                    public CalendarView {
  public:
    PortCallTable table;
    PortCallState state;
    UndoTexts edits;
    int tablesShown = 0;
    int statesShown = 0;
    int busy = 0;
    int selectedRow = -1;
    int selectedColumn = -1;
    std::vector<int> chosen;  ///< by the person
    std::string clipboard;
    std::vector<RowsPreview> pastes;  ///< that were shown, and other previews of rows
    bool takesPaste = true;           ///< the answer to the next one
    std::vector<std::pair<std::size_t, std::size_t>>
        takesColumns;  ///< column and kind that the person changes
    std::optional<int> choosesRow;
    WhatIfState whatIf;
    int rowInView = -1;
    std::optional<CellEditor> openEditor;  ///< opened last and not hidden since
    int editorRow = -1;
    bool editorSelectsAll = false;
    std::map<CellEditor, std::string> editorTexts;
    std::set<CellEditor> openEditors;
    std::vector<std::string> matches;
    bool matchesShown = false;
    int selectedMatch = -1;
    void* matchWindow = nullptr;
    int purposeRow = -1;
    int currentPurpose = -1;
    std::vector<std::string> purposes;
    std::string pickerTime;               ///< empty while the picker is closed
    std::string pickerText;               ///< of the picker's button
    std::vector<std::string> visibility;  ///< "show" and "hide" in order

    void ShowTable(const PortCallTable& shown) override {
        table = shown;
        ++tablesShown;
    }
    void ShowState(const PortCallState& shown) override {
        state = shown;
        ++statesShown;
    }
    void ShowEdits(const UndoTexts& shown) override { edits = shown; }
    void Show() override {
        RecordingPanelWindow::Show();
        visibility.emplace_back("show");
    }
    void Hide() override {
        RecordingPanelWindow::Hide();
        visibility.emplace_back("hide");
    }
    void SetBusy(bool on) override { busy += on ? 1 : -1; }
    void SelectCell(int row, int column) override {
        selectedRow = row;
        selectedColumn = column;
    }
    std::vector<int> ChosenRows() const override { return chosen; }
    std::string ClipboardText() const override { return clipboard; }
    bool AskRows(const RowsPreview& preview, const ChangeColumn& change) override {
        pastes.push_back(preview);
        for (const auto& [column, kind] : takesColumns) {
            pastes.push_back(change(column, kind));
        }
        return takesPaste;
    }
    std::optional<int> ChooseRow(const RowsPreview& preview) override {
        pastes.push_back(preview);
        return choosesRow;
    }
    WhatIfView& Questions() override { return *this; }
    void ShowWhatIf(const WhatIfState& shown) override { whatIf = shown; }
    void BringRowIntoView(int row) override { rowInView = row; }
    CellsView& Cells() override { return *this; }
    void OpenEditor(const OpenedEditor& opened) override {
        openEditor = opened.editor;
        openEditors.insert(opened.editor);
        editorRow = opened.row;
        editorTexts[opened.editor] = opened.text;
        editorSelectsAll = opened.selectAll;
    }
    void HideEditor(CellEditor editor) override {
        openEditors.erase(editor);
        editorTexts[editor].clear();
        if (openEditor == editor) {
            openEditor.reset();
        }
    }
    void SetEditorText(CellEditor editor, const std::string& text) override { editorTexts[editor] = text; }
    void* EditorHandle(CellEditor) const override { return const_cast<std::string*>(&help); }
    void ShowMatches(const std::vector<std::string>& names) override {
        matches = names;
        matchesShown = true;
    }
    void SelectMatch(int index) override { selectedMatch = index; }
    void HideMatches() override { matchesShown = false; }
    void ShowMatchWindow(void* window) override { matchWindow = window; }
    void HideMatchWindow() override { matchWindow = nullptr; }
    void OpenPurposes(int row, const std::vector<std::string>& texts, int current) override {
        purposeRow = row;
        currentPurpose = current;
        purposes = texts;
    }
    void HidePurposes() override { purposeRow = -1; }
    void PutPicker(int, int) override {}
    DateTimeView& Picker() override { return *this; }
    void SetTimeStyle(int) override {}
    void ShowText(const std::string& text) override { pickerText = text; }
    Rect PlaceOnScreen() const override { return place; }
    CalendarView& Calendar() override { return *this; }
    void ShowState(const CalendarState&) override {}
    void FillEdit(const std::string&) override {}
    void Open(Point) override { pickerTime = pickerText; }
    void Close() override { pickerTime.clear(); }
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "seaplan/calculation/PortCallColumns.h"

namespace Tarvik::Seaplan {

class DateTimeView;

/// The column over which an editor opens; the first for a kind that several have.
constexpr int ColumnOf(CellEditor editor) {
    int column = 0;
    while (column < kPortCallColumnCount && kPortCallColumns[column].editor != editor) {
        ++column;
    }
    return column;
}

/// A text editor over a cell, as it opens.
struct OpenedEditor {
    CellEditor editor = CellEditor::Port;
    int row = 0;
    int column = 0;
    std::string text;       ///< shown whole, however long
    std::size_t limit = 0;  ///< UTF-16 units that can be typed
    bool selectAll = false;
};

/// What opens over the cells of the port call table, on the screen. It shows what it is told, and each field
/// and list reports what the person does there.
class CellsView {
  public:
    virtual ~CellsView() = default;
    virtual void OpenEditor(const OpenedEditor& opened) = 0;
    virtual void HideEditor(CellEditor editor) = 0;
    /// Replaces the text of an open editor, caret at its end.
    virtual void SetEditorText(CellEditor editor, const std::string& text) = 0;
    /// Opaque handle of an editor's field.
    virtual void* EditorHandle(CellEditor editor) const = 0;
    /// The panel's own list of matching ports below the port editor, none of them in front.
    virtual void ShowMatches(const std::vector<std::string>& names) = 0;
    /// Brings one of them to the front.
    virtual void SelectMatch(int index) = 0;
    virtual void HideMatches() = 0;
    /// Shows the match window that a service has just answered, by its opaque handle, 20 pixels below the top
    /// of the editor's cell; one that was shown before goes.
    virtual void ShowMatchWindow(void* window) = 0;
    /// Hides that window, where its owner has not destroyed it.
    virtual void HideMatchWindow() = 0;
    /// The list of purposes below a row's cell, one of them in front.
    virtual void OpenPurposes(int row, const std::vector<std::string>& texts, int current) = 0;
    virtual void HidePurposes() = 0;
    /// Makes a cell the button of the date that is picked there.
    virtual void PutPicker(int row, int column) = 0;
    virtual DateTimeView& Picker() = 0;
};

}  // namespace Tarvik::Seaplan

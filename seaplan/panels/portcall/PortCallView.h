// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/portcall/PortCallTable.h"

namespace Tarvik::Seaplan {

/// Place of a text editor among the three.
constexpr int IndexOf(CellEditor editor) {
    return static_cast<int>(editor);
}

/// Keys to which an editor reacts.
enum class EditorKey { Tab, Enter, Escape };

/// What stands around the table.
struct PortCallState {
    std::string caption;
    bool changed = false;
    bool canSave = false;
    bool canClear = true;
    bool canOpenBook = false;
    bool canCalculate = false;
    std::string calculateText;
    std::string averageSpeed;
    std::string totalDistance;
    std::string totalTime;
    std::string speedUnit = "kts";
    std::string distanceUnit = "NM";
    std::string timeUnit = "days";
    std::string zone;  ///< zone of the times, empty when nobody tells
};

/// The window of the port call panel. It shows what it is given and reports what the person does.
class PortCallView {
  public:
    virtual ~PortCallView() = default;
    virtual void ShowTable(const PortCallTable& table) = 0;
    virtual void ShowState(const PortCallState& state) = 0;
    /// Column titles, captions and tool tips in the language in force.
    virtual void ApplyTexts() = 0;

    virtual void Show() = 0;
    virtual void Hide() = 0;
    virtual bool IsVisible() const = 0;
    virtual void PlaceBesideTree() = 0;
    virtual void SetEnabled(bool enabled) = 0;
    /// Tells the person that something goes on which takes a while.
    virtual void SetBusy(bool busy) = 0;
    virtual void SelectRow(int row) = 0;
    virtual void BringRowIntoView(int row) = 0;

    virtual void OpenEditor(CellEditor editor, int row, const std::string& text, bool selectAll) = 0;
    virtual void HideEditor(CellEditor editor) = 0;
    virtual bool EditorVisible(CellEditor editor) const = 0;
    virtual std::string EditorText(CellEditor editor) const = 0;
    /// Replaces the text of an open editor, caret at its end.
    virtual void SetEditorText(CellEditor editor, const std::string& text) = 0;
    /// Opaque handle of an editor's field.
    virtual void* EditorHandle(CellEditor editor) const = 0;
    /// The panel's own list of matching ports below the port editor.
    virtual void ShowMatches(const std::vector<std::string>& names) = 0;
    virtual void HideMatches() = 0;
    /// The match window that a service has answered, by its opaque handle: shown 20 pixels below the top of
    /// the editor's cell, or hidden.
    virtual void ShowMatchWindow(void* window) = 0;
    virtual void HideMatchWindow(void* window) = 0;
    virtual void OpenPurposes(int row) = 0;
    virtual void HidePurposes() = 0;
    virtual void OpenPicker(int row, int column, const Util::_datetime_t& time) = 0;
    virtual void HidePicker() = 0;
    virtual void RequestHelp(const std::string& topic) = 0;
    /// Opaque handle as owner of boxes.
    virtual void* Handle() const = 0;
};

}  // namespace Tarvik::Seaplan

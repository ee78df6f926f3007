// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "seaplan/panels/paste/RowsPreview.h"
#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Seaplan {

class CellsView;
struct PortCallState;
class PortCallTable;
struct UndoTexts;
class WhatIfView;

/// The window of the port call panel. It shows what it is given and reports what the person does.
class PortCallView : public PanelWindow {
  public:
    virtual void ShowTable(const PortCallTable& table) = 0;
    virtual void ShowState(const PortCallState& state) = 0;
    virtual void ShowEdits(const UndoTexts& edits) = 0;
    /// Tells the person that something goes on which takes a while.
    virtual void SetBusy(bool busy) = 0;
    virtual void SelectCell(int row, int column) = 0;
    /// The rows that the person has chosen, in order; that in front mostly is one of them.
    virtual std::vector<int> ChosenRows() const = 0;
    virtual void BringRowIntoView(int row) = 0;
    /// The text on the clipboard, UTF-8; no more than a little over what is read of it.
    virtual std::string ClipboardText() const = 0;
    /// Shows what a command would do with rows and waits for the answer. True for yes. Where a column can be
    /// taken as another kind, `change` gives what is shown then.
    virtual bool AskRows(const RowsPreview& preview, const ChangeColumn& change) = 0;
    /// Shows such rows and waits for the person to choose one. Its number from 0; nothing for none.
    virtual std::optional<int> ChooseRow(const RowsPreview& preview) = 0;
    /// The questions below the table.
    virtual WhatIfView& Questions() = 0;
    /// What opens over the cells.
    virtual CellsView& Cells() = 0;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/editors/EditWords.h"
#include "seaplan/panels/portcall/CellsView.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Seaplan {

/// What stands around the table.
struct PortCallState {
    std::string caption;
    std::string voyage{};  ///< name of the voyage on show, which stands behind the caption
    bool changed = false;
    bool canSave = false;
    bool canClear = true;
    bool canOpenBook = false;
    bool canCalculate = false;
    std::string calculateText;
    SummaryTexts summary;
    bool staleSummary = false;  ///< the figures are those of other ports
    std::string speedUnit;
    std::string distanceUnit;
    std::string timeUnit;
    std::string zone;            ///< zone of the times, empty when nobody tells
    std::string note;            ///< one line about the rows on show, mostly empty
    bool distanceTable = false;  ///< the panel serves as the port distance table

    friend bool operator==(const PortCallState&, const PortCallState&) = default;
};

/// The window of the port call panel. It shows what it is given and reports what the person does.
class PortCallView : public PanelWindow {
  public:
    virtual void ShowTable(const PortCallTable& table) = 0;
    virtual void ShowState(const PortCallState& state) = 0;
    virtual void ShowEdits(const UndoTexts& edits) = 0;
    /// Tells the person that something goes on which takes a while.
    virtual void SetBusy(bool busy) = 0;
    virtual void SelectRow(int row) = 0;
    virtual void BringRowIntoView(int row) = 0;
    /// What opens over the cells.
    virtual CellsView& Cells() = 0;
};

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/VoyInfo.h"
#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Seaplan {

/// The window of the consumption dialog: seven fields for whole numbers and the buttons. It shows what it is
/// given and reports what the person does.
class BunkerView : public PanelWindow {
  public:
    /// Writes all fields, without a report.
    virtual void ShowFigures(const BunkerFigures& figures) = 0;
    /// `dirty` enables save and undo, `editable` the fields.
    virtual void ShowState(bool dirty, bool editable) = 0;
};

}  // namespace Tarvik::Seaplan
